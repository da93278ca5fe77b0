#include "format/RelativeDate.h"
#include "scan/InstallersScanner.h"
#include "scan/OldDownloadsScanner.h"
#include "support/LockedFolders.h"
#include "support/ScanRows.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

namespace {

constexpr qint64 day = 86'400;

// A fixture home folder with Downloads and Desktop, scanned at a fixed moment.
class DownloadsScannersTest : public ::testing::Test {
protected:
    DownloadsScannersTest() { context.home = tree.dir(QStringLiteral("home")); }

    QString aged(const QString& relative, qint64 days, qint64 size = 10) const
    {
        const QString path = relative.endsWith(QLatin1Char('/')) ? tree.dir(QStringLiteral("home/") + relative.chopped(1))
                                                                  : tree.file(QStringLiteral("home/") + relative, size);
        tree.setTimes(path.mid(tree.root().size() + 1), context.now.toSecsSinceEpoch() - days * day);
        return path;
    }

    template <typename ScannerType>
    ScanOutput scanned(CategoryID category) const
    {
        return ScannerType().scan(context).at(category);
    }

    TempTree tree;
    ScanContext context;
};

}  // namespace

TEST_F(DownloadsScannersTest, OldDownloadsAreNinetyDaysQuietAndLeaveInstallersAndLargeFilesAlone)
{
    aged(QStringLiteral("Downloads/89-days.pdf"), 89);
    aged(QStringLiteral("Downloads/91-days.pdf"), 91);
    aged(QStringLiteral("Downloads/Tool.DMG"), 400);
    tree.sparseFile(QStringLiteral("home/Downloads/movie.mov"), 300'000'000);
    tree.setTimes(QStringLiteral("home/Downloads/movie.mov"), context.now.toSecsSinceEpoch() - 400 * day);
    aged(QStringLiteral("Downloads/.DS_Store"), 400);
    aged(QStringLiteral("Downloads/unpacked/inside/old.txt"), 400);
    aged(QStringLiteral("Downloads/unpacked/inside/"), 400);
    aged(QStringLiteral("Downloads/unpacked/"), 400);
    aged(QStringLiteral("Downloads/touched/old.txt"), 400);
    aged(QStringLiteral("Downloads/touched/recent.txt"), 3);
    aged(QStringLiteral("Downloads/touched/"), 400);

    const ScanOutput output = scanned<OldDownloadsScanner>(CategoryID::oldDownloads);
    EXPECT_EQ(titlesOf(output.items), QStringList({"91-days.pdf", "unpacked"}));
    EXPECT_TRUE(output.notes.isEmpty());
    for (const CleanupItem& item : output.items) {
        EXPECT_EQ(item.badge, item.title == QLatin1String("unpacked") ? std::optional<QString>("Folder") : std::nullopt);
        EXPECT_EQ(item.safety(context.home), Safety::askAI);
        EXPECT_TRUE(RelativeDate::expand(item.detail).startsWith(QLatin1String("last changed "))) << qPrintable(item.detail);
    }
}

TEST_F(DownloadsScannersTest, UnreadableDownloadsGiveANoteAndNoRows)
{
    aged(QStringLiteral("Downloads/old.pdf"), 400);
    tree.dir(QStringLiteral("home/Desktop"));
    tree.file(QStringLiteral("home/Desktop/locked/Setup.pkg"), 10);

    const auto seen = withFoldersLocked(tree, {tree.path(QStringLiteral("home/Downloads")), tree.path(QStringLiteral("home/Desktop/locked"))}, [&] {
        const ScanOutput downloads = scanned<OldDownloadsScanner>(CategoryID::oldDownloads);
        const ScanOutput installers = scanned<InstallersScanner>(CategoryID::installers);
        return (QStringList{QString::number(downloads.items.size())} + downloads.notes
                + QStringList{QString::number(installers.items.size())} + installers.notes).join(QLatin1Char('|')).toUtf8();
    });
    ASSERT_TRUE(seen.has_value()) << cannotLockFolders;
    EXPECT_EQ(*seen, "0|Downloads couldn't be read: its permissions don't let you open it."
                     "|0|Some folders couldn't be read: their permissions don't let you open them.");
}

TEST_F(DownloadsScannersTest, InstallersAreFoundByExtensionOutsideAppsAndLinks)
{
    aged(QStringLiteral("Downloads/Setup.DMG"), 3);
    aged(QStringLiteral("Downloads/Xcode_15.xip"), 3);
    aged(QStringLiteral("Downloads/a/b/Deep.mpkg"), 3);
    aged(QStringLiteral("Downloads/a/b/c/TooDeep.pkg"), 3);
    tree.dir(QStringLiteral("home/Downloads/Legacy.pkg/Contents"));  // a bundle package is one row
    aged(QStringLiteral("Downloads/Some.app/Contents/Resources/Helper.pkg"), 3);
    aged(QStringLiteral("Desktop/driver.pkg"), 3);
    aged(QStringLiteral("Desktop/notes.dmg.txt"), 3);
    tree.symlink(QStringLiteral("home/Desktop/elsewhere"), tree.dir(QStringLiteral("outside")));
    aged(QStringLiteral("../outside/Other.dmg"), 3);

    const ScanOutput output = scanned<InstallersScanner>(CategoryID::installers);
    QStringList titles = titlesOf(output.items);
    titles.sort();
    EXPECT_EQ(titles, QStringList({"Deep.mpkg", "Legacy.pkg", "Setup.DMG", "Xcode_15.xip", "driver.pkg"}));
    EXPECT_TRUE(output.notes.isEmpty());
    for (const CleanupItem& item : output.items) {
        if (item.title == QLatin1String("Deep.mpkg")) {
            EXPECT_EQ(RelativeDate::expand(item.detail, context.now), "~/Downloads/a/b · changed 3 days ago");
        }
    }
    EXPECT_TRUE(InstallersScanner::isInstaller(QStringLiteral("A.Pkg")));
    EXPECT_FALSE(InstallersScanner::isInstaller(QStringLiteral("notes.debian")));
    EXPECT_FALSE(InstallersScanner::isInstaller(QStringLiteral(".dmg")));
}
