// The storage map driven as a person would, through real widgets offscreen: hovering reads a
// folder's size and share, clicks and keys zoom in and out, the breadcrumb and the list follow;
// and the layout over a big random tree: every folder's ring fills its parent's angle exactly,
// and every segment is found where it is drawn.
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/StorageFolders.h"
#include "ui/StoragePage.h"
#include "ui/StorageRing.h"
#include "ui/Sunburst.h"

#include <QLabel>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <random>

namespace {

FolderNode folder(const QString& name, qint64 own, std::vector<FolderNode> children = {},
                  StorageBucket kind = StorageBucket::documents, qint64 folded = 0)
{
    FolderNode node{name, own + folded, 1, own, folded, kind, std::move(children)};
    for (const FolderNode& child : node.children) {
        node.bytes += child.bytes;
        node.fileCount += child.fileCount;
    }
    return node;
}

// 10,000 bytes in the home "a": Documents half of it, a folder too thin to draw, its own files.
FolderNode homeTree()
{
    return folder("a", 1'000, {
        folder("Documents", 1'000, {folder("Thesis", 1'000, {folder("refs", 2'000)}), folder("Letters", 1'000)}),
        folder("Movies", 3'000, {}, StorageBucket::videos),
        folder("Library", 0, {folder("Caches", 985, {}, StorageBucket::appData)}, StorageBucket::appData, 10),
        folder("tiny", 5),
    });
}

StorageReport reportWith(FolderNode tree, qint64 diskUsed = 0)
{
    StorageReport report;
    report.date = QDateTime::currentDateTimeUtc();
    report.diskUsed = diskUsed;
    report.totals.at(static_cast<size_t>(StorageBucket::documents)) = tree.bytes;
    report.folders.at(static_cast<size_t>(StorageBucket::documents)) = {
        {"/Users/a/Documents", 5'000, {{"/Users/a/Documents/Thesis/refs/paper.pdf", 1'800}, {"/Users/a/Documents/cv.pdf", 700}}, 4, {}}};
    report.tree = std::move(tree);
    return report;
}

class SunburstTest : public ::testing::Test {
protected:
    explicit SunburstTest(StorageReport report = reportWith(homeTree()))
        : fixture({}, QStringLiteral("/Users/a"), [report](AppModel::Services& services) {
              services.analyzeStorage = [report](const StorageAnalyzer::Request&) { return std::optional(report); };
          })
    {
        fixture.model().startStorageAnalysis();
        EXPECT_TRUE(waitUntil([&] { return fixture.model().storageReport().has_value(); }));
    }

    static int segmentNamed(const Sunburst& chart, const QString& name)
    {
        const auto& segments = chart.layout().segments();
        for (size_t i = 0; i < segments.size(); ++i) {
            if (segments[i].part == SunburstLayout::Part::folder && segments[i].node->name == name)
                return int(i);
        }
        return -1;
    }

    static QStringList names(const QTreeWidget* list)
    {
        QStringList texts;
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            texts.append(list->topLevelItem(i)->text(0));
        return texts;
    }

    ModelFixture fixture;
};

}  // namespace

TEST_F(SunburstTest, TheMouseReadsZoomsInAndBackOut)
{
    StorageFolders map(&fixture.model());
    map.resize(900, 480);
    map.show();
    Sunburst& chart = *map.sunburst();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&map));

    const int documents = segmentNamed(chart, "Documents");
    ASSERT_GE(documents, 0);
    QTest::mouseMove(&chart, chart.middleOf(documents).toPoint());
    EXPECT_EQ(chart.hovered(), documents);
    EXPECT_EQ(chart.describe(documents), "Documents\n5 KB · 50% of a");
    EXPECT_TRUE(QToolTip::text().startsWith("Documents")) << QToolTip::text().toStdString();
    EXPECT_EQ(segmentNamed(chart, "tiny"), -1) << "a folder of 0.05% is merged into the smaller items";

    QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.middleOf(documents).toPoint());
    EXPECT_EQ(chart.zoom(), QStringList{"Documents"});
    EXPECT_EQ(map.breadcrumb()->text(), "<a href=\"0\">a</a>  ›  <b>Documents</b>");
    EXPECT_EQ(names(map.contents()), (QStringList{"Thesis/", "Letters/", "Thesis/refs/paper.pdf", "cv.pdf"}))
        << "sub-folders first, then the largest files below the folder";

    const int thesis = segmentNamed(chart, "Thesis");
    ASSERT_GE(thesis, 0);
    const int refs = segmentNamed(chart, "refs");
    ASSERT_GE(refs, 0);
    QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.middleOf(refs).toPoint());
    EXPECT_EQ(chart.zoom(), (QStringList{"Documents", "Thesis", "refs"})) << "a click two rings out zooms two levels";

    QTest::mouseClick(&chart, Qt::LeftButton, {}, QPoint(chart.width() / 2, chart.height() / 2));
    EXPECT_EQ(chart.zoom(), (QStringList{"Documents", "Thesis"})) << "the centre zooms out one level";
    emit map.breadcrumb()->linkActivated("0");
    EXPECT_EQ(chart.zoom(), QStringList());
    EXPECT_EQ(names(map.contents()).first(), "Documents/");
}

TEST_F(SunburstTest, TheKeysMoveBetweenSegmentsAndZoom)
{
    StorageFolders map(&fixture.model());
    map.resize(900, 480);
    map.show();
    Sunburst& chart = *map.sunburst();
    chart.setFocus();

    QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(chart.current(), segmentNamed(chart, "Documents")) << "the first key picks the largest folder";
    QTest::keyClick(&chart, Qt::Key_Right);
    EXPECT_EQ(chart.current(), segmentNamed(chart, "Movies"));
    QTest::keyClick(&chart, Qt::Key_Left);
    QTest::keyClick(&chart, Qt::Key_Left);
    EXPECT_EQ(chart.layout().segments().at(size_t(chart.current())).part, SunburstLayout::Part::smaller)
        << "left from the first wraps round to the last segment of the ring";
    QTest::keyClick(&chart, Qt::Key_Right);
    QTest::keyClick(&chart, Qt::Key_Down);
    EXPECT_EQ(chart.current(), segmentNamed(chart, "Thesis"));
    QTest::keyClick(&chart, Qt::Key_Up);
    EXPECT_EQ(chart.current(), segmentNamed(chart, "Documents"));
    QTest::keyClick(&chart, Qt::Key_Down);
    QTest::keyClick(&chart, Qt::Key_Return);
    EXPECT_EQ(chart.zoom(), (QStringList{"Documents", "Thesis"}));
    EXPECT_EQ(chart.current(), -1) << "a new centre starts with nothing picked";
    QTest::keyClick(&chart, Qt::Key_Backspace);
    QTest::keyClick(&chart, Qt::Key_Backspace);
    EXPECT_EQ(chart.zoom(), QStringList());
}

TEST_F(SunburstTest, ANewReportKeepsTheZoomWhereTheFolderStillExists)
{
    Sunburst chart;
    chart.resize(400, 400);
    chart.setTree(homeTree());
    chart.zoomTo({"Documents", "Thesis"});
    FolderNode smaller = homeTree();
    smaller.children.front().children.erase(smaller.children.front().children.begin());  // Thesis gone
    chart.setTree(smaller);
    EXPECT_EQ(chart.zoom(), QStringList{"Documents"});
    chart.zoomTo({"Nowhere"});
    EXPECT_EQ(chart.zoom(), QStringList{"Documents"}) << "a folder that isn't in the tree is not zoomed into";
}

TEST(SunburstLayout, EveryFolderFillsItsParentsAngleAndIsFoundWhereItLies)
{
    // A random tree of about 12,000 folders, as deep as the rings go.
    std::mt19937 random(29);
    std::function<FolderNode(int, int)> grow = [&](int depth, int width) {
        std::vector<FolderNode> children;
        if (depth < SunburstLayout::rings + 1) {
            for (int i = 0; i < width; ++i)
                children.push_back(grow(depth + 1, int(random() % 12)));
        }
        return folder(QString::number(random()), qint64(random() % 100'000), std::move(children), StorageBucket::other,
                      qint64(random() % 3) * 5'000);
    };
    const FolderNode tree = grow(0, 40);
    ASSERT_GT(tree.nodeCount(), 10'000);
    SunburstLayout layout;
    layout.build(tree);
    const auto& segments = layout.segments();
    std::vector<double> filled(segments.size() + 1, 0);
    for (size_t i = 0; i < segments.size(); ++i) {
        const auto& segment = segments[i];
        filled[size_t(segment.parent + 1)] += segment.span;
        EXPECT_EQ(layout.segmentAt(segment.ring, segment.start + segment.span / 2), int(i));
    }
    EXPECT_NEAR(filled[0], 360, 1e-6) << "the first ring goes all the way round";
    for (size_t i = 0; i < segments.size(); ++i) {
        const auto& segment = segments[i];
        if (segment.part == SunburstLayout::Part::folder && segment.ring + 1 < SunburstLayout::rings && segment.bytes > 0) {
            ASSERT_NEAR(filled[i + 1], segment.span, 1e-6) << "segment " << i;
        }
    }
    EXPECT_LT(segments.size(), size_t(SunburstLayout::rings * 360 / SunburstLayout::thinnest));
}

namespace {

class DominantSystemTest : public SunburstTest {
protected:
    DominantSystemTest() : SunburstTest(reportWith(homeTree(), 1'000'000)) {}
};

}  // namespace

TEST_F(DominantSystemTest, TheKindsRingShowsWhatWasMeasuredAndSaysSo)
{
    StoragePage page(&fixture.model());
    StorageRing& ring = *page.ring();
    ring.grab();
    EXPECT_EQ(ring.segmentAt({double(ring.width()) / 2 + 1, 20}), 0);
    EXPECT_EQ(ring.segmentAt({double(ring.width()) / 2 - 1, 20}), 0) << "one kind measured: it is the whole ring";
    EXPECT_FALSE(ring.toolTip().isEmpty());
}
