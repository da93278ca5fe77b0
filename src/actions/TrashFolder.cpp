#include "actions/TrashFolder.h"

#include "actions/FreedesktopTrash.h"
#include "vocabulary/SystemError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

QByteArray ownId()
{
    return QByteArray::number(::getuid());
}

std::optional<struct stat> statusOf(int fd)
{
    struct stat info {};
    if (::fstat(fd, &info) != 0)
        return std::nullopt;
    return info;
}

// `name` inside `parent`, made owner-only when missing; only a real folder the person owns.
Descriptor ownFolder(int parent, const char* name)
{
    if (::mkdirat(parent, name, 0700) != 0 && errno != EEXIST)
        return {};
    Descriptor folder(::openat(parent, name, folderFlags));
    const auto info = folder.isValid() ? statusOf(folder.get()) : std::nullopt;
    if (!info || info->st_uid != ::getuid())
        return {};
    return folder;
}

bool onVolume(const Descriptor& part, dev_t device)
{
    const auto info = part.isValid() ? statusOf(part.get()) : std::nullopt;
    return info && info->st_dev == device;
}

std::optional<TrashFolder> withParts(Descriptor trash, const QString& path, const QByteArray& topFolder)
{
    const auto folder = statusOf(trash.get());
    if (!folder)
        return std::nullopt;
    TrashFolder opened;
    opened.files = ownFolder(trash.get(), "files");
    opened.info = ownFolder(trash.get(), "info");
    if (!onVolume(opened.files, folder->st_dev) || !onVolume(opened.info, folder->st_dev))
        return std::nullopt;
    opened.folder = std::move(trash);
    opened.filesPath = path + QStringLiteral("/files");
    opened.topFolder = topFolder;
    opened.device = folder->st_dev;
    return opened;
}

QString linkedFolder(const QString& path)
{
    //: Why Empty Trash removed nothing; %1 is a folder of the Trash (or above it) that is a symbolic link
    return QCoreApplication::translate("SystemAccess", "Nothing was removed: %1 is a symbolic link, not the Trash's own folder.").arg(path);
}

QString folderOnOtherDisk(const QString& path)
{
    //: Why Empty Trash removed nothing; %1 is a folder of the Trash that another disk is mounted on
    return QCoreApplication::translate("SystemAccess", "Nothing was removed: %1 lies on another disk than the Trash.").arg(path);
}

QString cannotOpen(const QString& path, int error)
{
    //: Why Empty Trash removed nothing; %1 is a folder of the Trash, %2 the system's reason (such as "Permission denied")
    return QCoreApplication::translate("SystemAccess", "Nothing was removed: %1 can't be opened (%2).").arg(path, SystemError::describe(error));
}

// Why the entry `name` of `parent` could not be opened as a folder without following a link
// (`error`); nothing when it is simply missing.
std::optional<QString> openingRefusal(int parent, const QByteArray& name, const QString& path, int error)
{
    if (error == ENOENT)
        return std::nullopt;
    struct stat info {};
    const bool isLink = ::fstatat(parent, name.constData(), &info, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(info.st_mode);
    if (error == ELOOP || (error == ENOTDIR && isLink))
        return linkedFolder(path);
    return cannotOpen(path, error);
}

// The folders from the home folder down to `trash`, each opened relative to the one above
// without following a link; the home folder itself as the system names it. A trash outside
// the home is reached from "/". Invalid when one can't be opened, with `refusal` saying why
// (nothing when one is missing).
Descriptor openChain(const QString& trash, std::optional<QString>& refusal)
{
    const QString home = QDir::cleanPath(QDir::homePath());
    const bool inHome = home != QStringLiteral("/") && trash.startsWith(home + QLatin1Char('/'));
    QString reached = inHome ? home : QString();
    Descriptor current(::open(inHome ? QFile::encodeName(home).constData() : "/", folderFlags & ~O_NOFOLLOW));
    if (!current.isValid())
        refusal = errno == ENOENT ? std::nullopt : std::optional(cannotOpen(home, errno));
    for (const QString& name : trash.mid(reached.size()).split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (!current.isValid())
            break;
        reached += QLatin1Char('/') + name;
        const QByteArray encoded = QFile::encodeName(name);
        Descriptor next(::openat(current.get(), encoded.constData(), folderFlags));
        if (!next.isValid())
            refusal = openingRefusal(current.get(), encoded, reached, errno);
        current = std::move(next);
    }
    return current;
}

// "files" or "info" of an existing trash, held invalid when missing.
std::optional<QString> openExistingPart(const TrashFolder& trash, const char* name, const QString& path, Descriptor& part)
{
    part.reset(::openat(trash.folder.get(), name, folderFlags));
    if (!part.isValid()) {
        const int error = errno;
        return openingRefusal(trash.folder.get(), name, path, error);
    }
    const auto info = statusOf(part.get());
    if (!info)
        return cannotOpen(path, errno);
    if (info->st_dev != trash.device)
        return folderOnOtherDisk(path);
    if (info->st_uid != ::getuid())
        return cannotOpen(path, EPERM);
    return std::nullopt;
}

// $topdir/.Trash/$uid, used only when .Trash is a real folder with the sticky bit: on a shared
// folder without it, anyone could have prepared our part in advance.
Descriptor sharedTrash(int top)
{
    Descriptor shared(::openat(top, ".Trash", folderFlags));
    const auto info = shared.isValid() ? statusOf(shared.get()) : std::nullopt;
    if (!info || (info->st_mode & S_ISVTX) == 0)
        return {};
    return ownFolder(shared.get(), ownId().constData());
}

// Climbs from `folder` while ".." stays on the same volume; returns the top folder and how many
// levels above `folder` it is.
Descriptor topOfVolume(int folder, int& levels)
{
    Descriptor current(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    levels = 0;
    while (current.isValid()) {
        Descriptor parent(::openat(current.get(), "..", folderFlags));
        const auto here = statusOf(current.get());
        const auto above = parent.isValid() ? statusOf(parent.get()) : std::nullopt;
        if (!here || !above)
            return {};
        if (above->st_dev != here->st_dev || above->st_ino == here->st_ino)
            return current;
        current = std::move(parent);
        ++levels;
    }
    return {};
}

// The folder part of `path` with `levels` more trailing components removed.
QByteArray ancestorPath(const QString& path, int levels)
{
    QByteArray folder = QFile::encodeName(QDir::cleanPath(path));
    for (int i = 0; i <= levels; ++i)
        folder.truncate(std::max<qsizetype>(folder.lastIndexOf('/'), 0));
    return folder.isEmpty() ? QByteArray("/") : folder;
}

}  // namespace

std::optional<TrashFolder> TrashFolder::home()
{
    const QString path = FreedesktopTrash::homeTrash();
    if (!FreedesktopTrash::prepareHomeTrash())
        return std::nullopt;
    // The trash folder itself may be reached through links the person set up (a linked data
    // folder); what is inside it must not be.
    Descriptor trash(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!trash.isValid())
        return std::nullopt;
    return withParts(std::move(trash), path, QByteArray());
}

ExistingTrash TrashFolder::existingHome()
{
    const QString path = QDir::cleanPath(FreedesktopTrash::homeTrash());
    std::optional<QString> refusal;
    TrashFolder trash;
    trash.folder = openChain(path, refusal);
    if (!trash.folder.isValid())
        return {std::nullopt, refusal};
    const auto info = statusOf(trash.folder.get());
    if (!info)
        return {std::nullopt, cannotOpen(path, errno)};
    trash.device = info->st_dev;
    trash.filesPath = path + QStringLiteral("/files");
    if (auto refusal = openExistingPart(trash, "files", trash.filesPath, trash.files))
        return {std::nullopt, refusal};
    if (auto refusal = openExistingPart(trash, "info", path + QStringLiteral("/info"), trash.info))
        return {std::nullopt, refusal};
    return {std::move(trash), std::nullopt};
}

std::optional<TrashFolder> TrashFolder::ofVolume(int folder, const QString& originalPath)
{
    int levels = 0;
    const Descriptor top = topOfVolume(folder, levels);
    if (!top.isValid())
        return std::nullopt;
    const QByteArray topFolder = ancestorPath(originalPath, levels);
    const QString base = topFolder == "/" ? QString() : QFile::decodeName(topFolder);
    if (Descriptor shared = sharedTrash(top.get()); shared.isValid())
        return withParts(std::move(shared), base + QStringLiteral("/.Trash/") + QString::fromLatin1(ownId()), topFolder);
    const QByteArray ownName = ".Trash-" + ownId();
    Descriptor own = ownFolder(top.get(), ownName.constData());
    if (!own.isValid())
        return std::nullopt;
    return withParts(std::move(own), base + QLatin1Char('/') + QString::fromLatin1(ownName), topFolder);
}
