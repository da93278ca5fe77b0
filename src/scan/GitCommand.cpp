#include "scan/GitCommand.h"

namespace GitCommand {

std::optional<QString> locate(const QStringList& candidates)
{
    return ProcessRunner::firstExecutable(candidates);
}

std::optional<ProcessRunner::Output> run(const QString& git, const QString& workingCopy, const QStringList& arguments,
                                         std::chrono::milliseconds timeout, const CancellationToken* cancellation,
                                         const QStringList& options)
{
    static const QStringList fixed = {
        QStringLiteral("-c"), QStringLiteral("core.fsmonitor=false"),
        QStringLiteral("-c"), QStringLiteral("core.hooksPath=/dev/null"),
    };
    const QStringList all = fixed + options + QStringList{QStringLiteral("-C"), workingCopy} + arguments;
    static const ProcessRunner::Environment environment = {{QStringLiteral("GIT_OPTIONAL_LOCKS"), QStringLiteral("0")}};
    ProcessRunner::Result result = ProcessRunner::run(git, all, timeout, environment, cancellation);
    return std::move(result.output);
}

std::optional<QString> succeeded(const std::optional<ProcessRunner::Output>& output)
{
    if (!output || output->timedOut || output->status != 0)
        return std::nullopt;
    return output->standardOutput;
}

}  // namespace GitCommand
