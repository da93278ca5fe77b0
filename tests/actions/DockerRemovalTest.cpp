#include "actions/DockerRemoval.h"
#include "actions/Remover.h"
#include "actions/ToolStandIn.h"
#include "vocabulary/RemovalReasons.h"

#include <gtest/gtest.h>

namespace {

const QString socket = QStringLiteral("unix:///var/run/docker.sock");
const QString stateFormat = QStringLiteral("{{.State.Running}}|{{.State.FinishedAt}}");
const QString differentSetup = QStringLiteral("Docker now uses a different setup than during the scan. Scan again.");

class DockerRemovalTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        environment.tools.dockerCandidates = {QStringLiteral("/nonexistent/docker"), docker.path()};
        docker.answer({QStringLiteral("context"), QStringLiteral("inspect"), QStringLiteral("--format"),
                       QStringLiteral("{{.Endpoints.docker.Host}}")},
                      socket + QLatin1Char('\n'));
    }

    RemovalOutcome remove(const DockerOperation& operation) const
    {
        DockerOperation scanned = operation;
        scanned.host = scannedHost;
        scanned.scannedAt = QDateTime::fromString(QStringLiteral("2024-06-01T12:00:00Z"), Qt::ISODate);
        CleanupItem item;
        item.category = CategoryID::docker;
        item.removal = Removal::docker(scanned);
        return Remover::remove(item, environment);
    }
    void containerState(const QString& id, const QString& state) const
    {
        docker.answer({QStringLiteral("inspect"), QStringLiteral("--format"), stateFormat, id}, state + QLatin1Char('\n'));
    }
    bool wasCalled(const QString& arguments) const
    {
        return docker.calls().contains(QStringLiteral("--host ") + socket + QLatin1Char(' ') + arguments);
    }

    ToolStandIn docker{QStringLiteral("docker-standin"), QStringLiteral("docker")};
    RemovalEnvironment environment;
    QString scannedHost = socket;  // where the scan read the rows
};

DockerOperation container(const QString& id)
{
    return {DockerOperation::Container{id}};
}

TEST_F(DockerRemovalTest, RefusesWithoutDockerOrOnAnotherSetup)
{
    environment.tools.dockerCandidates = {QStringLiteral("/nonexistent/docker")};
    EXPECT_EQ(remove(container(QStringLiteral("c1"))), RemovalOutcome::failed(QStringLiteral("Docker isn't installed.")));

    environment.tools.dockerCandidates = {docker.path()};
    environment.dockerHostVariable = QStringLiteral("tcp://build-server:2375");
    EXPECT_EQ(remove(container(QStringLiteral("c1"))), RemovalOutcome::failed(differentSetup));

    environment.dockerHostVariable.reset();
    scannedHost = QStringLiteral("unix:///Users/me/.orbstack/run/docker.sock");
    EXPECT_EQ(remove(container(QStringLiteral("c1"))), RemovalOutcome::failed(differentSetup));

    scannedHost.clear();
    EXPECT_EQ(remove(container(QStringLiteral("c1"))), RemovalOutcome::failed(differentSetup));
    EXPECT_FALSE(wasCalled(QStringLiteral("rm c1")));
}

TEST_F(DockerRemovalTest, RemovesAContainerThatStayedStoppedSinceTheScan)
{
    containerState(QStringLiteral("c1"), QStringLiteral("false|2024-05-30T08:15:02.123456789Z"));
    docker.answer({QStringLiteral("rm"), QStringLiteral("c1")}, QStringLiteral("c1\n"));

    EXPECT_EQ(remove(container(QStringLiteral("c1"))), RemovalOutcome::removedByTool());
    EXPECT_TRUE(wasCalled(QStringLiteral("rm c1"))) << qPrintable(docker.calls().join(QLatin1Char('\n')));
}

TEST_F(DockerRemovalTest, RefusesAContainerThatRunsRanAgainOrCannotBeRead)
{
    containerState(QStringLiteral("running"), QStringLiteral("true|0001-01-01T00:00:00Z"));
    containerState(QStringLiteral("restarted"), QStringLiteral("false|2024-06-01T12:30:00.5Z"));
    containerState(QStringLiteral("garbled"), QStringLiteral("<no value>"));
    for (const char* id : {"running", "restarted", "garbled"}) {
        EXPECT_EQ(remove(container(QLatin1String(id))), RemovalOutcome::failed(RemovalReasons::changedSinceScan())) << id;
        EXPECT_FALSE(wasCalled(QStringLiteral("rm ") + QLatin1String(id)));
    }
}

TEST_F(DockerRemovalTest, AToolsFailureBecomesTheReason)
{
    containerState(QStringLiteral("c1"), QStringLiteral("false|2024-05-30T08:15:02Z"));
    docker.answer({QStringLiteral("rm"), QStringLiteral("c1")}, {}, 1,
                  QStringLiteral("Error response from daemon: removal of container c1 is already in progress\n"));
    EXPECT_EQ(remove(container(QStringLiteral("c1"))),
              RemovalOutcome::failed(QStringLiteral("Error response from daemon: removal of container c1 is already in progress")));

    docker.answer({QStringLiteral("inspect"), QStringLiteral("--format"), stateFormat, QStringLiteral("gone")}, {}, 1,
                  QStringLiteral("Error: No such object: gone\n"));
    EXPECT_EQ(remove(container(QStringLiteral("gone"))), RemovalOutcome::failed(QStringLiteral("Error: No such object: gone")));
}

TEST_F(DockerRemovalTest, RemovesAnImageAfterItsStoppedContainersWhileItKeepsItsName)
{
    const DockerOperation image{DockerOperation::Image{QStringLiteral("sha256:abc"), {QStringLiteral("s1"), QStringLiteral("s2")},
                                                       {QStringLiteral("web:latest"), QStringLiteral("web:1.2")}}};
    const QStringList tagQuery{QStringLiteral("image"), QStringLiteral("inspect"), QStringLiteral("--format"),
                               QStringLiteral("{{json .RepoTags}}"), QStringLiteral("sha256:abc")};
    docker.answer(tagQuery, QStringLiteral("[\"web:1.2\",\"web:latest\"]\n"));
    containerState(QStringLiteral("s1"), QStringLiteral("false|2024-05-01T00:00:00Z"));
    containerState(QStringLiteral("s2"), QStringLiteral("false|2024-05-02T00:00:00Z"));
    docker.answer({QStringLiteral("rm"), QStringLiteral("s1")}, QStringLiteral("s1\n"));
    docker.answer({QStringLiteral("rm"), QStringLiteral("s2")}, QStringLiteral("s2\n"));
    docker.answer({QStringLiteral("rmi"), QStringLiteral("sha256:abc")}, QStringLiteral("Untagged: web:latest\nDeleted: sha256:abc\n"));

    EXPECT_EQ(remove(image), RemovalOutcome::removedByTool());
    const QStringList calls = docker.calls();
    const qsizetype rmi = calls.indexOf(QStringLiteral("--host ") + socket + QStringLiteral(" rmi sha256:abc"));
    ASSERT_GE(rmi, 0);
    EXPECT_GT(rmi, calls.indexOf(QStringLiteral("--host ") + socket + QStringLiteral(" rm s2")));
    EXPECT_GT(calls.indexOf(QStringLiteral("--host ") + socket + QStringLiteral(" rm s2")), 0);

    docker.answer(tagQuery, QStringLiteral("[\"web:old\"]\n"));  // renamed since the scan
    EXPECT_EQ(remove(image), RemovalOutcome::failed(RemovalReasons::changedSinceScan()));
}

TEST_F(DockerRemovalTest, RemovesAVolumeOnlyIfItIsTheOneTheScanSaw)
{
    const QStringList createdQuery{QStringLiteral("volume"), QStringLiteral("inspect"), QStringLiteral("--format"),
                                   QStringLiteral("{{.CreatedAt}}"), QStringLiteral("pgdata")};
    const DockerOperation volume{DockerOperation::Volume{QStringLiteral("pgdata"), QStringLiteral("2024-01-10 09:00:00 +0000 UTC")}};
    docker.answer(createdQuery, QStringLiteral("2024-06-01 13:00:00 +0000 UTC\n"));
    EXPECT_EQ(remove(volume), RemovalOutcome::failed(RemovalReasons::changedSinceScan()));
    EXPECT_FALSE(wasCalled(QStringLiteral("volume rm pgdata")));

    docker.answer(createdQuery, QStringLiteral("2024-01-10 09:00:00 +0000 UTC\n"));
    docker.answer({QStringLiteral("volume"), QStringLiteral("rm"), QStringLiteral("pgdata")}, QStringLiteral("pgdata\n"));
    EXPECT_EQ(remove(volume), RemovalOutcome::removedByTool());
    EXPECT_TRUE(wasCalled(QStringLiteral("volume rm pgdata")));
}

TEST_F(DockerRemovalTest, PrunesTheWholeBuildCache)
{
    docker.answer({QStringLiteral("builder"), QStringLiteral("prune"), QStringLiteral("--all"), QStringLiteral("--force")},
                  QStringLiteral("ID\tRECLAIMABLE\tSIZE\nabc123\ttrue\t1.2GB\nTotal:\t1.2GB\n"));
    EXPECT_EQ(remove(DockerOperation{DockerOperation::BuildCache{}}), RemovalOutcome::removedByTool());
    EXPECT_TRUE(wasCalled(QStringLiteral("builder prune --all --force")));
}

}  // namespace
