#include "actions/DockerRemoval.h"

#include "actions/ToolAnswer.h"
#include "machinery/DockerEndpoint.h"
#include "machinery/ProcessRunner.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

namespace DockerRemoval {

namespace {

using std::chrono::seconds;

constexpr seconds stateTimeLimit{60};
constexpr seconds inspectTimeLimit{30};
constexpr seconds removalTimeLimit{600};  // pruning a large build cache takes minutes

// The docker tool bound to the endpoint the scan used.
class Docker {
public:
    Docker(QString executable, const DockerOperation& operation, const RemovalEnvironment& environment)
        : m_executable(std::move(executable)), m_operation(operation), m_environment(environment) {}

    ToolAnswer ask(const QStringList& arguments, seconds timeLimit) const
    {
        return ToolAnswer::ask(m_executable, QStringList{QStringLiteral("--host"), m_operation.host} + arguments, timeLimit,
                               m_environment.cancellation);
    }
    const QDateTime& scannedAt() const { return m_operation.scannedAt; }

private:
    QString m_executable;
    const DockerOperation& m_operation;
    const RemovalEnvironment& m_environment;
};

QString notInstalled()
{
    //: Cleanup failure reason for a Docker item
    return QCoreApplication::translate("Remover", "Docker isn't installed.");
}

QString otherSetup()
{
    //: Cleanup failure reason for a Docker item: the Docker endpoint differs from the scan's
    return QCoreApplication::translate("Remover", "Docker now uses a different setup than during the scan. Scan again.");
}

// A container that runs, or that ran and stopped again after the scan, is not what was offered.
std::optional<QString> containerProblem(const Docker& docker, const QString& id)
{
    const ToolAnswer state = docker.ask(
        {QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{.State.Running}}|{{.State.FinishedAt}}"), id},
        stateTimeLimit);
    if (!state.succeeded)
        return state.failure;
    const QStringList fields = state.output.trimmed().split(QLatin1Char('|'));
    if (fields.size() != 2 || fields[0] != QLatin1String("false"))
        return RemovalReasons::changedSinceScan();
    const std::optional<QDateTime> finished = DockerEndpoint::parseTime(fields[1]);
    const QDateTime& scanned = docker.scannedAt();
    if (!finished || !scanned.isValid() || *finished > scanned)
        return RemovalReasons::changedSinceScan();
    return std::nullopt;
}

RemovalOutcome finish(const ToolAnswer& answer)
{
    return answer.succeeded ? RemovalOutcome::removedByTool() : RemovalOutcome::failed(answer.failure);
}

RemovalOutcome removeContainer(const Docker& docker, const DockerOperation::Container& container)
{
    if (auto problem = containerProblem(docker, container.id))
        return RemovalOutcome::failed(*problem);
    return finish(docker.ask({QStringLiteral("rm"), container.id}, removalTimeLimit));
}

// The image's repository:tag names; absent when the text isn't Docker's JSON list.
std::optional<QSet<QString>> parseTags(const QString& text)
{
    const QByteArray json = text.trimmed().toUtf8();
    if (json == "null")
        return QSet<QString>();  // Go writes an empty list of tags as null
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return std::nullopt;
    QSet<QString> tags;
    for (const QJsonValue& tag : document.array())
        tags.insert(tag.toString());
    return tags;
}

std::optional<QString> imageNameProblem(const Docker& docker, const DockerOperation::Image& image)
{
    const ToolAnswer tags = docker.ask(
        {QStringLiteral("image"), QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{json .RepoTags}}"), image.id},
        inspectTimeLimit);
    if (!tags.succeeded)
        return tags.failure;
    const QSet<QString> scanned(image.references.begin(), image.references.end());
    if (parseTags(tags.output) != scanned)
        return RemovalReasons::changedSinceScan();
    return std::nullopt;
}

RemovalOutcome removeImage(const Docker& docker, const DockerOperation::Image& image)
{
    if (auto problem = imageNameProblem(docker, image))
        return RemovalOutcome::failed(*problem);
    for (const QString& container : image.stoppedContainers) {
        if (auto problem = containerProblem(docker, container))
            return RemovalOutcome::failed(*problem);
    }
    for (const QString& container : image.stoppedContainers) {
        const ToolAnswer removed = docker.ask({QStringLiteral("rm"), container}, removalTimeLimit);
        if (!removed.succeeded)
            return RemovalOutcome::failed(removed.failure);
    }
    return finish(docker.ask({QStringLiteral("rmi"), image.id}, removalTimeLimit));
}

// A volume made again under the same name since the scan holds other data.
RemovalOutcome removeVolume(const Docker& docker, const DockerOperation::Volume& volume)
{
    const ToolAnswer created = docker.ask(
        {QStringLiteral("volume"), QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{.CreatedAt}}"), volume.name},
        inspectTimeLimit);
    if (!created.succeeded)
        return RemovalOutcome::failed(created.failure);
    if (!volume.created.isEmpty() && created.output.trimmed() != volume.created.trimmed())
        return RemovalOutcome::failed(RemovalReasons::changedSinceScan());
    return finish(docker.ask({QStringLiteral("volume"), QStringLiteral("rm"), volume.name}, removalTimeLimit));
}

RemovalOutcome removeBuildCache(const Docker& docker)
{
    return finish(docker.ask({QStringLiteral("builder"), QStringLiteral("prune"), QStringLiteral("--all"), QStringLiteral("--force")},
                             removalTimeLimit));
}

}  // namespace

RemovalOutcome remove(const DockerOperation& operation, const RemovalEnvironment& environment)
{
    const std::optional<QString> executable = ProcessRunner::firstExecutable(environment.tools.dockerCandidates);
    if (!executable)
        return RemovalOutcome::failed(notInstalled());
    const std::optional<QString> host = DockerEndpoint::localHost(*executable, environment.dockerHostVariable, environment.cancellation);
    if (!host || operation.host != *host)
        return RemovalOutcome::failed(otherSetup());
    const Docker docker(*executable, operation, environment);
    if (const auto* container = operation.as<DockerOperation::Container>())
        return removeContainer(docker, *container);
    if (const auto* image = operation.as<DockerOperation::Image>())
        return removeImage(docker, *image);
    if (const auto* volume = operation.as<DockerOperation::Volume>())
        return removeVolume(docker, *volume);
    return removeBuildCache(docker);
}

}  // namespace DockerRemoval
