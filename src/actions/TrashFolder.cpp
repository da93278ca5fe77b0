#include "actions/TrashFolder.h"

#include "actions/FreedesktopTrash.h"

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

std::optional<TrashFolder> withParts(Descriptor trash, const QString& path, const QByteArray& topFolder)
{
    TrashFolder opened;
    opened.files = ownFolder(trash.get(), "files");
    opened.info = ownFolder(trash.get(), "info");
    const auto info = opened.files.isValid() ? statusOf(opened.files.get()) : std::nullopt;
    if (!info || !opened.info.isValid())
        return std::nullopt;
    opened.filesPath = path + QStringLiteral("/files");
    opened.topFolder = topFolder;
    opened.device = info->st_dev;
    return opened;
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
