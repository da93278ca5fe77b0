// A scan only reads: a full scan of every scanner, by the report tool, leaves a fixture home and
// an empty home exactly as they were. The same scan of the fixture home ends every registered
// category done and lists a developer's rows (one walk gives builds, worktrees, large files and
// copies) in their own categories. The tool runs as the person's session would: HOME is the
// scanned home and no XDG variable moves the tools' own folders elsewhere, so a tool that writes
// its folders into the home (flatpak made ~/.local/share/flatpak and ~/.cache) is caught.
#include "scan/ProjectScannerGit.h"
#include "scan/ScannerCatalog.h"
#include "support/CliScan.h"
#include "support/TempTree.h"
#include "support/TreeSnapshot.h"

#include <QFile>
#include <QMap>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

// Runs a full scan of `home` as the person's session would run it.
CliScan scanAsTheSession(const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "FLATPAK_USER_DIR"})
        environment.remove(QString::fromLatin1(name));
    QProcess cli;
    cli.setProcessEnvironment(environment);
    cli.setWorkingDirectory(home);
    cli.start(QStringLiteral(DUSTLARK_CLI), {"scan", "--home", home, "--json"});
    const CliScan scan = CliScan::of(ProgramRun::finish(cli));
    EXPECT_EQ(scan.program.exitCode, 0) << scan.program.standardError.constData();
    return scan;
}

// The developer's rows of the fixture home, each in its category: the one walk feeds them all.
void expectDeveloperRows(const CliScan& scan, const TempTree& tree)
{
    const auto ids = [&](const char* category) {
        QStringList ids;
        for (const QJsonValue& row : scan.items(QString::fromLatin1(category)))
            ids.append(row["id"].toString());
        ids.sort();
        return ids;
    };
    EXPECT_EQ(ids("projects"), QStringList{tree.path("home/code/web/node_modules")});
    EXPECT_EQ(ids("worktrees"), QStringList{tree.path("home/code/app-feature")});
    EXPECT_EQ(ids("largeFiles"), QStringList{tree.path("home/media/movie.mov")});
    EXPECT_EQ(ids("duplicates"), QStringList({tree.path("home/backup/report.pdf"), tree.path("home/docs/report.pdf")}));
}

// What each scanner reads: builds, a git repository with a worktree, copies, large files,
// caches, downloads, the Trash, app and Flatpak data, agents' folders.
void buildFixtureHome(const TempTree& tree)
{
    tree.file("home/code/web/package.json");
    tree.file("home/code/web/node_modules/left-pad/index.js", 4000);
    tree.file("home/code/app/README", QByteArray("hello\n"));
    ProjectScannerGit::initRepository(tree.path("home/code/app"));
    ProjectScannerGit::run(tree.path("home/code/app"), {"worktree", "add", "-q", "-b", "feature", tree.path("home/code/app-feature")});
    tree.file("home/code/app-feature/notes.txt", QByteArray("uncommitted\n"));
    tree.sparseFile("home/media/movie.mov", 250'000'000);
    tree.file("home/docs/report.pdf", 1'500'000, 'r');
    tree.file("home/backup/report.pdf", 1'500'000, 'r');
    tree.file("home/.cache/pip/http/a/b/c", 20'000'000);
    tree.file("home/.npm/_cacache/content-v2/x", 2'000'000);
    tree.file("home/Downloads/Setup.dmg", 10);
    tree.file("home/Downloads/old.zip", 10);
    tree.file("home/.local/share/Trash/files/junk.txt", 5000);
    tree.file("home/.local/share/Trash/info/junk.txt.trashinfo", QByteArray("[Trash Info]\nPath=/junk.txt\nDeletionDate=2024-01-01T00:00:00\n"));
    tree.file("home/.var/app/org.gone.Browser/data/History", 100);
    tree.file("home/.config/google-chrome/Default/Cache/data_1", 1000);
    tree.file("home/.claude/projects/p/session.jsonl", 1000);
    tree.file("home/.android/avd/Pixel.avd/userdata.img", 1000);
    tree.file("home/tmp/scratch.txt", 10);
    tree.symlink("home/link-out", "/etc");
}

}  // namespace

TEST(ReadOnlyScan, AFullScanEndsEveryCategoryAndLeavesAFixtureHomeAndAnEmptyHomeAsTheyWere)
{
    TempTree tree;
    buildFixtureHome(tree);
    const QString empty = tree.dir("empty");
    for (const QString& home : {tree.path("home"), empty}) {
        const QMap<QString, QString> before = treeSnapshot(home);
        const CliScan scan = scanAsTheSession(home);
        const QMap<QString, QString> after = treeSnapshot(home);
        for (const auto& scanner : ScannerCatalog::all()) {
            for (CategoryID filled : scanner->categories())
                EXPECT_EQ(scan.category(Categories::rawValue(filled))["state"].toString(), "done") << qPrintable(Categories::rawValue(filled));
        }
        if (home != empty)
            expectDeveloperRows(scan, tree);
        for (auto it = after.cbegin(); it != after.cend(); ++it)
            EXPECT_EQ(before.value(it.key(), "(new)").toStdString(), it.value().toStdString()) << qPrintable(home + it.key());
        for (auto it = before.cbegin(); it != before.cend(); ++it)
            EXPECT_TRUE(after.contains(it.key())) << "gone: " << qPrintable(home + it.key());
    }
}
