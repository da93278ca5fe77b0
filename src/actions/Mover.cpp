#include "actions/Mover.h"

#include "machinery/Fingerprint.h"
#include "actions/MoverReasons.h"
#include "actions/MoverRun.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace Mover {

namespace {

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

dev_t deviceOf(const FileTarget& target)
{
    const std::optional<struct stat> info = FileStatus::of(target.path);
    return info ? info->st_dev : dev_t(target.device);
}

// The first of two target names that differ only in case.
std::optional<QString> repeatedName(const QStringList& names)
{
    for (qsizetype i = 0; i < names.size(); ++i) {
        for (qsizetype j = i + 1; j < names.size(); ++j) {
            if (names[i].compare(names[j], Qt::CaseInsensitive) == 0)
                return names[i];
        }
    }
    return std::nullopt;
}

std::optional<QString> placeProblem(const QString& destination, const QList<FileTarget>& targets)
{
    struct stat folder {};
    // The chosen folder may be reached through a link (a volume's alias), so it is followed.
    if (::stat(QFile::encodeName(destination).constData(), &folder) != 0 || !S_ISDIR(folder.st_mode))
        return Reasons::destinationUnavailable();
    if (::access(QFile::encodeName(destination).constData(), W_OK | X_OK) != 0)
        return Reasons::destinationNotWritable();
    const QString real = QFileInfo(destination).canonicalFilePath();
    for (const FileTarget& target : targets) {
        if (PathRules::isAtOrBelow(real, target.path))
            return Reasons::insideItself();
        if (deviceOf(target) == folder.st_dev)
            return Reasons::sameDisk();
    }
    return std::nullopt;
}

}  // namespace

std::optional<QString> problem(const QString& destination, const CleanupItem& item)
{
    const auto* trash = item.removal.as<Removal::Trash>();
    const QList<FileTarget> targets = trash ? trash->targets : QList<FileTarget>{};
    if (const std::optional<QString> place = placeProblem(destination, targets))
        return place;
    QStringList names;
    for (const FileTarget& target : targets)
        names.append(nameOf(target.path));
    if (const std::optional<QString> repeated = repeatedName(names))
        return Reasons::sameNameTwice(*repeated);
    for (const QString& name : names) {
        if (FileStatus::exists(QDir(destination).filePath(name)))
            return Reasons::nameTaken(name);
    }
    return std::nullopt;
}

Outcome move(const CleanupItem& item, const QString& destination, const Progress& progress, const Environment& environment)
{
    const auto* trash = item.removal.as<Removal::Trash>();
    if (!trash || trash->targets.isEmpty())
        return Outcome::failed(Reasons::onlyFilesAndFolders());
    if (item.lockedReason)
        return Outcome::failed(*item.lockedReason);
    if (const std::optional<QString> refused = problem(destination, item))
        return Outcome::failed(*refused);
    return Run(item, destination, progress, environment).perform();
}

std::optional<TreeStamp> fingerprint(const QString& path, const CancellationToken* stoppable)
{
    return Fingerprint::compute(path, stoppable);
}

}  // namespace Mover
