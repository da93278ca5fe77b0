#include "actions/ToolAnswer.h"

#include "machinery/ProcessRunner.h"
#include "vocabulary/RemovalReasons.h"

ToolAnswer ToolAnswer::ask(const QString& executable, const QStringList& arguments,
                           std::chrono::seconds timeLimit, const CancellationToken* cancellation)
{
    const ProcessRunner::Result result = ProcessRunner::run(executable, arguments, timeLimit, {}, cancellation);
    if (!result.launched())
        return {false, {}, RemovalReasons::toolDidNotStart(result.launchError)};
    const ProcessRunner::Output& output = *result.output;
    if (output.status != 0 || output.timedOut)
        return {false, {}, output.errorMessage()};
    return {true, output.standardOutput, {}};
}
