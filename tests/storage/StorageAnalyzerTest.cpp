// The analysis over real fixture homes, held to du: hard links, sparse files, packages, the
// forced folders, unreadable folders and names that are not valid UTF-8.
#include "StorageFixture.h"

#include "storage/StorageAnalyzer.h"
#include "storage/StorageWalker.h"
#include "support/LockedFolders.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const StorageReport::FolderUsage* usageAt(const StorageReport& report, StorageBucket bucket, const QString& path)
{
    for (const StorageReport::FolderUsage& usage : report.foldersOf(bucket)) {
        if (usage.path == path)
            return &usage;
    }
    return nullptr;
}

class StorageAnalyzerTest : public ::testing::Test, public StorageFixture {
protected:
    qint64 duOf(const QString& relative) const { return du({home + '/' + relative}); }
};

}  // namespace

TEST_F(StorageAnalyzerTest, BucketTotalsAddUpToDuOfTheRootsWithHardLinksOnce)
{
    file("Pictures/a.jpg", 300'000);
    file("Documents/report.pdf", 120'000);
    file("Documents/shared.bin", 250'000);
    tree.hardlink("home/code/shop/shared.bin", "home/Documents/shared.bin");
    tree.hardlink("home/code/shop/again.bin", "home/Documents/shared.bin");
    tree.sparseFile("home/Movies/big.mov", 2'000'000'000);
    file("code/shop/node_modules/pkg/index.js", 10'000);
    file("Library/Caches/com.example/cache.db", 70'000);
    file("loose.iso", 90'000);
    tree.file("Applications/Tool.app/Contents/MacOS/tool", 40'000);
    tree.symlink("home/code/link-to-pictures", home + "/Pictures");

    const StorageReport report = analyzed();
    EXPECT_EQ(report.measured(), du(roots()));
    EXPECT_LT(report.total(StorageBucket::videos), 1'000'000) << "a sparse file counts its blocks, not its length";
    // The linked file is counted in the first root that holds it ("Documents" sorts before "code").
    const auto* documents = usageAt(report, StorageBucket::other, home + "/Documents");
    ASSERT_NE(documents, nullptr);
    EXPECT_EQ(documents->fileCount, 1);
    const auto* code = usageAt(report, StorageBucket::other, home + "/code");
    ASSERT_NE(code, nullptr);
    EXPECT_EQ(code->fileCount, 2) << "a symbolic link and the hard link, once within its root";
}

TEST_F(StorageAnalyzerTest, ForcedFoldersAndPackagesCountWhole)
{
    file("Pictures/a.jpg", 300'000);
    file("Pictures/2023/summer/b.png", 200'000);
    file("Pictures/Old.photoslibrary/database/notes.txt", 50'000);
    file("Pictures/Old.photoslibrary/originals/x.heic", 100'000);
    file("Pictures/Old.photoslibrary/originals/node_modules/y.js", 10'000);
    file("code/shop/node_modules/pkg/node_modules/deep/index.js", 10'000);
    file("code/shop/node_modules/pkg/photo.png", 30'000);
    file("Library/Application Support/Some App/state.json", 20'000);
    file("Library/Application Support/MobileSync/Backup/0001/Manifest.db", 80'000);
    tree.file("Applications/Tool.app/Contents/Resources/cover.jpg", 40'000);
    const StorageReport report = analyzed();

    const auto* library = usageAt(report, StorageBucket::photos, home + "/Pictures/Old.photoslibrary");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library->bytes, duOf("Pictures/Old.photoslibrary")) << "its text file and folders too";
    EXPECT_EQ(library->fileCount, 3);
    const auto* pictures = usageAt(report, StorageBucket::photos, home + "/Pictures");
    ASSERT_NE(pictures, nullptr);
    EXPECT_EQ(pictures->fileCount, 2);
    EXPECT_EQ(pictures->subfolders.keys(), (QStringList{QString(), QStringLiteral("2023")}));
    EXPECT_EQ(pictures->subfolders.value(QStringLiteral("2023")).fileCount, 1);

    const auto* modules = usageAt(report, StorageBucket::developer, home + "/code/shop/node_modules");
    ASSERT_NE(modules, nullptr);
    EXPECT_EQ(modules->bytes, duOf("code/shop/node_modules")) << "nested node_modules and images inside belong to it";
    EXPECT_EQ(report.foldersOf(StorageBucket::developer).size(), 1);

    const auto* backups = usageAt(report, StorageBucket::deviceBackups, home + "/Library/Application Support/MobileSync");
    ASSERT_NE(backups, nullptr) << "the full-path row holds inside Application Support";
    EXPECT_EQ(backups->bytes, duOf("Library/Application Support/MobileSync"));
    EXPECT_EQ(report.total(StorageBucket::appData) + report.total(StorageBucket::deviceBackups),
              duOf("Library/Application Support"));
    const auto* app = usageAt(report, StorageBucket::apps, applications + "/Tool.app");
    ASSERT_NE(app, nullptr);
    EXPECT_EQ(app->bytes, du({applications + "/Tool.app"}));
}

TEST_F(StorageAnalyzerTest, ProtectedLibraryFoldersNeedFullDiskAccess)
{
    file("Library/Mail/V10/message.emlx", 60'000);
    file("Library/Caches/cache.db", 20'000);
    const StorageReport without = analyzed(false);
    EXPECT_EQ(without.total(StorageBucket::mail), 0);
    ASSERT_FALSE(without.notes.isEmpty());
    EXPECT_EQ(without.notes.first(), "Without Full Disk Access, app containers, Mail, Messages and Safari data aren't "
                                     "measured and fall under macOS and system data.");
    EXPECT_FALSE(without.measuredWithFullDiskAccess);
    EXPECT_EQ(without.measured(), du(roots(false)));

    const StorageReport with = analyzed(true);
    EXPECT_EQ(with.total(StorageBucket::mail), duOf("Library/Mail"));
    EXPECT_TRUE(with.notes.isEmpty());
}

TEST_F(StorageAnalyzerTest, OddNamesAreCountedAndVanishedRootsSkipped)
{
    file("Documents/plain.pdf", 40'000);
    const QByteArray odd = QFile::encodeName(home) + "/Documents/caf\xe9 \x01.pdf";
    const int descriptor = ::open(odd.constData(), O_WRONLY | O_CREAT, 0644);
    ASSERT_GE(descriptor, 0);
    ASSERT_EQ(::ftruncate(descriptor, 0), 0);
    ASSERT_EQ(::write(descriptor, QByteArray(40'000, 'x').constData(), 40'000), 40'000);
    ::close(descriptor);

    const StorageReport report = analyzed();
    EXPECT_EQ(report.total(StorageBucket::documents), 2 * 40'960) << "both PDFs, by their raw names";
    ::unlink(odd.constData());  // the temporary folder's clean-up reads names as text
    // A root given that is gone by the time it is walked adds nothing and breaks nothing.
    const BucketRules rules(QFile::encodeName(home));
    const StoragePartial gone = StorageWalker(rules, nullptr, nullptr).walk(QFile::encodeName(home) + "/vanished");
    EXPECT_EQ(StorageAnalyzer::merge({gone}).measured(), 0);
}

TEST_F(StorageAnalyzerTest, UnreadableFoldersFallIntoTheRemainderWithANote)
{
    file("Documents/open.pdf", 40'000);
    file("Documents/private/secret.pdf", 400'000);
    const auto measured = withFoldersLocked(tree, {home + "/Documents/private"}, [this] {
        const auto report = StorageAnalyzer::analyze(request());
        return report ? QByteArray::number(report->total(StorageBucket::documents)) + '\n' + report->notes.value(0).toUtf8()
                      : QByteArray();
    });
    ASSERT_TRUE(measured.has_value()) << cannotLockFolders;
    const QList<QByteArray> lines = measured->split('\n');
    EXPECT_EQ(lines.value(0).toLongLong(), 40'960);
    EXPECT_TRUE(lines.value(1).startsWith("1 folder couldn't be read")) << lines.value(1).constData();
}

TEST_F(StorageAnalyzerTest, ProgressCountsEveryEntryAndCancellingGivesNoReport)
{
    const QByteArray many = QFile::encodeName(tree.dir(QStringLiteral("home/many")));
    for (int i = 0; i < 100; ++i)
        ::close(::open(many + "/f" + QByteArray::number(i), O_WRONLY | O_CREAT, 0644));
    file("few/a.txt", 10);
    StorageAnalyzer::Request counted = request();
    ASSERT_TRUE(StorageAnalyzer::analyze(counted));
    EXPECT_EQ(counted.progress->snapshot().entries, 100 + 1 + 2 + 1) << "files, folders and the applications folder";

    StorageAnalyzer::Request stopped = request();
    stopped.cancellation.cancel();
    EXPECT_FALSE(StorageAnalyzer::analyze(stopped));
}

TEST_F(StorageAnalyzerTest, ALinuxHomeKeepsItsTrashAndAppDataInTheirOwnBuckets)
{
    if (Platform::desktop() != Platform::Desktop::freedesktop)
        GTEST_SKIP() << "the Linux rows apply on a freedesktop system";
    file(".local/share/Trash/files/old.zip", 90'000);
    file(".local/share/Trash/info/old.zip.trashinfo", 100);
    file(".local/share/app/state.db", 40'000);
    file(".local/bin/tool", 20'000);
    file(".cache/pip/wheel.whl", 30'000);
    file(".config/app/settings.json", 1'000);
    file(".var/app/org.example.App/data.bin", 50'000);
    const StorageReport report = analyzed();
    EXPECT_EQ(report.total(StorageBucket::trash), duOf(".local/share/Trash"));
    EXPECT_EQ(report.total(StorageBucket::appData), duOf(".cache") + duOf(".config") + duOf(".local/share") -
                                                        duOf(".local/share/Trash") + duOf(".var/app"));
    EXPECT_EQ(report.total(StorageBucket::archives), 0) << "a zip in the Trash is Trash";
}

TEST_F(StorageAnalyzerTest, APackageOfSmallFilesIsListedWholeNeverWhatLiesInside)
{
    const QByteArray resources = QFile::encodeName(tree.dir(QStringLiteral("Applications/Tool.app/Contents/Resources")));
    const QByteArray content(100'000, 'x');
    for (int i = 0; i < 1'000; ++i) {
        const int descriptor = ::open(resources + "/r" + QByteArray::number(i), O_WRONLY | O_CREAT, 0644);
        ASSERT_EQ(::write(descriptor, content.constData(), content.size()), content.size());
        ::close(descriptor);
    }
    const StorageReport report = analyzed();
    ASSERT_EQ(report.largeFolders.size(), 1);
    EXPECT_EQ(report.largeFolders.first().path, applications + "/Tool.app");
    EXPECT_EQ(report.largeFolders.first().kind, StorageBucket::apps);
    EXPECT_EQ(report.largeFolders.first().fileCount, 1'000);
    EXPECT_EQ(report.largeFolders.first().bytes, du({applications + "/Tool.app"}));
}

TEST_F(StorageAnalyzerTest, AHomeGivenThroughASymbolicLinkIsMeasured)
{
    file("Documents/a.pdf", 40'000);
    // The link lies on another volume than the home, as /home may on a Linux system.
    QTemporaryDir elsewhere(QStringLiteral("/dev/shm/dustlark-XXXXXX"));
    if (!elsewhere.isValid())
        GTEST_SKIP() << "needs /dev/shm, a second file system";
    StorageAnalyzer::Request linked = request();
    linked.home = elsewhere.filePath(QStringLiteral("home"));
    ASSERT_EQ(::symlink(QFile::encodeName(home).constData(), QFile::encodeName(linked.home).constData()), 0);
    const auto report = StorageAnalyzer::analyze(linked);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->total(StorageBucket::documents), duOf("Documents/a.pdf"));
}
