#include "model/CleanupLock.h"

#include "vocabulary/SystemError.h"
#include "vocabulary/SystemPlaces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

std::optional<CleanupLock> CleanupLock::acquire(const QString& path, QString* reason, bool* isBusy)
{
    if (isBusy)
        *isBusy = false;
    QDir().mkpath(QFileInfo(path).absolutePath());
    Descriptor file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!file.isValid()) {
        //: Why a cleanup didn't start; %1 is the path of the lock file, %2 the system's reason
        *reason = QCoreApplication::translate("CleanupLock", "Dustlark couldn't open %1 (%2).")
                      .arg(path, SystemError::describe(errno));
        return std::nullopt;
    }
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        const bool busy = errno == EWOULDBLOCK;
        if (isBusy)
            *isBusy = busy;
        *reason = busy ? busyReason() : SystemError::describe(errno);
        return std::nullopt;
    }
    return CleanupLock(std::move(file));
}

QString CleanupLock::defaultPath()
{
    return SystemPlaces::appDataFolder() + QStringLiteral("/cleanup.lock");
}

QString CleanupLock::busyReason()
{
    //: Why a cleanup didn't start: the app or the command-line tool is already removing files
    return QCoreApplication::translate("CleanupLock", "Another cleanup is removing files right now. Try again when it has finished.");
}
