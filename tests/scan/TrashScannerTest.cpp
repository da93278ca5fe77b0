#include "scan/TrashScanner.h"
#include "support/LockedFolders.h"
#include "support/TempTree.h"
#include "vocabulary/SystemPlaces.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

// The Trash of a fixture home folder: XDG_DATA_HOME points into it while the test runs, so a
// process without privileges can reach it too.
class TrashScannerTest : public ::testing::Test {
protected:
    TrashScannerTest() : dataHome(qgetenv("XDG_DATA_HOME"))
    {
        context.home = tree.dir(QStringLiteral("home"));
        qputenv("XDG_DATA_HOME", QFile::encodeName(tree.dir(QStringLiteral("home/.local/share"))));
        trash = SystemPlaces::trashFolder(context.home);
    }
    ~TrashScannerTest() override { qputenv("XDG_DATA_HOME", dataHome); }

    void put(const QString& relative, qint64 size) const { tree.file(trash.mid(tree.root().size() + 1) + QLatin1Char('/') + relative, size); }

    ScanOutput scanned() const { return TrashScanner().scan(context).at(CategoryID::trash); }

    QByteArray dataHome;
    TempTree tree;
    ScanContext context;
    QString trash;
};

}  // namespace

TEST_F(TrashScannerTest, OneRowWithTheFilesCountedAndMeasured)
{
    EXPECT_TRUE(scanned().items.isEmpty());  // no Trash folder yet: nothing to empty
    put(QStringLiteral("report.pdf"), 10'000);
    put(QStringLiteral("folder/a.txt"), 5'000);
    put(QStringLiteral("folder/b.txt"), 5'000);

    const ScanOutput output = scanned();
    ASSERT_EQ(output.items.size(), 1);
    const CleanupItem& row = output.items.first();
    EXPECT_EQ(row.title, "Trash");
    EXPECT_EQ(row.detail, "3 files");
    EXPECT_GE(row.size, 20'000);
    EXPECT_EQ(row.removal.kind(), Removal::Kind::emptyTrash);
    EXPECT_EQ(row.safety(context.home), Safety::risky);
    EXPECT_TRUE(output.notes.isEmpty());
}

TEST_F(TrashScannerTest, WithoutFullDiskAccessTheRowStaysWithItsSizeUnknown)
{
    context.fullDiskAccess = false;
    const ScanOutput output = scanned();
    ASSERT_EQ(output.items.size(), 1);
    EXPECT_EQ(output.items.first().detail, "Size unknown without Full Disk Access");
    EXPECT_EQ(output.items.first().size, 0);
    EXPECT_EQ(output.items.first().removal.kind(), Removal::Kind::emptyTrash);
    EXPECT_EQ(output.notes, QStringList({"macOS lets Dustlark measure the Trash only with Full Disk Access. "
                                         "Empty Trash works without it."}));
}

TEST_F(TrashScannerTest, UnreadableEntriesAreCountedAsFarAsReadable)
{
    put(QStringLiteral("readable.txt"), 10'000);
    put(QStringLiteral("also-readable.txt"), 10'000);
    put(QStringLiteral("folder/hidden.txt"), 10'000);
    const auto seen = withFoldersLocked(tree, {trash + QStringLiteral("/folder")}, [&] {
        const ScanOutput output = scanned();
        return (QStringList{QString::number(output.items.size()), output.items.value(0).detail} + output.notes)
            .join(QLatin1Char('|')).toUtf8();
    });
    ASSERT_TRUE(seen.has_value()) << cannotLockFolders;
    EXPECT_EQ(*seen, "1|2 files|Some items in the Trash couldn't be read, so its size counts only the rest. "
                     "Empty Trash removes them too.");
}
