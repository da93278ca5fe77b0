#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/ScanContext.h"
#include "vocabulary/CategoryResult.h"
#include "vocabulary/CleanupItem.h"
#include "vocabulary/HashCombine.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Lists the extra working copies that `git worktree add` made for the repositories the walk
// found, reading git's own metadata; git itself runs only to learn what work a worktree holds
// that exists nowhere else. The main working copy is never listed. Stateless; every function
// is thread-safe.
namespace WorktreeFinder {

// One extra worktree of a repository, as its metadata describes it. Plain value.
struct Worktree {
    QString repository;             // the main working copy
    QString path;                   // the worktree's folder
    QString metadata;               // its folder in the repository's ".git/worktrees"
    std::optional<QString> branch;  // absent when HEAD is detached
    bool lockedInGit = false;       // `git worktree lock` left a "locked" file

    bool operator==(const Worktree&) const = default;
};

// The rows of the Git Worktrees category for `repositories` (main working copies), with the
// note that git is missing when it is and some worktree was found. Examines three worktrees at
// once; stops starting new ones when the context is cancelled. Worktrees outside an allowed
// place, in a synced folder or in a Safe List folder give no row.
[[nodiscard]] ScanOutput items(const QStringList& repositories, const ScanContext& context,
                               const QStringList& gitCandidates);

// The worktrees of one repository, read from its ".git/worktrees" folder; entries whose files
// can't be read, whose worktree folder is gone or whose ".git" file points elsewhere are left out.
[[nodiscard]] QList<Worktree> worktrees(const QString& repository);

// Whether the ".git" file of the worktree folder `worktree` names `metadata` (compared as real
// paths, so a relative "gitdir:" and a path through a symbolic link both count).
[[nodiscard]] bool pointsBack(const QString& worktree, const QString& metadata);

// Whether the worktree may be offered: it and its metadata in an allowed place, not in a synced
// folder, not in a Safe List folder.
[[nodiscard]] bool isOffered(const Worktree& worktree, const ScanContext& context);

// The "-c" settings that switch off every clean, smudge and process filter the worktree's
// configuration names, so a status query never runs a program of the repository's own.
// Absent when git can't tell.
[[nodiscard]] std::optional<QStringList> filtersOff(const QString& worktree, const QString& git,
                                                    const CancellationToken* cancellation = nullptr);
// The number of files not committed (untracked ones included); absent when git can't tell.
[[nodiscard]] std::optional<int> uncommittedChanges(const QString& worktree, const QString& git,
                                                    const QStringList& filterSettings,
                                                    const CancellationToken* cancellation = nullptr);
// For a detached HEAD: the commits that no branch, tag or remote holds; absent when git can't tell.
[[nodiscard]] std::optional<int> commitsOnNoBranch(const QString& worktree, const QString& git,
                                                   const CancellationToken* cancellation = nullptr);

// One row for the worktree; absent when its folder can't be identified or measured. `git` is
// absent when git isn't installed.
[[nodiscard]] std::optional<CleanupItem> row(const Worktree& worktree, const ScanContext& context,
                                             const std::optional<QString>& git);

// The note shown when git is missing.
[[nodiscard]] QString gitMissingNote();

}  // namespace WorktreeFinder

inline size_t qHash(const WorktreeFinder::Worktree& w, size_t seed = 0)
{
    return HashCombine(seed).add(w.repository).add(w.path).add(w.metadata).add(w.branch).add(w.lockedInGit).result();
}
