#include "actions/DiskSpace.h"
#include "actions/FinderTrash.h"
#include "actions/FreedesktopTrash.h"
#include "actions/SystemAccess.h"
#include "actions/ToolStandIn.h"
#include "platform/Platform.h"
#include "support/FileLook.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

ProcessRunner::Output failed(const QString& standardError, bool timedOut = false)
{
    return {1, QString(), standardError, timedOut};
}

TEST(SystemAccess, MapsFinderEmptyTrashErrors)
{
    const struct {
        ProcessRunner::Output output;
        const char* sentence;
    } rows[] = {
        {failed(QString(), true), "Finder is still emptying the Trash; it finishes on its own."},
        {failed(QStringLiteral("0:77: execution error: Not authorized to send Apple events to Finder. (-1743)\n")),
         "macOS didn't allow Dustlark to control Finder. Allow it in System Settings › Privacy & Security › Automation."},
        {failed(QStringLiteral("0:77: execution error: Finder got an error: AppleEvent timed out. (-1712)")),
         "Finder is still emptying the Trash; it finishes on its own."},
        {failed(QStringLiteral("0:77: execution error: Finder got an error: User canceled. (-128)")),
         "Emptying the Trash was stopped in Finder. What was already removed is gone."},
        {failed(QStringLiteral("0:77: execution error: Finder got an error: The operation can’t be completed because the item “report.pdf” is in use. (-8003)\n")),
         "Finder couldn't empty the whole Trash: The operation can’t be completed because the item “report.pdf” is in use. Quit the app that uses it and empty the Trash again."},
        {failed(QStringLiteral("0:77: execution error: Finder got an error: Some items couldn’t be deleted. (-8086)")),
         "Finder couldn't empty the whole Trash: Some items couldn’t be deleted. Empty the Trash again or use Finder."},
        {failed(QStringLiteral("osascript: no such component\n")), "osascript: no such component"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(SystemAccess::trashFailure(row.output), QString::fromUtf8(row.sentence)) << row.sentence;
}

TEST(SystemAccess, MapsFinderTrashErrorsOfAnAppRemoval)
{
    EXPECT_EQ(FinderTrash::failureReason(failed(QStringLiteral("0:120: execution error: Finder got an error: User canceled. (-128)\n"))),
              QStringLiteral("The administrator password wasn't entered."));
    EXPECT_EQ(FinderTrash::failureReason(failed(QStringLiteral("0:120: execution error: Finder got an error: The item “Tool.app” is locked. (-10004)\n"))),
              QStringLiteral("Finder couldn't move it to the Trash: The item “Tool.app” is locked."));
}

TEST(SystemAccess, AsksFinderWithThePathAsAnArgumentNeverInTheScript)
{
    const ToolStandIn osascript(QStringLiteral("osascript-standin"), QStringLiteral("osascript"));
    const QString path = QStringLiteral("/Applications/Odd \"name\" end tell.app");
    EXPECT_EQ(FinderTrash::moveToTrash(path, osascript.path()), std::nullopt);
    const QStringList arguments = osascript.calls();
    ASSERT_FALSE(arguments.isEmpty());
    EXPECT_EQ(arguments.last(), path);
    EXPECT_TRUE(arguments.contains(QStringLiteral("tell application \"Finder\" to delete (POSIX file (item 1 of argv) as alias)")));
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i)
        EXPECT_FALSE(arguments[i].contains(QStringLiteral("Odd"))) << qPrintable(arguments[i]);

    osascript.answerEveryCall({}, 1, QStringLiteral("0:120: execution error: Finder got an error: User canceled. (-128)\n"));
    EXPECT_EQ(FinderTrash::moveToTrash(path, osascript.path()), QStringLiteral("The administrator password wasn't entered."));
}

// Emptying says how far it is, item by item, and a stop ends it between items: what was
// removed is gone with its info file, what stays can still be put back. Read-only folders go,
// a link in the Trash is removed and never followed, and an info file without its object and
// what another tool left in "expunged" go too.
TEST(SystemAccess, EmptyingTheFreedesktopTrashCountsItemsAndStopsBetweenThem)
{
    if (Platform::desktop() != Platform::Desktop::freedesktop)
        GTEST_SKIP() << "the freedesktop trash is Linux's";
    TempTree home;
    const QString trash = FreedesktopTrash::homeTrash();
    QDir(trash).removeRecursively();
    for (const char* name : {"a.log", "b.log"})
        ASSERT_TRUE(QFile::moveToTrash(home.file(QString::fromLatin1(name), 10)));
    const QString linkTarget = home.file(QStringLiteral("keep/important.txt"), 10);
    ASSERT_TRUE(QFile::moveToTrash(home.symlink(QStringLiteral("shortcut"), home.path(QStringLiteral("keep")))));
    home.file(QStringLiteral("mod@v1/go.sum"), 10);
    ASSERT_TRUE(QFile::moveToTrash(home.path(QStringLiteral("mod@v1"))));
    ASSERT_EQ(::chmod(QFile::encodeName(trash + QStringLiteral("/files/mod@v1")).constData(), 0555), 0);

    QList<QPair<int, int>> heard;
    CancellationToken stop;
    const std::optional<QString> answer = SystemAccess::emptyTrash([&](int removed, int total) {
        heard.append({removed, total});
        if (removed == 2)
            stop.cancel();
    }, &stop);
    EXPECT_EQ(answer, FreedesktopTrash::stoppedSentence());
    EXPECT_EQ(heard, (QList<QPair<int, int>>{{0, 4}, {1, 4}, {2, 4}}));
    EXPECT_EQ(entriesOf(trash + QStringLiteral("/files")).size(), 2);
    EXPECT_EQ(entriesOf(trash + QStringLiteral("/info")).size(), 2) << "each info file goes with its object and only with it";

    home.file(QStringLiteral("orphan"), 1);
    ASSERT_TRUE(QFile::copy(home.path(QStringLiteral("orphan")), trash + QStringLiteral("/info/ghost.trashinfo")));
    QDir().mkpath(trash + QStringLiteral("/expunged/123"));
    heard.clear();
    EXPECT_EQ(SystemAccess::emptyTrash([&](int removed, int total) { heard.append({removed, total}); }), std::nullopt);
    EXPECT_EQ(heard, (QList<QPair<int, int>>{{0, 2}, {1, 2}, {2, 2}}));
    EXPECT_TRUE(entriesOf(trash + QStringLiteral("/files")).isEmpty());
    EXPECT_TRUE(entriesOf(trash + QStringLiteral("/info")).isEmpty());
    EXPECT_FALSE(QFileInfo::exists(trash + QStringLiteral("/expunged/123")));
    EXPECT_TRUE(QFileInfo::exists(linkTarget)) << "a link in the Trash is removed, never followed";
    EXPECT_EQ(SystemAccess::emptyTrash(), std::nullopt) << "an empty Trash empties without complaint";
}

// A Trash whose "files" or "info" folder, or a folder above it, is a link already when Empty
// Trash starts is not emptied: the sentence names the link, and nothing is removed, neither
// where the link points nor in the Trash.
TEST(SystemAccess, EmptyTrashRefusesATrashReachedThroughALinkAndRemovesNothing)
{
    if (Platform::desktop() != Platform::Desktop::freedesktop)
        GTEST_SKIP() << "the freedesktop trash is Linux's";
    const QString trash = FreedesktopTrash::homeTrash();
    TempTree home;
    const QString documents = home.dir(QStringLiteral("Documents"));
    home.file(QStringLiteral("Documents/thesis.odt"), 10);
    home.file(QStringLiteral("Documents/thesis.odt.trashinfo"), 10);
    home.file(QStringLiteral("elsewhere/Trash/files/kept"), 10);
    home.dir(QStringLiteral("elsewhere/Trash/info"));
    const auto sentence = [](const QString& path) {
        return QStringLiteral("Nothing was removed: %1 is a symbolic link, not the Trash's own folder.").arg(path);
    };
    struct Case {
        QString linked;  // inside the Trash, made a link
        QString target;
    };
    const QList<Case> cases = {
        {QStringLiteral("files"), documents},
        {QStringLiteral("info"), documents},
        {QString(), home.path(QStringLiteral("elsewhere/Trash"))},  // the Trash folder itself
    };
    for (const Case& shape : cases) {
        QDir(trash).removeRecursively();
        QFile(trash).remove();
        for (const char* part : {"files/old.txt", "info/old.txt.trashinfo"}) {
            QDir().mkpath(QFileInfo(trash + QLatin1Char('/') + QLatin1String(part)).path());
            QFile file(trash + QLatin1Char('/') + QLatin1String(part));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        const QString link = shape.linked.isEmpty() ? trash : trash + QLatin1Char('/') + shape.linked;
        const QString aside = link + QStringLiteral(".real");
        ASSERT_TRUE(QDir().rename(link, aside));
        ASSERT_EQ(::symlink(QFile::encodeName(shape.target).constData(), QFile::encodeName(link).constData()), 0);

        EXPECT_EQ(FreedesktopTrash::empty(), sentence(link)) << qPrintable(link);
        EXPECT_EQ(entriesOf(documents), QStringList({QStringLiteral("thesis.odt"), QStringLiteral("thesis.odt.trashinfo")}));
        EXPECT_EQ(entriesOf(home.path(QStringLiteral("elsewhere/Trash/files"))), QStringList{QStringLiteral("kept")});
        ::unlink(QFile::encodeName(link).constData());
        QDir().rename(aside, link);
        EXPECT_EQ(entriesOf(trash + QStringLiteral("/files")), QStringList{QStringLiteral("old.txt")}) << "the Trash is left as it was";
        EXPECT_EQ(entriesOf(trash + QStringLiteral("/info")), QStringList{QStringLiteral("old.txt.trashinfo")});
    }
    EXPECT_EQ(FreedesktopTrash::empty(), std::nullopt) << "once the links are gone it empties";
    EXPECT_TRUE(entriesOf(trash + QStringLiteral("/files")).isEmpty());
}

TEST(SystemAccess, AnswersForLinux)
{
    if (Platform::desktop() != Platform::Desktop::freedesktop)
        GTEST_SKIP() << "Linux answers";
    TempTree home;
    EXPECT_TRUE(SystemAccess::hasFullDiskAccess(home.root()));  // Linux has no such permission
    EXPECT_FALSE(SystemAccess::openFullDiskAccessSettings());
    EXPECT_TRUE(SystemAccess::canOpenForReading(home.file(QStringLiteral("TCC.db"), 1)));
    EXPECT_FALSE(SystemAccess::canOpenForReading(home.path(QStringLiteral("missing.db"))));

    const QString file = home.file(QStringLiteral("Downloads/a.zip"), 1);
    EXPECT_EQ(SystemAccess::revealCommand(file).last(), home.path(QStringLiteral("Downloads")));
    EXPECT_EQ(SystemAccess::revealCommand(home.path(QStringLiteral("Downloads/gone.zip"))).last(), home.path(QStringLiteral("Downloads")));
}

TEST(DiskSpace, ReadsTheVolumeOfTheHomeFolder)
{
    TempTree home;
    const std::optional<DiskSpace> space = DiskSpace::current(home.root());
    ASSERT_TRUE(space.has_value());
    EXPECT_GT(space->total, 0);
    EXPECT_GE(space->available, 0);
    EXPECT_LE(space->available, space->total);
    EXPECT_FALSE(DiskSpace::current(home.path(QStringLiteral("no/such/folder"))).has_value());
}

}  // namespace
