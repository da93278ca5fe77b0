#include "actions/TrashMove.h"

#include "actions/FinderTrash.h"
#include "actions/MovedTargets.h"
#include "actions/OwnerWrite.h"
#include "actions/SecurePath.h"
#include "actions/SystemTrash.h"
#include "actions/TargetCheck.h"
#include "platform/Platform.h"
#include "vocabulary/AllowedPlace.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/RemovalReasons.h"

#include <QFile>

#include <sys/stat.h>

namespace TrashMove {

namespace {

bool lexists(const QString& path)
{
    return FileStatus::exists(path);
}

bool isInGoModuleCache(const QString& path)
{
    return path.contains(QLatin1String("/go/pkg/mod"));
}

// The last look, through descriptors, right before the move: still the same object.
std::optional<QString> lastLookProblem(const FileTarget& target)
{
    const SecurePath::Finding finding = SecurePath::examine(target.path);
    if (finding.verdict == SecurePath::Verdict::throughSymbolicLink)
        return RemovalReasons::pathThroughSymbolicLink();
    if (finding.verdict != SecurePath::Verdict::ok || finding.device != target.device || finding.inode != target.inode)
        return RemovalReasons::changedSinceScan();
    return std::nullopt;
}

bool arrivedUnchanged(const FileTarget& target, const QString& pathInTrash)
{
    const auto info = FileStatus::of(pathInTrash);
    return info && qint32(info->st_dev) == target.device && quint64(info->st_ino) == target.inode;
}

// Something else was swapped in between the last look and the move: return it to where it was,
// never over whatever may be there by now.
void putBack(const QString& pathInTrash, const QString& originalPath)
{
    if (Platform::renameNoReplace(pathInTrash, originalPath) == 0)
        SystemTrash::discardRecord(pathInTrash);
}

std::optional<QString> trashRefused(const FileTarget& target, const TrashResult& result,
                                    const RemovalEnvironment& environment)
{
    if (!result.permissionDenied || !AllowedPlace::isApplicationsBundle(target.path))
        return RemovalReasons::trashFailed(result.error);
    auto finderProblem = FinderTrash::moveToTrash(target.path, environment.tools.osascript, environment.cancellation);
    if (!finderProblem)
        MovedTargets::record(target);
    return finderProblem;
}

}  // namespace

std::optional<QString> moveOne(const FileTarget& target, const RemovalEnvironment& environment)
{
    if (!lexists(target.path) && MovedTargets::contains(target))
        return std::nullopt;
    if (auto problem = lastLookProblem(target))
        return problem;
    if (isInGoModuleCache(target.path))
        OwnerWrite::addThroughTree(target.path);
    const TrashResult result = environment.trash(target.path);
    if (!result.moved())
        return trashRefused(target, result, environment);
    if (!arrivedUnchanged(target, *result.pathInTrash)) {
        putBack(*result.pathInTrash, target.path);
        return RemovalReasons::changedSinceScan();
    }
    MovedTargets::record(target);
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
