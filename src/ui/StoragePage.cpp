#include "ui/StoragePage.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "model/HistoryRecorder.h"
#include "model/SettingsStore.h"
#include "ui/FolderActions.h"
#include "ui/GrewTheMost.h"
#include "ui/PageLabels.h"
#include "ui/SizeBarDelegate.h"
#include "ui/StorageBucketStyle.h"
#include "ui/StorageChange.h"
#include "ui/StorageFolders.h"
#include "ui/StorageHeader.h"
#include "ui/StorageRing.h"
#include "vocabulary/PathRules.h"
#include "ui/Reveal.h"
#include "ui/RowMenuKeys.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum LegendColumn { legendTitle, legendSize, legendShare };
enum DetailColumn { detailName, detailSize, detailFiles };
constexpr int pathRole = Qt::UserRole;
constexpr int rowKindRole = Qt::UserRole + 1;
constexpr int bucketRole = Qt::UserRole + 2;
enum RowKind { folderRow, groupRow, fileRow };
// The ring leaves out the part the walk can't see when it is more than this many times the rest.
constexpr qint64 systemShareShownUpTo = 4;
constexpr int kindsTab = 1;

QTreeWidget* makeList(QWidget* parent, const QStringList& headings)
{
    auto* list = new QTreeWidget(parent);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    list->setHeaderLabels(headings);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < headings.size(); ++column)
        list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    return list;
}

QString share(qint64 bytes, qint64 total)
{
    if (total <= 0)
        return {};
    const double percent = 100.0 * static_cast<double>(bytes) / static_cast<double>(total);
    return percent < 1 ? QStringLiteral("<1%") : QStringLiteral("%1%").arg(qRound(percent));
}

}  // namespace

StoragePage::StoragePage(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model),
      //: Heading of the storage screen
      m_header(new StorageHeader(model, tr("Storage"),
                                 //: Explanation on the storage screen
                                 tr("Where the space on your disk goes, by kind of data. Click a kind to see its "
                                    "folders, and a folder to see its largest files."), this)),
      m_ring(new StorageRing(this)), m_legend(nullptr), m_place(PageLabels::heading({}, this)),
      //: Button of the storage drill-down: go up one level
      m_back(new QPushButton(tr("Back"), this)), m_details(nullptr), m_bars(new SizeBarDelegate(this))
{
    m_folderIcon = style()->standardIcon(QStyle::SP_DirIcon);
    m_fileIcon = style()->standardIcon(QStyle::SP_FileIcon);
    // The page scrolls when the window is shorter than its parts: otherwise the window's
    // minimum height would be theirs, taller than a 1280x800 screen leaves for it.
    auto* content = new QWidget(this);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scroll);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    layout->addWidget(m_header);
    layout->addWidget(makeOverview());
    m_views = new QTabWidget(this);
    m_folders = new StorageFolders(model, m_views);
    //: Tab of the storage screen: the sunburst of the measured folders
    m_views->addTab(m_folders, tr("Folders"));
    //: Tab of the storage screen: the folders and files of each kind of data
    m_views->addTab(makeDrillDown(), tr("Kinds"));
    layout->addWidget(m_views, 1);
    layout->addWidget(new GrewTheMost(m_model->history(), this));
    scroll->setWidget(content);
    connect(m_model, &AppModel::storageChanged, this, &StoragePage::refresh);
    connect(m_model->history(), &HistoryRecorder::changed, this, &StoragePage::refresh);
    connect(m_ring, &StorageRing::segmentClicked, this, &StoragePage::ringClicked);
    refresh();
}

QWidget* StoragePage::makeOverview()
{
    auto* overview = new QWidget(this);
    auto* layout = new QHBoxLayout(overview);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(20);
    m_ring->setFixedSize(250, 250);
    //: Column heading of the storage legend: the kind of data
    const QString kind = tr("Kind");
    //: Column heading of the storage legend: the kind's size
    const QString size = tr("Size");
    //: Column heading of the storage legend: the kind's share of the used space
    const QString part = tr("Share");
    m_legend = makeList(overview, {kind, size, part});
    m_legend->setIconSize(QSize(12, 12));
    m_legend->setFixedHeight(250);
    connect(m_legend, &QTreeWidget::itemClicked, this, &StoragePage::legendChosen);
    layout->addWidget(m_ring);
    layout->addWidget(m_legend, 1);
    return overview;
}

QWidget* StoragePage::makeDrillDown()
{
    auto* drill = new QWidget(this);
    auto* top = new QHBoxLayout;
    top->addWidget(m_back);
    top->addWidget(m_place, 1);
    //: Column heading of the storage drill-down: a folder or file
    const QString name = tr("Name");
    //: Column heading of the storage drill-down: its size
    const QString size = tr("Size");
    //: Column heading of the storage drill-down: how many files it holds
    const QString files = tr("Files");
    m_details = makeList(drill, {name, size, files});
    m_details->setItemDelegateForColumn(detailSize, m_bars);
    m_details->setContextMenuPolicy(Qt::CustomContextMenu);
    RowMenuKeys::install(m_details);
    m_details->header()->setSectionResizeMode(detailSize, QHeaderView::Fixed);
    m_details->header()->resizeSection(detailSize, 220);  // room for a change since the last analysis
    connect(m_details, &QTreeWidget::itemClicked, this, &StoragePage::detailActivated);
    connect(m_details, &QWidget::customContextMenuRequested, this, &StoragePage::showDetailMenu);
    connect(m_back, &QPushButton::clicked, this, [this] {
        if (m_folder)
            showBucket(*m_bucket);
        else
            showBuckets();
    });
    auto* layout = new QVBoxLayout(drill);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_details, 1);
    return drill;
}

void StoragePage::refresh()
{
    const auto& report = m_model->storageReport();
    if (report && !m_bucket) {
        const auto largest = report->sortedBuckets().constFirst();
        if (largest.second > 0)
            m_bucket = largest.first;
    }
    refreshRing();
    refreshLegend();
    refreshDetails();
}

void StoragePage::refreshRing()
{
    QList<StorageRing::Segment> segments;
    m_ringBuckets.clear();
    const auto& report = m_model->storageReport();
    if (!report) {
        //: Middle of the storage ring before any analysis
        const QString caption = tr("not measured");
        m_ring->setSegments({}, QStringLiteral("—"), caption);
        return;
    }
    for (const auto& [bucket, bytes] : report->sortedBuckets()) {
        if (bytes <= 0)
            continue;
        segments.append({StorageBucketStyle::colour(bucket), bytes, StorageBuckets::title(bucket) + QStringLiteral(" · ") + ByteCount::format(bytes)});
        m_ringBuckets.append(bucket);
    }
    // When the part the walk can't see dwarfs the rest, the ring shows only what was measured,
    // so the kinds stay readable; the middle says so.
    const bool onlyMeasured = report->notMeasured() > systemShareShownUpTo * report->measured();
    if (report->notMeasured() > 0 && !onlyMeasured) {
        segments.append({StorageBucketStyle::remainderColour(), report->notMeasured(),
                         StorageBuckets::remainderTitle() + QStringLiteral(" · ") + ByteCount::format(report->notMeasured())});
        m_ringBuckets.append(std::nullopt);
    }
    //: Under the size in the middle of the storage ring: the disk's used space
    const QString used = tr("used");
    //: Under the size in the middle of the storage ring when the disk's used space is unknown
    const QString measured = tr("measured");
    if (onlyMeasured) {
        //: Under the measured size in the middle of the storage ring when the system's share is left out of the ring; %1 is the disk's used space
        m_ring->setSegments(segments, ByteCount::format(report->measured()), tr("measured of %1 used").arg(ByteCount::format(report->diskUsed)));
        //: Tooltip of the storage ring when it leaves the system's share out; %1 is the name of that share
        m_ring->setToolTip(tr("The ring shows only what was measured; %1 is too large beside it to leave the kinds readable.").arg(StorageBuckets::remainderTitle()));
    } else {
        m_ring->setSegments(segments, ByteCount::format(std::max(report->diskUsed, report->measured())),
                            report->diskUsed > 0 ? used : measured);
        m_ring->setToolTip({});
    }
    m_ring->setHighlighted(m_bucket ? static_cast<int>(m_ringBuckets.indexOf(m_bucket)) : -1);
}

void StoragePage::refreshLegend()
{
    m_legend->clear();
    const auto& report = m_model->storageReport();
    if (!report)
        return;
    const qint64 total = std::max(report->diskUsed, report->measured());
    for (const auto& [bucket, bytes] : report->sortedBuckets()) {
        if (bytes <= 0)
            continue;
        const QString change = StorageChange::ofBucket(m_model->history()->storageComparison(), StorageBuckets::rawValue(bucket));
        auto* row = new QTreeWidgetItem(m_legend, {StorageBuckets::title(bucket), StorageChange::withSize(ByteCount::format(bytes), change), share(bytes, total)});
        row->setIcon(legendTitle, StorageBucketStyle::swatch(StorageBucketStyle::colour(bucket)));
        row->setData(legendTitle, bucketRole, static_cast<int>(bucket));
        row->setSelected(m_bucket == bucket);
    }
    if (report->notMeasured() > 0) {
        auto* row = new QTreeWidgetItem(m_legend, {StorageBuckets::remainderTitle(), ByteCount::format(report->notMeasured()),
                                                   share(report->notMeasured(), total)});
        row->setIcon(legendTitle, StorageBucketStyle::swatch(StorageBucketStyle::remainderColour()));
        row->setData(legendTitle, bucketRole, -1);
        //: Tooltip of the remainder in the storage legend
        row->setToolTip(legendTitle, tr("The system, other accounts and data that can't be read without more access."));
    }
    for (int column : {legendSize, legendShare}) {
        for (int i = 0; i < m_legend->topLevelItemCount(); ++i)
            m_legend->topLevelItem(i)->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
}

void StoragePage::refreshDetails()
{
    m_details->clear();
    m_back->setEnabled(m_bucket.has_value());
    const auto& report = m_model->storageReport();
    if (!report || !m_bucket) {
        //: Above the storage drill-down before a kind of data is chosen
        m_place->setText(report ? tr("Choose a kind of data") : QString());
        return;
    }
    if (m_folder) {
        for (const StorageReport::FolderUsage& folder : report->foldersOf(*m_bucket)) {
            if (folder.path == *m_folder)
                return fillFolder(folder, *m_bucket);
        }
        m_folder.reset();
    }
    fillFolders(*report, *m_bucket);
}

void StoragePage::fillFolders(const StorageReport& report, StorageBucket bucket)
{
    m_place->setText(StorageBuckets::title(bucket));
    const QList<StorageReport::FolderUsage>& folders = report.foldersOf(bucket);
    m_bars->setMaximum(folders.isEmpty() ? 0 : folders.first().bytes);
    for (const StorageReport::FolderUsage& folder : folders) {
        QTreeWidgetItem* row = addDetail(shortPath(folder.path), folder.bytes, StorageFolders::fileCount(folder.fileCount), bucket);
        row->setData(detailName, pathRole, folder.path);
        row->setData(detailName, rowKindRole, folderRow);
        row->setText(detailSize, StorageChange::withSize(row->text(detailSize), StorageChange::ofFolder(
            m_model->history()->storageComparison(), StorageBuckets::rawValue(bucket), folder.path)));
        row->setIcon(detailName, m_folderIcon);
        row->setToolTip(detailName, folder.path);
    }
    FolderActions::markGone(m_details, pathRole, m_model);
}

void StoragePage::fillFolder(const StorageReport::FolderUsage& folder, StorageBucket bucket)
{
    m_place->setText(StorageBuckets::title(bucket) + QStringLiteral("  ›  ") + shortPath(folder.path));
    QList<QPair<QString, StorageReport::SubfolderUsage>> groups;
    for (auto group = folder.subfolders.cbegin(); group != folder.subfolders.cend(); ++group)
        groups.append({group.key(), group.value()});
    std::sort(groups.begin(), groups.end(), [](const auto& a, const auto& b) { return a.second.bytes > b.second.bytes; });
    qint64 largest = groups.isEmpty() ? 0 : groups.first().second.bytes;
    largest = std::max(largest, folder.files.isEmpty() ? 0 : folder.files.first().bytes);
    m_bars->setMaximum(largest);
    for (const auto& [name, usage] : groups) {
        //: Storage drill-down: the files that lie directly in the folder, not in a sub-folder
        QTreeWidgetItem* row = addDetail(name.isEmpty() ? tr("Files in this folder") : name + QLatin1Char('/'),
                                         usage.bytes, StorageFolders::fileCount(usage.fileCount), bucket);
        row->setData(detailName, pathRole, name.isEmpty() ? folder.path : folder.path + QLatin1Char('/') + name);
        row->setData(detailName, rowKindRole, groupRow);
        row->setIcon(detailName, m_folderIcon);
    }
    for (const StorageReport::FileUsage& file : folder.files) {
        QTreeWidgetItem* row = addDetail(file.path.mid(folder.path.size() + 1), file.bytes, {}, bucket);
        row->setData(detailName, pathRole, file.path);
        row->setData(detailName, rowKindRole, fileRow);
        row->setIcon(detailName, m_fileIcon);
        row->setToolTip(detailName, file.path);
    }
    FolderActions::markGone(m_details, pathRole, m_model);
}

QTreeWidgetItem* StoragePage::addDetail(const QString& name, qint64 bytes, const QString& count, StorageBucket bucket)
{
    auto* row = new QTreeWidgetItem(m_details, {name, ByteCount::format(bytes), count});
    row->setData(detailSize, SizeBarDelegate::bytesRole, bytes);
    row->setData(detailSize, SizeBarDelegate::colourRole, StorageBucketStyle::colour(bucket));
    row->setTextAlignment(detailSize, Qt::AlignRight | Qt::AlignVCenter);
    row->setTextAlignment(detailFiles, Qt::AlignRight | Qt::AlignVCenter);
    row->setSizeHint(detailName, QSize(0, fontMetrics().height() + 14));
    return row;
}

void StoragePage::showBuckets()
{
    m_bucket.reset();
    m_folder.reset();
    refreshRing();
    refreshLegend();
    refreshDetails();
}

void StoragePage::showBucket(StorageBucket bucket)
{
    m_views->setCurrentIndex(kindsTab);
    m_bucket = bucket;
    m_folder.reset();
    refreshRing();
    refreshLegend();
    refreshDetails();
}

void StoragePage::showFolder(const QString& path)
{
    m_folder = path;
    refreshDetails();
}

void StoragePage::legendChosen(QTreeWidgetItem* item)
{
    const int bucket = item->data(legendTitle, bucketRole).toInt();
    if (bucket >= 0)
        showBucket(static_cast<StorageBucket>(bucket));
}

void StoragePage::ringClicked(int index)
{
    if (const auto bucket = m_ringBuckets.value(index))
        showBucket(*bucket);
}

void StoragePage::detailActivated(QTreeWidgetItem* item)
{
    if (item->data(detailName, rowKindRole).toInt() == folderRow)
        showFolder(item->data(detailName, pathRole).toString());
}

void StoragePage::showDetailMenu(const QPoint& at)
{
    QTreeWidgetItem* item = m_details->itemAt(at);
    if (!item)
        return;
    const QString path = item->data(detailName, pathRole).toString();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // "Files in this folder" stands for the loose files, not the folder that holds them.
    if (path == m_folder)
        menu->addAction(Reveal::title(), menu, [this, path] { Reveal::show(m_model, path); });
    else
        FolderActions::addTo(menu, m_model, path, item->data(detailSize, SizeBarDelegate::bytesRole).toLongLong(), window());
    menu->popup(m_details->viewport()->mapToGlobal(at));
}

QString StoragePage::shortPath(const QString& path) const
{
    return PathRules::withTilde(path, m_model->settings()->home());
}
