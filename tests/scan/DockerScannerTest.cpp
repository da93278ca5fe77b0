#include "format/RelativeDate.h"
#include "actions/ToolStandIn.h"
#include "machinery/ToolLocations.h"
#include "support/CliScan.h"
#include "support/ScanRows.h"
#include "scan/DockerScanner.h"
#include "support/TempTree.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

const QString dbImage = QStringLiteral("sha256:1111111111111111111111111111111111111111111111111111111111111111");
const QString webImage = QStringLiteral("sha256:2222222222222222222222222222222222222222222222222222222222222222");
const QString apiImage = QStringLiteral("sha256:3333333333333333333333333333333333333333333333333333333333333333");
const QString untaggedImage = QStringLiteral("sha256:4444444444444444444444444444444444444444444444444444444444444444");
const QString anonymousVolume = QStringLiteral("9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08");

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

const QStringList contextCommand = {QStringLiteral("context"), QStringLiteral("inspect"), QStringLiteral("--format"),
                                    QStringLiteral("{{.Endpoints.docker.Host}}")};
const QStringList infoCommand = {QStringLiteral("info"), QStringLiteral("--format"), QStringLiteral("{{.ServerVersion}}")};
const QStringList stoppedCommand = words("ps -a --no-trunc --size --filter status=exited --filter status=created --filter status=dead")
    + QStringList{QStringLiteral("--format"), QStringLiteral("{{json .}}")};
const QStringList idsCommand = words("ps -a -q --no-trunc");
const QStringList imagesCommand = words("image ls --no-trunc") + QStringList{QStringLiteral("--format"), QStringLiteral("{{json .}}")};
const QStringList dfCommand = words("system df") + QStringList{QStringLiteral("--format"), QStringLiteral("{{json .}}")};
const QStringList volumesCommand = words("system df -v") + QStringList{QStringLiteral("--format"), QStringLiteral("{{json .Volumes}}")};

// A docker stand-in that describes one engine: three stopped containers, one running, four
// images (one under two tags, one untagged), a build cache and four volumes. Its endpoint is a
// socket in the temporary home, which the tool's settings file names as the current context's.
class DockerScannerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        socket = QStringLiteral("unix://") + home.socketFile(QStringLiteral("run/docker.sock"));
        home.file(QStringLiteral(".docker/config.json"), QByteArray(R"({"currentContext": "colima"})"));
        environment.configFolder = home.path(QStringLiteral(".docker"));
        docker.answer(contextCommand, socket + QLatin1Char('\n'));
        docker.answerWithFixture(infoCommand, QStringLiteral("docker/info.txt"));
        docker.answerWithFixture(stoppedCommand, QStringLiteral("docker/ps-stopped.jsonl"));
        docker.answerWithFixture(idsCommand, QStringLiteral("docker/ps-all-ids.txt"));
        const QStringList ids = readFixture(QStringLiteral("docker/ps-all-ids.txt")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        docker.answerWithFixture(QStringList{QStringLiteral("inspect"), QStringLiteral("--format"),
                                             QStringLiteral("{{.Id}}|{{.Image}}|{{.State.Running}}|{{.Name}}")} + ids,
                                 QStringLiteral("docker/inspect-containers.txt"));
        docker.answerWithFixture(imagesCommand, QStringLiteral("docker/image-ls.jsonl"));
        docker.answerWithFixture(dfCommand, QStringLiteral("docker/system-df.jsonl"));
        docker.answerWithFixture(volumesCommand, QStringLiteral("docker/system-df-volumes.json"));
        docker.answerWithFixture(QStringList{QStringLiteral("volume"), QStringLiteral("inspect"), QStringLiteral("--format"),
                                             QStringLiteral("{{.Name}}\t{{.CreatedAt}}"), QStringLiteral("shop_pgdata"),
                                             anonymousVolume, QStringLiteral("gone_meanwhile")},
                                 QStringLiteral("docker/volume-inspect.txt"));
        environment.candidates = QStringList{QStringLiteral("/nonexistent/docker"), docker.path()};
        environment.hostVariable = [this] { return hostVariable; };
        context.home = home.root();
        context.now = QDateTime::fromString(QStringLiteral("2024-06-02T12:00:00Z"), Qt::ISODate);
    }

    static QString readFixture(const QString& name)
    {
        QFile file(QStringLiteral(DUSTLARK_FIXTURES "/") + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    ScanOutput scan() const { return DockerScanner(environment).scanDocker(context); }

    // The removal of a row this scan read: with the endpoint and the scan's start time.
    Removal scanned(DockerOperation operation) const
    {
        operation.host = socket;
        operation.scannedAt = context.now;
        return Removal::docker(operation);
    }

    static const CleanupItem* row(const ScanOutput& output, const QString& id) { return findRow(output.items, id); }

    ToolStandIn docker{QStringLiteral("docker-standin"), QStringLiteral("docker")};
    TempTree home;
    QString socket;
    DockerScanner::Environment environment;
    std::optional<QString> hostVariable;
    ScanContext context;
};

TEST_F(DockerScannerTest, ImagesFollowWhatTheContainersRunAndStoppedContainersAreRows)
{
    const ScanOutput output = scan();

    EXPECT_EQ(row(output, QStringLiteral("docker:image:") + apiImage), nullptr) << "a running container uses it";
    const CleanupItem* web = row(output, QStringLiteral("docker:image:") + webImage);
    ASSERT_NE(web, nullptr);
    EXPECT_EQ(web->title, QStringLiteral("web:dev"));
    EXPECT_EQ(RelativeDate::expand(web->detail, context.now), QStringLiteral("Created last week · also removes stopped containers web-test, scratchpad"));
    EXPECT_EQ(web->removal, scanned({DockerOperation::Image{webImage, {QStringLiteral("web-test"), QStringLiteral("scratchpad")},
                                                                    {QStringLiteral("web:dev")}}}));
    EXPECT_EQ(web->size, 1'200'000'000);
    const auto imageRows = std::count_if(output.items.begin(), output.items.end(),
                                         [](const CleanupItem& item) { return item.id.startsWith(QLatin1String("docker:image:")); });
    EXPECT_EQ(imageRows, 3) << "one row per image ID, however many tags it has";

    const CleanupItem* db = row(output, QStringLiteral("docker:image:") + dbImage);
    ASSERT_NE(db, nullptr);
    EXPECT_EQ(RelativeDate::expand(db->detail, context.now), QStringLiteral("Created 2 months ago · also removes stopped container old-db"));
    const CleanupItem* untagged = row(output, QStringLiteral("docker:image:") + untaggedImage);
    ASSERT_NE(untagged, nullptr);
    EXPECT_EQ(untagged->title, QStringLiteral("Untagged image"));
    EXPECT_EQ(untagged->size, 1'610'612'736);
    EXPECT_EQ(untagged->removal, scanned({DockerOperation::Image{untaggedImage, {}, {}}}));
    EXPECT_EQ(untagged->safety(home.root()), Safety::askAI);

    // Stopped containers: a line that doesn't decode is skipped, not the rest.
    const CleanupItem* webTest = row(output, QStringLiteral("docker:container:c0ffee02a1b2c3d4e5f60718293a4b5c6d7e8f90a1b2c3d4e5f60718293a4b5c"));
    ASSERT_NE(webTest, nullptr);
    EXPECT_EQ(webTest->title, QStringLiteral("web-test"));
    EXPECT_EQ(webTest->badge, QStringLiteral("Container"));
    EXPECT_EQ(webTest->detail, QStringLiteral("web:dev · Exited (137) 2 weeks ago"));
    EXPECT_EQ(webTest->size, 12'000) << "only the container's own layer counts, not the virtual size";
    const CleanupItem* created = row(output, QStringLiteral("docker:container:c0ffee03a1b2c3d4e5f60718293a4b5c6d7e8f90a1b2c3d4e5f60718293a4b5c"));
    ASSERT_NE(created, nullptr) << "the line after the broken one still counts";
    EXPECT_EQ(created->size, 0) << "no size printed";
}

TEST_F(DockerScannerTest, UnusedVolumesBuildCacheSummaryAndOrder)
{
    const ScanOutput output = scan();

    const CleanupItem* shop = row(output, QStringLiteral("docker:volume:shop_pgdata"));
    ASSERT_NE(shop, nullptr);
    EXPECT_EQ(shop->title, QStringLiteral("shop_pgdata"));
    EXPECT_EQ(shop->detail, QStringLiteral("no container uses it · may hold a database or uploads · Compose project shop"));
    EXPECT_EQ(shop->removal, scanned({DockerOperation::Volume{QStringLiteral("shop_pgdata"), QStringLiteral("2024-04-02T08:11:12Z")}}));
    EXPECT_EQ(shop->safety(home.root()), Safety::risky);
    const CleanupItem* anonymous = row(output, QStringLiteral("docker:volume:") + anonymousVolume);
    ASSERT_NE(anonymous, nullptr);
    EXPECT_EQ(anonymous->title, QStringLiteral("Anonymous volume 9f86d081884c"));
    EXPECT_EQ(row(output, QStringLiteral("docker:volume:api_cache")), nullptr) << "a container uses it";
    EXPECT_EQ(row(output, QStringLiteral("docker:volume:gone_meanwhile")), nullptr) << "the inspection didn't report it";
    // docker expands no escapes in --format (a backslash and a "t" come out as they are), so the
    // separator it is given must be a real tab.
    const QStringList inspections = docker.calls().filter(QStringLiteral("volume inspect"));
    ASSERT_EQ(inspections.size(), 1);
    EXPECT_TRUE(inspections[0].contains(QStringLiteral("{{.Name}}\t{{.CreatedAt}}"))) << qPrintable(inspections[0]);

    EXPECT_EQ(output.summary, QStringLiteral("Docker uses: images 4.1 GB, containers 12 KB, local volumes 2.5 GB, build cache 640 MB"));
    const CleanupItem* cache = row(output, QStringLiteral("docker:buildcache"));
    ASSERT_NE(cache, nullptr);
    EXPECT_EQ(cache->size, 640'000'000);
    EXPECT_EQ(cache->safety(home.root()), Safety::safe);
    for (qsizetype i = 1; i < output.items.size(); ++i)
        EXPECT_GE(output.items[i - 1].size, output.items[i].size) << i;
    EXPECT_TRUE(output.notes.isEmpty()) << qPrintable(output.notes.join(QLatin1Char('\n')));
    for (const CleanupItem& item : output.items) {
        const DockerOperation& operation = item.removal.as<Removal::Docker>()->operation;
        EXPECT_EQ(operation.host, socket) << qPrintable(item.id);
        EXPECT_EQ(operation.scannedAt, context.now) << qPrintable(item.id);
    }
}

TEST_F(DockerScannerTest, BuildCacheOfZeroIsOnlyInTheSummary)
{
    docker.answer(dfCommand, QStringLiteral(R"({"Type":"Images","Size":"0B"})" "\n" R"({"Type":"Build Cache","Size":"0B","Reclaimable":"0B"})" "\n"));
    const ScanOutput output = scan();
    EXPECT_EQ(row(output, QStringLiteral("docker:buildcache")), nullptr);
    EXPECT_EQ(output.summary, QStringLiteral("Docker uses: images Zero KB, build cache Zero KB"));
}

TEST_F(DockerScannerTest, MissingRemoteOrStoppedDockerGivesOnlyItsNote)
{
    environment.candidates = QStringList{QStringLiteral("/nonexistent/docker")};
    EXPECT_EQ(scan(), (ScanOutput{{}, {QStringLiteral("Docker isn't installed.")}, {}}));

    environment.candidates = QStringList{docker.path()};
    hostVariable = QStringLiteral("tcp://build-server:2375");
    const ScanOutput remote{{}, {QStringLiteral("Docker is set to use another computer. Dustlark cleans only Docker on this computer.")}, {}};
    EXPECT_EQ(scan(), remote);
    EXPECT_TRUE(docker.calls().isEmpty()) << "a remote DOCKER_HOST never runs the tool";

    hostVariable.reset();
    docker.answer(contextCommand, QStringLiteral("ssh://me@build-server\n"));
    EXPECT_EQ(scan(), remote);
    docker.answer(contextCommand, QString(), 1, QStringLiteral("context \"gone\" does not exist"));
    EXPECT_EQ(scan(), remote);

    const ScanOutput down{{}, {QStringLiteral("Docker isn't running. Start Docker and scan again to see its containers and images.")}, {}};
    hostVariable = socket;
    docker.answer(infoCommand, QString(), 1, QStringLiteral("Cannot connect to the Docker daemon at unix:///var/run/docker.sock."));
    EXPECT_EQ(scan(), down);
    docker.answerWithFixture(infoCommand, QStringLiteral("docker/info.txt"));
    docker.answer(stoppedCommand, QString(), 1, QStringLiteral("error during connect"));
    EXPECT_EQ(scan(), down);
    environment.timeLimit = std::chrono::milliseconds(300);
    docker.hang(infoCommand);
    EXPECT_EQ(scan(), down) << "a server check that hangs";
}

TEST_F(DockerScannerTest, TheDefaultContextWithoutItsSocketNeedsNoRunOfTheTool)
{
    QFile::remove(home.path(QStringLiteral(".docker/config.json")));
    const ScanOutput output = scan();
    const QString contextCall = contextCommand.join(QLatin1Char(' '));
    EXPECT_FALSE(docker.calls().contains(contextCall)) << "nothing chooses another context than the default one";
    if (!QFileInfo::exists(QStringLiteral("/var/run/docker.sock"))) {
        EXPECT_TRUE(docker.calls().isEmpty()) << qPrintable(docker.calls().join(QLatin1Char('\n')));
        EXPECT_EQ(output, (ScanOutput{{}, {DockerScanner::notRunningNote()}, {}}));
    }

    home.file(QStringLiteral(".docker/config.json"), QByteArray("{}"));
    docker.answer(contextCommand, QStringLiteral("unix://") + home.path(QStringLiteral("run/gone.sock")) + QLatin1Char('\n'));
    EXPECT_EQ(scan(), (ScanOutput{{}, {DockerScanner::notRunningNote()}, {}}));
    EXPECT_EQ(docker.calls(), QStringList{contextCall}) << "a settings file may name any context; a missing socket answers nothing";
}

TEST_F(DockerScannerTest, ALaterListingThatFailsLeavesOutOnlyItsRows)
{
    docker.answer(idsCommand, QString(), 1, QStringLiteral("error"));
    docker.hang(volumesCommand);
    environment.timeLimit = std::chrono::milliseconds(2'000);
    const ScanOutput output = scan();

    QSet<QString> kinds;
    for (const CleanupItem& item : output.items)
        kinds.insert(item.id.section(QLatin1Char(':'), 1, 1));
    // Without knowing which containers run, no image is offered; the hanging volume list gives none.
    EXPECT_EQ(kinds, (QSet<QString>{QStringLiteral("container"), QStringLiteral("buildcache")}));
    EXPECT_TRUE(output.summary.has_value());
}

TEST_F(DockerScannerTest, DesktopDiskImageIsNoted)
{
    home.sparseFile(QStringLiteral("Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw"), 64'000'000'000);
    home.file(QStringLiteral("Library/Containers/com.docker.docker/Data/vms/0/data/Docker.raw.data"), 1);
    const ScanOutput output = scan();
    ASSERT_EQ(output.notes.size(), 1);
    EXPECT_TRUE(output.notes[0].startsWith(QLatin1String("Docker Desktop's disk image takes "))) << qPrintable(output.notes[0]);
    EXPECT_TRUE(output.notes[0].endsWith(QLatin1String("Docker Desktop may return freed space to macOS gradually.")));
    EXPECT_FALSE(output.notes[0].contains(QLatin1String("64 GB"))) << "its allocated size, not its length";
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

// The report tool finds the docker of the home folder's ~/.docker/bin and reads DOCKER_HOST itself.
TEST_F(DockerScannerTest, TheReportToolFindsTheHomeFoldersDockerAndItsHostVariable)
{
    const auto wrapper = hidingEarlierDockers();
    if (!wrapper)
        GTEST_SKIP() << "a docker is installed before ~/.docker/bin and hiding it needs root and unshare(1)";
    ASSERT_TRUE(QFile::link(QFileInfo(docker.path()).path(), home.dir(QStringLiteral(".docker")) + QStringLiteral("/bin")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DOCKER_HOST"));
    environment.insert(QStringLiteral("DOCKER_CONFIG"), home.path(QStringLiteral(".docker")));  // names the stand-in's context

    const CliScan local = CliScan::run(home.root(), {QStringLiteral("docker")}, environment, *wrapper);
    ASSERT_EQ(local.program.exitCode, 0) << local.program.standardError.constData();
    EXPECT_EQ(local.items(QStringLiteral("docker")).size(), 9) << "every row the stand-in's engine gives";

    const qsizetype callsBefore = docker.calls().size();
    environment.insert(QStringLiteral("DOCKER_HOST"), QStringLiteral("tcp://build-server:2375"));
    const CliScan remote = CliScan::run(home.root(), {QStringLiteral("docker")}, environment, *wrapper);
    EXPECT_TRUE(remote.items(QStringLiteral("docker")).isEmpty());
    EXPECT_EQ(docker.calls().size(), callsBefore) << "the tool is not even run";
}

TEST(DockerScannerFormats, SizesAndTimes)
{
    const std::pair<const char*, qint64> sizes[] = {
        {"1.5GB", 1'500'000'000}, {"1.5GiB", 1'610'612'736}, {"0B", 0},        {"12kB (virtual 1.2GB)", 12'000},
        {"63B", 63},              {"2.5 MB", 2'500'000},     {"1TiB", 1'099'511'627'776}, {"N/A", 0}, {"", 0},
        // Beyond what 64 bits hold: refused as garbage rather than wrapped to a negative size.
        {"9000000TB", 9'000'000'000'000'000'000}, {"9300000TB", 0}, {"10000000000TB", 0},
        {"9223372036854775807B", 0},
    };
    for (const auto& [text, bytes] : sizes)
        EXPECT_EQ(DockerScanner::parseSize(QString::fromLatin1(text)), bytes) << text;

    EXPECT_EQ(DockerScanner::date(QStringLiteral("2024-03-12 14:02:11 +0100 CET")),
              QDateTime::fromString(QStringLiteral("2024-03-12T13:02:11Z"), Qt::ISODate));
    EXPECT_EQ(DockerScanner::date(QStringLiteral("2024-05-01T10:20:30.123456789Z")),
              QDateTime::fromString(QStringLiteral("2024-05-01T10:20:30.123Z"), Qt::ISODateWithMs));
    EXPECT_FALSE(DockerScanner::date(QStringLiteral("3 weeks ago")).has_value());
}

// Where a real docker is installed, the scanner must read it the same way; without a running
// engine that is the not-running note (a daemon here would give rows and no note).
TEST(DockerScannerRealTool, ReadsAnInstalledDocker)
{
    const std::optional<QString> real = ProcessRunner::firstExecutable(ToolLocations::standard(QStringLiteral("/nonexistent")).dockerCandidates);
    if (!real)
        GTEST_SKIP() << "no docker installed";
    DockerScanner::Environment environment;
    environment.candidates = QStringList{*real};
    environment.hostVariable = [] { return std::optional<QString>(); };
    ScanContext context;
    context.home = QStringLiteral("/nonexistent");
    const ScanOutput output = DockerScanner(environment).scanDocker(context);
    if (!QFileInfo::exists(QStringLiteral("/var/run/docker.sock")))
        EXPECT_EQ(output.notes, QStringList{DockerScanner::notRunningNote()});
    else
        EXPECT_FALSE(output.notes.contains(DockerScanner::notInstalledNote()));
}

}  // namespace
