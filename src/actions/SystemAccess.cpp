#include "actions/SystemAccess.h"

#include "actions/FinderMessage.h"
#include "machinery/DetachedLaunch.h"
#include "actions/FreedesktopTrash.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <chrono>
#include <fcntl.h>
#include <unistd.h>

namespace SystemAccess {

namespace {

constexpr std::chrono::seconds emptyTrashTimeLimit{3700};  // Finder itself gets 3,600 seconds
constexpr int automationDenied = -1743;
constexpr int finderReplyTimedOut = -1712;
constexpr int stoppedInFinder = -128;

bool isMac()
{
    return Platform::desktop() == Platform::Desktop::finder;
}

QString stillEmptying()
{
    //: Empty Trash status
    return QCoreApplication::translate("SystemAccess", "Finder is still emptying the Trash; it finishes on its own.");
}

QString messageForNumber(int number)
{
    if (number == automationDenied) {
        //: Empty Trash error
        return QCoreApplication::translate("SystemAccess", "macOS didn't allow Dustlark to control Finder. Allow it in System Settings › Privacy & Security › Automation.");
    }
    if (number == finderReplyTimedOut)
        return stillEmptying();
    if (number == stoppedInFinder) {
        //: Empty Trash error
        return QCoreApplication::translate("SystemAccess", "Emptying the Trash was stopped in Finder. What was already removed is gone.");
    }
    return {};
}

// Finder's own sentence: what follows "got an error: ", without the trailing error number.
QString finderSentence(const QString& message)
{
    static const QString marker = QStringLiteral("got an error: ");
    const qsizetype at = message.indexOf(marker);
    if (at < 0)
        return {};
    return FinderMessage::sentence(message.mid(at));
}

QString partialFailure(const QString& sentence)
{
    if (sentence.contains(QLatin1String("in use"), Qt::CaseInsensitive)) {
        //: Empty Trash error. The placeholder is Finder's own sentence.
        return QCoreApplication::translate("SystemAccess", "Finder couldn't empty the whole Trash: %1 Quit the app that uses it and empty the Trash again.").arg(sentence);
    }
    //: Empty Trash error. The placeholder is Finder's own sentence.
    return QCoreApplication::translate("SystemAccess", "Finder couldn't empty the whole Trash: %1 Empty the Trash again or use Finder.").arg(sentence);
}

std::optional<QString> emptyThroughFinder(const QString& osascript)
{
    const QString script = QStringLiteral("with timeout of 3600 seconds\n    tell application \"Finder\" to empty trash\nend timeout");
    const ProcessRunner::Result result = ProcessRunner::run(osascript, {QStringLiteral("-e"), script}, emptyTrashTimeLimit);
    if (!result.launched()) {
        //: Empty Trash error when osascript can't be started. The placeholder is the system's reason.
        return QCoreApplication::translate("SystemAccess", "Finder couldn't be asked to empty the Trash: %1").arg(result.launchError);
    }
    if (result.output->status == 0 && !result.output->timedOut)
        return std::nullopt;
    return trashFailure(*result.output);
}

QString existingOrParent(const QString& path)
{
    return QFileInfo::exists(path) ? path : QFileInfo(path).path();
}

}  // namespace

bool hasFullDiskAccess(const QString& home)
{
    if (!isMac())
        return true;
    return canOpenForReading(home + QStringLiteral("/Library/Application Support/com.apple.TCC/TCC.db"));
}

bool canOpenForReading(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    ::close(fd);
    return true;
}

bool openFullDiskAccessSettings()
{
    if (!isMac())
        return false;
    return QProcess::startDetached(QStringLiteral("/usr/bin/open"),
                                   {QStringLiteral("x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles")});
}

std::optional<QString> emptyTrash(const FreedesktopTrash::EmptyProgress& progress, const CancellationToken* stop,
                                  const QString& osascript)
{
    if (isMac())
        return emptyThroughFinder(osascript);
    return FreedesktopTrash::empty(progress, stop);
}

QString trashFailure(const ProcessRunner::Output& output)
{
    if (output.timedOut)
        return stillEmptying();
    if (const std::optional<int> number = FinderMessage::errorNumber(output.standardError)) {
        const QString message = messageForNumber(*number);
        if (!message.isEmpty())
            return message;
    }
    const QString sentence = finderSentence(output.standardError);
    if (sentence.isEmpty())
        return output.errorMessage();
    return partialFailure(sentence);
}

QStringList revealCommand(const QString& path)
{
    const QString shown = existingOrParent(path);
    if (isMac() && shown == path)
        return {QStringLiteral("/usr/bin/open"), QStringLiteral("-R"), path};
    if (isMac())
        return {QStringLiteral("/usr/bin/open"), shown};
    // xdg-open can't select a file; its folder is the closest a freedesktop desktop offers.
    const QString folder = QFileInfo(shown).isDir() && shown != path ? shown : QFileInfo(shown).path();
    return {QStringLiteral("/usr/bin/xdg-open"), folder};
}

bool reveal(const QString& path, const QString& opener)
{
    if (!isMac() && Platform::showItemInFileManager(existingOrParent(path)))
        return true;
    QStringList command = revealCommand(path);
    if (!isMac())
        command.first() = opener;
    return DetachedLaunch::start(command.first(), command.mid(1)) > 0;
}

}  // namespace SystemAccess
