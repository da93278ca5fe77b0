// The report tool over a fixture home with apps and a Library of installed and removed apps'
// data; which places go with which app is the scanners' rule, here only wired. Leftovers must
// have been quiet for 30 days, and a file's change time can't be set back on a live file
// system, so the home is packed into an ext4 image whose change times debugfs sets in the past,
// and the tool scans it mounted read-only in a private mount namespace. Needs root, loop
// devices, mke2fs and debugfs; skips otherwise.

#include "scan/AppFixture.h"
#include "support/CliScan.h"

#include <QDirIterator>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

const QStringList sbin = {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")};

// Every entry below `source`, as debugfs commands that set its change time two months back.
QByteArray changeTimesCommands(const QString& source)
{
    QByteArray commands = "sif / ctime @" + QByteArray::number(QDateTime::currentSecsSinceEpoch() - 60 * 86400) + "\n";
    const QByteArray when = commands.mid(commands.indexOf('@'));
    QDirIterator entries(source, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext())
        commands += "sif \"" + entries.next().mid(source.size()).toUtf8() + "\" ctime " + when;
    return commands;
}

void setTimesBack(const TempTree& tree, const QString& relative)
{
    const qint64 past = QDateTime::currentSecsSinceEpoch() - 60 * 86400;
    QDirIterator entries(tree.path(relative), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext())
        tree.setTimes(entries.next().mid(tree.root().size() + 1), past);
}

QMap<QString, QJsonObject> itemsByTitle(const QJsonArray& rows)
{
    QMap<QString, QJsonObject> items;
    for (const QJsonValue& item : rows)
        items.insert(item[QStringLiteral("title")].toString(), item.toObject());
    return items;
}

QStringList pathsOf(const QJsonObject& item, const QString& home)
{
    QStringList paths;
    for (const QJsonValue& path : item[QStringLiteral("paths")].toArray())
        paths.append(path.toString().replace(home, QStringLiteral("~")));
    return paths;
}

}  // namespace

TEST(AppsCli, ListsExactlyTheAppsWithTheirDataAndTheRemovedAppsLeftovers)
{
    const QString mke2fs = QStandardPaths::findExecutable(QStringLiteral("mke2fs"), sbin);
    const QString debugfs = QStandardPaths::findExecutable(QStringLiteral("debugfs"), sbin);
    const QString unshare = QStandardPaths::findExecutable(QStringLiteral("unshare"));
    if (::geteuid() != 0 || mke2fs.isEmpty() || debugfs.isEmpty() || unshare.isEmpty())
        GTEST_SKIP() << "needs root, mke2fs, debugfs and unshare to mount a home whose change times lie in the past";

    AppFixture f;
    f.app("home/Applications/Foo.app", "com.foo.Foo");
    f.app("home/Applications/Utilities/Bar Tool.app", "org.bar.Tool");
    f.app("home/Applications/Notes.app", "com.n.Notes");
    f.app("home/Applications/Sticky Notes.app", "com.s.Sticky");
    f.libraryFolder("Caches/com.foo.Foo");
    f.libraryFile("Preferences/com.foo.Foo.plist");
    f.libraryFolder("Application Support/Notes");
    f.libraryFile("Application Support/com.gone.Browser/Profile 1/History");
    f.libraryFile("Application Support/com.gone.Browser/Profile 1/Login Data");
    f.libraryFolder("Caches/com.gone.Browser");
    f.libraryFile("Preferences/org.removed.Tool.plist");
    f.libraryFile(QString::fromUtf8("Application Support/net.ünïcode.App/Données.bin"));
    setTimesBack(f.tree, "home");

    const QString image = f.tree.path("home.ext4");
    const QString mountPoint = f.tree.dir("mnt");
    ASSERT_EQ(ProgramRun::run(mke2fs, {"-q", "-t", "ext4", "-d", f.tree.path("home"), image, "16M"}).exitCode, 0);
    f.tree.file("ctimes", changeTimesCommands(f.tree.path("home")));
    ASSERT_EQ(ProgramRun::run(debugfs, {"-w", "-f", f.tree.path("ctimes"), image}).exitCode, 0);
    const QString script = QStringLiteral("mount -o loop,ro \"$1\" \"$2\" || exit 77; "
                                          "exec \"$3\" scan --home \"$2\" --category apps --category leftovers --json");
    const CliScan scan = CliScan::of(ProgramRun::run(unshare, {"--mount", "--propagation", "private", "sh", "-c", script, "sh",
                                                               image, mountPoint, DUSTLARK_CLI}));
    if (scan.program.exitCode != 0 && scan.program.standardOutput.isEmpty())
        GTEST_SKIP() << "could not mount the image: " << scan.program.standardError.constData();
    const auto apps = itemsByTitle(scan.items("apps"));
    EXPECT_EQ(apps.keys(), QStringList({"Bar Tool", "Foo", "Notes", "Sticky Notes"}));
    EXPECT_EQ(pathsOf(apps["Foo"], mountPoint),
              QStringList({"~/Applications/Foo.app", "~/Library/Caches/com.foo.Foo", "~/Library/Preferences/com.foo.Foo.plist"}));
    EXPECT_EQ(pathsOf(apps["Notes"], mountPoint), QStringList{"~/Applications/Notes.app"});
    EXPECT_TRUE(apps["Notes"]["detail"].toString().endsWith(QString::fromUtf8("“Notes” folder stays: it may belong to Sticky Notes")));

    const auto leftovers = itemsByTitle(scan.items("leftovers"));
    EXPECT_EQ(leftovers.keys(), QStringList({"com.gone.Browser", QString::fromUtf8("net.ünïcode.App"), "org.removed.Tool"}));
    const QJsonObject browser = leftovers["com.gone.Browser"];
    EXPECT_EQ(pathsOf(browser, mountPoint),
              QStringList({"~/Library/Application Support/com.gone.Browser", "~/Library/Caches/com.gone.Browser"}));
    EXPECT_TRUE(browser["detail"].toString().endsWith(" · has saved passwords, browsing history"));
    EXPECT_EQ(leftovers["org.removed.Tool"]["detail"].toString(), "last changed last month · settings and caches only");
}
