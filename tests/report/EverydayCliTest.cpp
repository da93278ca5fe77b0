// The report tool over a fixture home: the everyday categories show exactly the rows the fixture
// calls for. The tool gets fresh, empty /tmp and /var/tmp in a private mount namespace
// (unshare(1), as root), so what other programs keep there never reaches the rows.
#include "support/CliScan.h"
#include "support/TempTree.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr qint64 day = 86'400;
constexpr int namespaceRefused = 77;

QStringList rowsOf(const CliScan& scan, const QString& raw)
{
    QStringList rows;
    for (const QJsonValue& item : scan.items(raw))
        rows.append(item["title"].toString() + " | " + item["badge"].toString() + " | " + item["safety"].toString());
    rows.sort();
    return rows;
}

}  // namespace

TEST(EverydayCli, TheEverydayCategoriesShowExactlyTheFixtureRows)
{
    const QString unshare = QStandardPaths::findExecutable(QStringLiteral("unshare"));
    if (::geteuid() != 0 || unshare.isEmpty() || !QFileInfo(QStringLiteral("/dev/shm")).isDir())
        GTEST_SKIP() << "fresh /tmp and /var/tmp need root, unshare(1) and /dev/shm for the fixture";
    // The fixture lives on /dev/shm, since /tmp is replaced for the tool.
    const TempTree fixture(QStringLiteral("/dev/shm"));
    ASSERT_FALSE(fixture.root().isEmpty());
    const QString home = fixture.path(QStringLiteral("home"));
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const auto put = [&](const QString& relative, qint64 days, qint64 size = 10) {
        fixture.file(QStringLiteral("home/") + relative, size);
        fixture.setTimes(QStringLiteral("home/") + relative, now - days * day);
    };
    put("tmp/notes-31.txt", 31);
    put("Downloads/report-91.pdf", 91);
    put("Downloads/Setup.dmg", 400);
    fixture.sparseFile(QStringLiteral("home/Downloads/movie.mov"), 300'000'000);
    fixture.setTimes(QStringLiteral("home/Downloads/movie.mov"), now - 400 * day);
    put("Library/iTunes/iPad Software Updates/iPad_17.ipsw", 20, 2'000'000);
    put("Library/Application Support/MobileSync/Backup/0001/Manifest.db", 20, 20'000);
    put(".local/share/Trash/files/junk.txt", 1, 5'000);

    const QString script = QStringLiteral(
        "mount -t tmpfs dustlark /tmp && mount -t tmpfs dustlark /var/tmp || exit 77\n"
        "mkdir /tmp/old-build && touch -d @%1 /tmp/old-build/out.o /tmp/old-build\n"
        "touch -d @%2 /tmp/recent.log\n"
        "touch -d @%1 /var/tmp/a.log /var/tmp/b.log\n"
        "exec \"$0\" \"$@\"\n").arg(now - 4 * day).arg(now - 2 * day);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("TMPDIR"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/.local/share"));
    // The tool runs from a copy beside the fixture: a build under /tmp would be hidden by the new
    // /tmp. It needs nothing from its build folder (catalogue and resources are built in).
    const QString tool = fixture.path(QStringLiteral("dustlark-cli"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(DUSTLARK_CLI), tool));
    QStringList arguments = {"--mount", "--propagation", "private", "sh", "-c", script, tool, "scan", "--home", home};
    for (const char* raw : {"temporary", "oldDownloads", "installers", "devices", "trash", "largeFiles"})
        arguments << "--category" << raw;
    const CliScan found = CliScan::of(ProgramRun::run(unshare, arguments << "--json", 120'000, environment));
    if (found.program.exitCode == namespaceRefused)
        GTEST_SKIP() << "this system refuses a private tmpfs mount: " << found.program.standardError.constData();
    ASSERT_EQ(found.program.exitCode, 0) << found.program.standardError.constData();

    EXPECT_EQ(rowsOf(found, "temporary"), QStringList({"2 old files in tmp | System temp | safe",
                                                       "notes-31.txt | Your temp folder | askAI",
                                                       "old-build | System temp | safe"}));
    EXPECT_EQ(rowsOf(found, "oldDownloads"), QStringList({"report-91.pdf |  | askAI"}));
    EXPECT_EQ(rowsOf(found, "installers"), QStringList({"Setup.dmg |  | askAI"}));
    EXPECT_EQ(rowsOf(found, "largeFiles"), QStringList({"~/Downloads/movie.mov |  | risky"}));
    EXPECT_EQ(rowsOf(found, "devices"), QStringList({"iPad_17.ipsw |  | safe", "iPhone or iPad backup | Backup | risky"}));
    EXPECT_EQ(rowsOf(found, "trash"), QStringList({"Trash |  | risky"}));
    EXPECT_EQ(found.items("trash").at(0)["removal"].toString(), "emptyTrash");
    for (const char* raw : {"temporary", "oldDownloads", "installers", "devices", "trash"})
        EXPECT_EQ(found.category(raw)["state"].toString(), "done") << raw;
}
