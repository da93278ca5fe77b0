#include "machinery/DockerEndpoint.h"

#include "machinery/ProcessRunner.h"
#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QRegularExpression>

namespace DockerEndpoint {

namespace {

constexpr std::chrono::seconds contextTimeLimit{20};

const QLatin1String localScheme("unix://");

bool isLocal(const QString& host)
{
    return host.startsWith(localScheme);
}

// The tool takes DOCKER_CONTEXT first, then the "currentContext" of its settings file; with
// neither it uses its default context.
bool choosesOtherContext(const QString& configFolder)
{
    return !qEnvironmentVariable("DOCKER_CONTEXT").isEmpty()
        || FileStatus::exists(configFolder + QStringLiteral("/config.json"));
}

}  // namespace

std::optional<QString> localHost(const QString& executable, const std::optional<QString>& hostVariable,
                                 const CancellationToken* cancellation, const QString& configFolder)
{
    if (hostVariable)
        return isLocal(*hostVariable) ? hostVariable : std::nullopt;
    if (!choosesOtherContext(configFolder))
        return QString::fromLatin1(defaultHost);
    const ProcessRunner::Result result = ProcessRunner::run(
        executable, {QStringLiteral("context"), QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{.Endpoints.docker.Host}}")},
        contextTimeLimit, {}, cancellation);
    if (!result.launched() || result.output->status != 0 || result.output->timedOut)
        return std::nullopt;
    const QString host = result.output->standardOutput.trimmed();
    return isLocal(host) ? std::optional(host) : std::nullopt;
}

QString configFolder()
{
    const QString variable = qEnvironmentVariable("DOCKER_CONFIG");
    return variable.isEmpty() ? QDir::homePath() + QStringLiteral("/.docker") : variable;
}

bool mayAnswer(const QString& host)
{
    return !isLocal(host) || FileStatus::exists(host.mid(localScheme.size()));
}

std::optional<QString> hostVariable()
{
    const QString value = qEnvironmentVariable("DOCKER_HOST");
    return value.isEmpty() ? std::nullopt : std::optional(value);
}

std::optional<QDateTime> parseTime(const QString& text)
{
    // Qt reads at most milliseconds; Docker writes up to nanoseconds.
    static const QRegularExpression fraction(QStringLiteral("(\\.\\d{3})\\d+"));
    QString trimmed = text.trimmed();
    trimmed.replace(fraction, QStringLiteral("\\1"));
    const QDateTime time = QDateTime::fromString(trimmed, Qt::ISODateWithMs);
    if (!time.isValid())
        return std::nullopt;
    return time;
}

}  // namespace DockerEndpoint
