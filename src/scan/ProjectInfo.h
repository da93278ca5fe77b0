#pragma once

#include "machinery/CancellationToken.h"
#include "scan/ShallowNewest.h"
#include "vocabulary/HashCombine.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

// What the projects scanner knows about one project folder that holds build folders: the
// repository it belongs to, the title of its rows and when it last changed. Plain value; the
// static functions only read the file system and are thread-safe.
struct ProjectInfo {
    QString path;   // the project folder
    QString root;   // the repository root holding it, else the project folder itself
    QString title;  // the project's name; "repo/sub/project" for a project nested in a repository
    std::optional<QDateTime> lastActivity;

    // Entries the shallow walk of a project's working copy looks at, at most.
    static constexpr qint64 projectEntryLimit = 5'000;

    // The info of the project folder `path`, whose repository root is searched from `path` up
    // to, but not including, `home` (a home folder under git for its dotfiles is no project).
    // The newest file of its working copy is taken from `known` when that holds the project
    // (a walk already looked at it), else walked for.
    [[nodiscard]] static ProjectInfo of(const QString& path, const QString& home,
                                        const CancellationToken* cancellation = nullptr,
                                        const ShallowNewest::Known* known = nullptr);

    // The first folder from `path` upwards, below `home` (or "/"), holding a ".git" entry;
    // `path` itself when there is none.
    [[nodiscard]] static QString repositoryRoot(const QString& path, const QString& home);

    // The newer of git's own dates for `root` and the newest file in `path`'s working copy.
    [[nodiscard]] static std::optional<QDateTime> lastActivityOf(const QString& path, const QString& root,
                                                                 const CancellationToken* cancellation = nullptr);

    // The newer of `newestFile` and git's own dates for `root`.
    [[nodiscard]] static std::optional<QDateTime> newestOf(std::optional<QDateTime> newestFile, const QString& root);

    // Modification times of git's "HEAD" and "index" for the working copy `workingCopy`; a
    // ".git" file (worktree, submodule) is followed through its "gitdir:" line first. Empty
    // when there is no git metadata or it cannot be read.
    [[nodiscard]] static QList<QDateTime> gitDates(const QString& workingCopy);

    // Where a working copy's ".git" file points (its "gitdir:" line, made absolute against the
    // working copy); absent when ".git" is no such file.
    [[nodiscard]] static std::optional<QString> gitFileTarget(const QString& workingCopy);

    // The newest modification time of a regular file in the shallow part of `workingCopy`
    // (ShallowNewest's rule), looking at no more than `limit` entries, staying on one volume.
    // Absent when no file was found.
    [[nodiscard]] static std::optional<QDateTime> newestChange(const QString& workingCopy, qint64 limit,
                                                               const CancellationToken* cancellation = nullptr);

    bool operator==(const ProjectInfo&) const = default;
};

inline size_t qHash(const ProjectInfo& info, size_t seed = 0)
{
    return HashCombine(seed).add(info.path).add(info.root).add(info.title).add(info.lastActivity).result();
}
