// The four tool categories as dustlark-cli shows them, with stand-ins or real processes in
// place of the tools.
#include "actions/ToolStandIn.h"
#include "machinery/ToolLocations.h"
#include "support/TempTree.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

struct CliRun {
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

// Runs the report tool on `home` for one category; `wrapper` (a command and its arguments)
// is run in front of it when given.
CliRun runCli(const QString& home, const char* category, const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
              const QStringList& wrapper = {})
{
    QStringList command = wrapper;
    command << QStringLiteral(DUSTLARK_CLI) << QStringLiteral("scan") << QStringLiteral("--home") << home << QStringLiteral("--category")
            << QString::fromLatin1(category) << QStringLiteral("--json");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(command.takeFirst(), command);
    if (!process.waitForFinished(60'000)) {
        process.kill();
        process.waitForFinished();
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

// The scanned category of the run's output (the tool also lists the others, not scanned).
QJsonObject scanned(const CliRun& run)
{
    EXPECT_EQ(run.exitCode, 0) << run.standardError.constData();
    const QJsonArray categories = QJsonDocument::fromJson(run.standardOutput).object().value(QStringLiteral("categories")).toArray();
    for (const QJsonValue& category : categories) {
        if (category[QStringLiteral("state")].toString() == QLatin1String("done"))
            return category.toObject();
    }
    ADD_FAILURE() << "nothing scanned: " << run.standardOutput.constData();
    return {};
}

QStringList titles(const QJsonObject& category)
{
    QStringList list;
    for (const QJsonValue& item : category[QStringLiteral("items")].toArray())
        list << item[QStringLiteral("title")].toString();
    return list;
}

QJsonObject item(const QJsonObject& category, const QString& title)
{
    for (const QJsonValue& item : category[QStringLiteral("items")].toArray()) {
        if (item[QStringLiteral("title")].toString() == title)
            return item.toObject();
    }
    ADD_FAILURE() << "no item " << qPrintable(title);
    return {};
}

QString fixture(const QString& name)
{
    QFile file(QStringLiteral(DUSTLARK_FIXTURES "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

// The docker stand-in answering for the engine of the docker fixtures.
void describeEngine(const ToolStandIn& docker)
{
    const QStringList json = {QStringLiteral("--format"), QStringLiteral("{{json .}}")};
    docker.answerWithFixture(words("context inspect --format {{.Endpoints.docker.Host}}"), QStringLiteral("docker/context-inspect.txt"));
    docker.answerWithFixture(words("info --format {{.ServerVersion}}"), QStringLiteral("docker/info.txt"));
    docker.answerWithFixture(words("ps -a --no-trunc --size --filter status=exited --filter status=created --filter status=dead") + json,
                             QStringLiteral("docker/ps-stopped.jsonl"));
    docker.answerWithFixture(words("ps -a -q --no-trunc"), QStringLiteral("docker/ps-all-ids.txt"));
    docker.answerWithFixture(QStringList{QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{.Id}}|{{.Image}}|{{.State.Running}}|{{.Name}}")}
                                 + fixture(QStringLiteral("docker/ps-all-ids.txt")).split(QLatin1Char('\n'), Qt::SkipEmptyParts),
                             QStringLiteral("docker/inspect-containers.txt"));
    docker.answerWithFixture(words("image ls --no-trunc") + json, QStringLiteral("docker/image-ls.jsonl"));
    docker.answerWithFixture(words("system df") + json, QStringLiteral("docker/system-df.jsonl"));
    docker.answerWithFixture(words("system df -v") + QStringList{QStringLiteral("--format"), QStringLiteral("{{json .Volumes}}")},
                             QStringLiteral("docker/system-df-volumes.json"));
    docker.answerWithFixture({QStringLiteral("volume"), QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{.Name}}\t{{.CreatedAt}}"),
                              QStringLiteral("shop_pgdata"), QStringLiteral("9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08"),
                              QStringLiteral("gone_meanwhile")},
                             QStringLiteral("docker/volume-inspect.txt"));
}

// The docker paths that come before the home folder's own; a command that hides those that
// exist (a tmpfs over their folder in a private mount namespace), or none when none exists.
// Absent when one exists and can't be hidden.
std::optional<QStringList> hidingEarlierDockers()
{
    const QStringList earlier = ToolLocations::standard(QStringLiteral("/nonexistent")).dockerCandidates.mid(0, 2);
    QStringList folders;
    for (const QString& path : earlier) {
        if (QFileInfo::exists(path))
            folders << QFileInfo(path).path();
    }
    if (folders.isEmpty())
        return QStringList{};
    const QString unshare = QStandardPaths::findExecutable(QStringLiteral("unshare"));
    if (::geteuid() != 0 || unshare.isEmpty())
        return std::nullopt;
    return QStringList{unshare, QStringLiteral("--mount"), QStringLiteral("--propagation"), QStringLiteral("private"), QStringLiteral("sh"),
                       QStringLiteral("-c"), QStringLiteral("for d in %1; do mount -t tmpfs tmpfs \"$d\" || exit 97; done; exec \"$@\"").arg(folders.join(QLatin1Char(' '))),
                       QStringLiteral("sh")};
}

TEST(ToolScannersCli, DockerThroughTheStandInInTheHomeFolder)
{
    const auto wrapper = hidingEarlierDockers();
    if (!wrapper)
        GTEST_SKIP() << "a docker is installed before ~/.docker/bin and hiding it needs root and unshare(1)";
    TempTree tree;
    const QString home = tree.dir(QStringLiteral("home"));
    ToolStandIn docker(QStringLiteral("docker-standin"), QStringLiteral("docker"));
    describeEngine(docker);
    tree.dir(QStringLiteral("home/.docker"));
    ASSERT_TRUE(QFile::link(QFileInfo(docker.path()).path(), home + QStringLiteral("/.docker/bin")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DOCKER_HOST"));

    const QJsonObject local = scanned(runCli(home, "docker", environment, *wrapper));
    EXPECT_EQ(titles(local), (QStringList{QStringLiteral("shop_pgdata"), QStringLiteral("Untagged image"), QStringLiteral("web:dev"),
                                          QStringLiteral("Build cache"), QStringLiteral("postgres:15"), QStringLiteral("Anonymous volume 9f86d081884c"),
                                          QStringLiteral("web-test"), QStringLiteral("old-db"), QStringLiteral("scratchpad")}));
    const QJsonObject volume = item(local, QStringLiteral("shop_pgdata"));
    EXPECT_EQ(volume[QStringLiteral("badge")].toString(), QStringLiteral("Volume"));
    EXPECT_EQ(volume[QStringLiteral("safety")].toString(), QStringLiteral("risky"));
    EXPECT_EQ(volume[QStringLiteral("removal")].toString(), QStringLiteral("docker"));
    EXPECT_EQ(item(local, QStringLiteral("Build cache"))[QStringLiteral("safety")].toString(), QStringLiteral("safe"));
    EXPECT_EQ(item(local, QStringLiteral("old-db"))[QStringLiteral("detail")].toString(), QStringLiteral("postgres:15 · Exited (0) 3 weeks ago"));
    EXPECT_TRUE(local[QStringLiteral("summary")].toString().startsWith(QLatin1String("Docker uses: images 4.1 GB")));

    const qsizetype callsBefore = docker.calls().size();
    environment.insert(QStringLiteral("DOCKER_HOST"), QStringLiteral("tcp://build-server:2375"));
    const QJsonObject remote = scanned(runCli(home, "docker", environment, *wrapper));
    EXPECT_TRUE(remote[QStringLiteral("items")].toArray().isEmpty());
    EXPECT_EQ(remote[QStringLiteral("notes")].toArray(),
              QJsonArray{QStringLiteral("Docker is set to use another computer. Dustlark cleans only Docker on this computer.")});
    EXPECT_EQ(docker.calls().size(), callsBefore) << "the tool is not even run";
}

TEST(ToolScannersCli, ARunningEmulatorIsLocked)
{
    TempTree tree;
    const QString home = tree.dir(QStringLiteral("home"));
    tree.file(QStringLiteral("home/.android/avd/Pixel_7_API_34.avd/userdata-qemu.img"), 10'000);
    tree.file(QStringLiteral("home/.android/avd/Pixel_7_API_34.ini"), 100);
    tree.file(QStringLiteral("home/.android/avd/Idle_Phone.avd/userdata-qemu.img"), 10'000);
    // A real process whose command line reads like the emulator's.
    QProcess emulator;
    emulator.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("read line"),
                                               QStringLiteral("qemu-system-aarch64"), QStringLiteral("-avd"), QStringLiteral("Pixel_7_API_34")});
    ASSERT_TRUE(emulator.waitForStarted());

    const QJsonObject android = scanned(runCli(home, "android"));
    emulator.closeWriteChannel();
    emulator.waitForFinished();
    const QJsonObject pixel = item(android, QStringLiteral("Pixel 7 API 34"));
    EXPECT_EQ(pixel[QStringLiteral("lockedReason")].toString(), QStringLiteral("Running. Quit it to remove it."));
    EXPECT_EQ(pixel[QStringLiteral("paths")].toArray(), (QJsonArray{home + QStringLiteral("/.android/avd/Pixel_7_API_34.avd"),
                                                                    home + QStringLiteral("/.android/avd/Pixel_7_API_34.ini")}));
    EXPECT_TRUE(item(android, QStringLiteral("Idle Phone"))[QStringLiteral("lockedReason")].isNull());
}

TEST(ToolScannersCli, TwoArchivesOfOneApp)
{
    TempTree tree;
    const QString home = tree.dir(QStringLiteral("home"));
    const auto archive = [&](const QString& name, const char* build, const char* created) {
        const QString folder = QStringLiteral("home/Library/Developer/Xcode/Archives/2024-05-01/") + name + QStringLiteral(".xcarchive");
        tree.file(folder + QStringLiteral("/dSYMs/App.app.dSYM/Contents/Resources/DWARF/App"), 1'200'000);
        tree.file(folder + QStringLiteral("/Info.plist"),
                  QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict><key>ApplicationProperties</key><dict>)"
                             "<key>CFBundleShortVersionString</key><string>1.4</string><key>CFBundleVersion</key><string>")
                      + build + "</string></dict><key>CreationDate</key><date>" + created + "</date><key>Name</key><string>Notes</string></dict></plist>");
    };
    archive(QStringLiteral("Notes 10.00"), "7", "2024-05-01T10:00:00Z");
    archive(QStringLiteral("Notes 11.30"), "8", "2024-05-01T11:30:00Z");

    const QJsonObject xcode = scanned(runCli(home, "xcode"));
    const QJsonObject newest = item(xcode, QStringLiteral("Notes 11.30"));
    EXPECT_EQ(newest[QStringLiteral("badge")].toString(), QStringLiteral("Newest"));
    EXPECT_EQ(newest[QStringLiteral("safety")].toString(), QStringLiteral("risky"));
    const QJsonObject older = item(xcode, QStringLiteral("Notes 10.00"));
    EXPECT_TRUE(older[QStringLiteral("detail")].toString().contains(QStringLiteral("the build comes back from its git tag")));
    EXPECT_TRUE(older[QStringLiteral("detail")].toString().contains(QStringLiteral("a newer build of this version exists")));
    EXPECT_EQ(older[QStringLiteral("safety")].toString(), QStringLiteral("askAI"));
}

TEST(ToolScannersCli, SimulatorsWithoutXcode)
{
    if (QFileInfo::exists(ToolLocations::standard({}).xcodeSelect))
        GTEST_SKIP() << "xcode-select is installed here";
    TempTree tree;
    const QJsonObject simulators = scanned(runCli(tree.dir(QStringLiteral("home")), "simulators"));
    EXPECT_TRUE(simulators[QStringLiteral("items")].toArray().isEmpty());
    EXPECT_EQ(simulators[QStringLiteral("notes")].toArray(), QJsonArray{QStringLiteral("Xcode isn't installed, so there are no simulators to manage.")});
}

}  // namespace
