#include "actions/FinderTrash.h"

#include "actions/FinderMessage.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>

#include <chrono>

namespace FinderTrash {

namespace {

constexpr std::chrono::seconds timeLimit{600};
constexpr int automationDenied = -1743;

QStringList scriptArguments(const QString& path)
{
    return {QStringLiteral("-e"), QStringLiteral("on run argv"),
            QStringLiteral("-e"), QStringLiteral("tell application \"Finder\" to delete (POSIX file (item 1 of argv) as alias)"),
            QStringLiteral("-e"), QStringLiteral("end run"),
            path};
}

}  // namespace

std::optional<QString> moveToTrash(const QString& path, const QString& osascript, const CancellationToken* cancellation)
{
    const ProcessRunner::Result result = ProcessRunner::run(osascript, scriptArguments(path), timeLimit, {}, cancellation);
    if (!result.launched())
        return RemovalReasons::toolDidNotStart(result.launchError);
    if (result.output->status == 0 && !result.output->timedOut)
        return std::nullopt;
    return failureReason(*result.output);
}

QString failureReason(const ProcessRunner::Output& output)
{
    if (output.timedOut)
        return output.errorMessage();
    if (output.standardError.contains(QLatin1String("(-128)"))) {
        //: Cleanup failure reason: macOS asked for the password to remove an app and it was cancelled
        return QCoreApplication::translate("Remover", "The administrator password wasn't entered.");
    }
    if (FinderMessage::errorNumber(output.standardError) == automationDenied) {
        //: Cleanup failure reason: macOS doesn't let Dustlark control Finder (Automation permission)
        return QCoreApplication::translate("Remover", "macOS didn't allow Dustlark to control Finder. Allow it in System Settings › Privacy & Security › Automation.");
    }
    const QString sentence = FinderMessage::sentence(output.standardError);
    if (sentence.isEmpty())
        return output.errorMessage();
    //: Cleanup failure reason. The placeholder is Finder's own message (a sentence).
    return QCoreApplication::translate("Remover", "Finder couldn't move it to the Trash: %1").arg(sentence);
}

}  // namespace FinderTrash
