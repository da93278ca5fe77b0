#include "actions/Notifier.h"

#include "machinery/ProcessRunner.h"

namespace Notifier {

namespace {

const QString appName = QStringLiteral("Dustlark");
const QString desktopEntry = QStringLiteral("app.dustlark.Dustlark");

// An AppleScript string literal: only the backslash and the double quote need escaping.
QString appleScriptString(const QString& text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('"'), QStringLiteral("\\\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

}  // namespace

QStringList appleScriptCommand(const Notice& notice)
{
    const QString script = QStringLiteral("display notification %1 with title %2 subtitle %3")
                               .arg(appleScriptString(notice.body), appleScriptString(appName),
                                    appleScriptString(notice.summary));
    return {QStringLiteral("/usr/bin/osascript"), QStringLiteral("-e"), script};
}

std::optional<quint32> send(const Notice& notice, const Delivery& delivery)
{
    if (delivery.desktop == Platform::Desktop::freedesktop)
        return Platform::postDesktopNotification(delivery.busAddress, {appName, desktopEntry, notice.summary, notice.body});
    const QStringList command = appleScriptCommand(notice);
    const ProcessRunner::Result result = ProcessRunner::run(command.first(), command.mid(1), std::chrono::seconds(10));
    if (!result.launched() || result.output->status != 0 || result.output->timedOut)
        return std::nullopt;
    return 0;
}

}  // namespace Notifier
