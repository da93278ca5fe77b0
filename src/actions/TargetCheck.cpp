#include "actions/TargetCheck.h"

#include "actions/SecurePath.h"
#include "machinery/Fingerprint.h"
#include "platform/Platform.h"
#include "vocabulary/AllowedPlace.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/RemovalReasons.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace TargetCheck {

namespace {

constexpr qint64 secondsPerDay = 86'400;

bool lexists(const QString& path)
{
    return FileStatus::exists(path);
}

// The secure walk reports only device and inode; the whole identity rule (birth time too) has
// already held for the same path in objectProblem, so this only ties the walk to that object.
bool isSameObject(const FileTarget& target, qint32 device, quint64 inode)
{
    return target.device == device && target.inode == inode;
}

std::optional<QString> vanishedProblem(const FileTarget& target, int error, const RemovalEnvironment& environment)
{
    if (error != ENOENT && error != ENOTDIR)
        return RemovalReasons::folderUnreadable();
    if (environment.movedTargets->contains(target))
        return std::nullopt;  // it went to the Trash with an earlier item
    return RemovalReasons::noLongerExists();
}

// Checks 3 to 6: the object found at the path is the one the scan saw, unchanged.
std::optional<QString> objectProblem(const FileTarget& target, const struct stat& info,
                                     const CancellationToken* cancellation)
{
    if (S_ISLNK(info.st_mode))
        return RemovalReasons::symbolicLink();
    if (!target.isObject(AT_FDCWD, QFile::encodeName(target.path).constData(), info))
        return RemovalReasons::changedSinceScan();
    if (target.content && !hasSameContent(*target.content, info))
        return RemovalReasons::changedSinceScan();
    if (target.tree && Fingerprint::compute(target.path, cancellation) != target.tree)
        return RemovalReasons::changedSinceScan();
    return std::nullopt;
}

std::optional<QString> parentProblem(const FileTarget& target)
{
    const SecurePath::Finding finding = SecurePath::examine(target.path);
    switch (finding.verdict) {
    case SecurePath::Verdict::ok:
        if (isSameObject(target, finding.device, finding.inode))
            return std::nullopt;
        return RemovalReasons::changedSinceScan();
    case SecurePath::Verdict::throughSymbolicLink:
        return RemovalReasons::pathThroughSymbolicLink();
    case SecurePath::Verdict::folderUnreadable:
        return RemovalReasons::folderUnreadable();
    case SecurePath::Verdict::changed:
        return RemovalReasons::changedSinceScan();
    case SecurePath::Verdict::missing:
        return RemovalReasons::noLongerExists();
    }
    return RemovalReasons::folderUnreadable();
}

// A tree that can't be read completely might hide a recent change, so it doesn't count as quiet.
bool isQuietSince(const QString& path, qint64 cutoff, const RemovalEnvironment& environment)
{
    const std::optional<TreeStamp> stamp = Fingerprint::compute(path, environment.cancellation);
    return stamp && stamp->unreadable == 0 && stamp->latestChange < cutoff;
}

std::optional<QString> quietProblem(const FileTarget& target, const RemovalEnvironment& environment,
                                    const std::optional<QString>& projectPath)
{
    if (!target.quietForADay && !target.projectQuietForADay)
        return std::nullopt;
    const qint64 cutoff = environment.now().toSecsSinceEpoch() - secondsPerDay;
    if (target.quietForADay && !isQuietSince(target.path, cutoff, environment))
        return RemovalReasons::changedInLastDay();
    if (target.projectQuietForADay && (!projectPath || !isQuietSince(*projectPath, cutoff, environment)))
        return RemovalReasons::changedInLastDay();
    return std::nullopt;
}

bool runsProgram(const QStringList& pathParts, const QString& program)
{
    if (pathParts.isEmpty() || program.isEmpty())
        return false;
    if (pathParts.last().compare(program, Qt::CaseInsensitive) == 0)
        return true;
    const QString bundle = program + QStringLiteral(".app");
    return std::any_of(pathParts.begin(), pathParts.end(),
                       [&](const QString& part) { return part.compare(bundle, Qt::CaseInsensitive) == 0; });
}

}  // namespace

std::optional<QString> problem(const FileTarget& target, const RemovalEnvironment& environment,
                               const std::optional<QString>& projectPath)
{
    if (!isInAllowedPlace(target.path, environment))
        return RemovalReasons::outsideHome();
    struct stat info {};
    if (::lstat(QFile::encodeName(target.path).constData(), &info) != 0)
        return vanishedProblem(target, errno, environment);
    if (auto found = objectProblem(target, info, environment.cancellation))
        return found;
    if (auto found = parentProblem(target))
        return found;
    if (target.gitLockFile && lexists(*target.gitLockFile))
        return RemovalReasons::gitLocked();
    if (auto found = runningProblem(target, environment))
        return found;
    return quietProblem(target, environment, projectPath);
}

bool isAsScanned(const FileTarget& target, const CancellationToken* cancellation)
{
    struct stat info {};
    if (::lstat(QFile::encodeName(target.path).constData(), &info) != 0)
        return false;
    return !objectProblem(target, info, cancellation);
}

bool isInAllowedPlace(const QString& path, const RemovalEnvironment& environment)
{
    return AllowedPlace::contains(path, environment.home, environment.otherVolumeFolders);
}

bool hasSameContent(const FileTarget::ContentStamp& stamp, const struct stat& info)
{
    return stamp.size == qint64(info.st_size) && stamp.modified == Platform::modificationNanoseconds(info)
        && (!stamp.changed || *stamp.changed == Platform::statusChangeNanoseconds(info));
}

bool usedByRunningApp(const QStringList& programs, const QStringList& runningExecutables)
{
    for (const QString& executable : runningExecutables) {
        const QStringList parts = executable.split(QLatin1Char('/'), Qt::SkipEmptyParts);
        for (const QString& program : programs) {
            if (runsProgram(parts, program))
                return true;
        }
    }
    return false;
}

std::optional<QString> runningProblem(const FileTarget& target, const RemovalEnvironment& environment)
{
    if (target.usedWhileRunning.isEmpty())
        return std::nullopt;
    if (usedByRunningApp(target.usedWhileRunning, environment.runningExecutables()))
        return RemovalReasons::running();
    return std::nullopt;
}

}  // namespace TargetCheck
