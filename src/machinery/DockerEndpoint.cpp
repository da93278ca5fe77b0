#include "machinery/DockerEndpoint.h"

#include "machinery/ProcessRunner.h"

#include <QRegularExpression>

namespace DockerEndpoint {

namespace {

constexpr std::chrono::seconds contextTimeLimit{20};

bool isLocal(const QString& host)
{
    return host.startsWith(QLatin1String("unix://"));
}

}  // namespace

std::optional<QString> localHost(const QString& executable, const std::optional<QString>& hostVariable,
                                 const CancellationToken* cancellation)
{
    if (hostVariable)
        return isLocal(*hostVariable) ? hostVariable : std::nullopt;
    const ProcessRunner::Result result = ProcessRunner::run(
        executable, {QStringLiteral("context"), QStringLiteral("inspect"), QStringLiteral("--format"), QStringLiteral("{{.Endpoints.docker.Host}}")},
        contextTimeLimit, {}, cancellation);
    if (!result.launched() || result.output->status != 0 || result.output->timedOut)
        return std::nullopt;
    const QString host = result.output->standardOutput.trimmed();
    return isLocal(host) ? std::optional(host) : std::nullopt;
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
