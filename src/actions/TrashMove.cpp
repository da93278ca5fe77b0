#include "actions/TrashMove.h"

#include "actions/FinderTrash.h"
#include "actions/OwnerWrite.h"
#include "actions/SecurePath.h"
#include "actions/TargetCheck.h"
#include "machinery/Descriptor.h"
#include "vocabulary/AllowedPlace.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/RemovalReasons.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace TrashMove {

namespace {

bool isInGoModuleCache(const QString& path)
{
    return path.contains(QLatin1String("/go/pkg/mod"));
}

std::optional<QString> openingProblem(SecurePath::Verdict verdict)
{
    switch (verdict) {
    case SecurePath::Verdict::ok:
        return std::nullopt;
    case SecurePath::Verdict::throughSymbolicLink:
        return RemovalReasons::pathThroughSymbolicLink();
    case SecurePath::Verdict::folderUnreadable:
        return RemovalReasons::folderUnreadable();
    case SecurePath::Verdict::changed:
    case SecurePath::Verdict::missing:
        break;
    }
    return RemovalReasons::changedSinceScan();
}

// The scanned object, unchanged: its identity, and the content stamp for a file.
bool isScannedObject(const FileTarget& target, const SecurePath::OpenedParent& parent, const struct stat& info)
{
    if (S_ISLNK(info.st_mode) || !target.isObject(parent.folder.get(), parent.name.constData(), info))
        return false;
    return !target.content || TargetCheck::hasSameContent(*target.content, info);
}

// The last look, through the folder's descriptor, right before the move.
std::optional<QString> lastLookProblem(const FileTarget& target, const SecurePath::OpenedParent& parent)
{
    if (auto problem = openingProblem(parent.verdict))
        return problem;
    if (SecurePath::isAmbiguousName(parent.folder.get(), parent.name))
        return RemovalReasons::ambiguousName();
    struct stat info {};
    if (::fstatat(parent.folder.get(), parent.name.constData(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT ? RemovalReasons::noLongerExists() : RemovalReasons::folderUnreadable();
    if (!isScannedObject(target, parent, info))
        return RemovalReasons::changedSinceScan();
    return std::nullopt;
}

// Go keeps its module cache read-only. The permissions change through a descriptor of the
// object itself, checked to be the scanned one, so no link swapped in is ever followed.
std::optional<QString> makeWritable(const FileTarget& target, const SecurePath::OpenedParent& parent)
{
    const Descriptor root(::openat(parent.folder.get(), parent.name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat info {};
    if (!root.isValid() || ::fstat(root.get(), &info) != 0)
        return RemovalReasons::changedSinceScan();
    if (qint32(info.st_dev) != target.device || quint64(info.st_ino) != target.inode)
        return RemovalReasons::changedSinceScan();
    OwnerWrite::addThroughTree(root.get());
    return std::nullopt;
}

std::optional<QString> trashRefused(const FileTarget& target, const TrashResult& result,
                                    const RemovalEnvironment& environment)
{
    if (result.wrongObject)
        return RemovalReasons::changedSinceScan();
    if (!result.permissionDenied || !AllowedPlace::isApplicationsBundle(target.path))
        return RemovalReasons::trashFailed(result.error);
    auto finderProblem = FinderTrash::moveToTrash(target.path, environment.tools.osascript, environment.cancellation);
    if (!finderProblem)
        environment.movedTargets->record(target);
    return finderProblem;
}

TrashRequest requestFor(const FileTarget& target, const SecurePath::OpenedParent& parent)
{
    return {target.path, parent.folder.get(), parent.name, target};
}

}  // namespace

std::optional<QString> moveOne(const FileTarget& target, const RemovalEnvironment& environment)
{
    if (!FileStatus::exists(target.path) && environment.movedTargets->contains(target))
        return std::nullopt;
    const SecurePath::OpenedParent parent = SecurePath::openParent(target.path);
    if (auto problem = lastLookProblem(target, parent))
        return problem;
    if (isInGoModuleCache(target.path)) {
        if (auto problem = makeWritable(target, parent))
            return problem;
    }
    const TrashResult result = environment.trash(requestFor(target, parent));
    if (!result.moved())
        return trashRefused(target, result, environment);
    environment.movedTargets->record(target);
    return std::nullopt;
}

RemovalOutcome moveAll(const QList<FileTarget>& targets, const RemovalEnvironment& environment,
                       const std::optional<QString>& projectPath)
{
    if (targets.isEmpty())
        return RemovalOutcome::failed(RemovalReasons::noLongerExists());
    for (const FileTarget& target : targets) {
        if (auto problem = TargetCheck::problem(target, environment, projectPath))
            return RemovalOutcome::failed(*problem);
    }
    for (const FileTarget& target : targets) {
        if (auto problem = moveOne(target, environment))
            return RemovalOutcome::failed(*problem);
    }
    return RemovalOutcome::movedToTrash();
}

}  // namespace TrashMove
