#pragma once

#include "machinery/ScanContext.h"
#include "scan/Artifact.h"
#include "scan/DuplicateFinder.h"
#include "scan/LargeFile.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// The one pass over the scan folders that feeds four categories: build folders inside
// projects, large files, duplicate candidates and git repositories. Symbolic links are never
// followed, no other volume is entered, and build folders, packages, Safe List folders and
// tool folders directly in the home folder are never entered.
//
// Thread-safety: a Walk belongs to the one worker thread that runs it. The only shared object
// it touches is the context's ScanProgress, which guards itself. The static tests are
// thread-safe.
class Walk {
public:
    // What the traversal does after an entry.
    enum class Action { Continue, Skip, Stop };

    explicit Walk(ScanContext context);

    // Walks one scan folder and adds what it finds to the results; call once per distinct
    // root (ProjectScanner::distinctRoots), in order. Stops early, keeping what it found, when
    // the context's cancellation fires. A root that cannot be opened adds nothing.
    void run(const QString& root);

    [[nodiscard]] const QList<Artifact>& artifacts() const { return m_artifacts; }
    [[nodiscard]] const QList<LargeFile>& largeFiles() const { return m_largeFiles; }
    [[nodiscard]] const QList<DuplicateFinder::File>& duplicateCandidates() const { return m_duplicateCandidates; }
    // Folders and entries that could not be read.
    [[nodiscard]] qint64 unreadable() const { return m_unreadable; }
    // Folders and big files left out because their names do not survive decoding to text:
    // such an entry could be neither shown nor found again by its path.
    [[nodiscard]] qint64 undecodable() const { return m_undecodable; }
    // During a walk, the repositories enclosing the current position; afterwards whatever
    // was still on that stack. mainRepositories() is the complete list.
    [[nodiscard]] const QStringList& repositories() const { return m_repositories; }
    // Every folder found whose ".git" is a directory (not an extra worktree's ".git" file).
    [[nodiscard]] const QStringList& mainRepositories() const { return m_mainRepositories; }

    // Whether `path` lies inside a repository on the stack. Pops repositories that no longer
    // enclose the position, which is right only because the traversal is depth first.
    [[nodiscard]] bool insideRepository(const QString& path);

    // Whether the folder `path`, named `name` and lying in `parent`, is a build folder that
    // its project's marker file proves (or, for "build", Xcode output inside it).
    [[nodiscard]] static bool isBuildFolder(const QString& name, const QString& path, const QString& parent);
    // Whether the entry `child` of the folder `buildPath` is something only Xcode makes.
    [[nodiscard]] static bool provesXcodeOutput(const QString& child, const QString& buildPath);
    // Whether `path` is a regular file starting with a Mach-O or universal-binary magic number.
    [[nodiscard]] static bool isMachO(const QString& path);

private:
    class Pass;

    void adoptRepositoryAbove(const QString& root);

    ScanContext m_context;
    QList<Artifact> m_artifacts;
    QList<LargeFile> m_largeFiles;
    QList<DuplicateFinder::File> m_duplicateCandidates;
    qint64 m_unreadable = 0;
    qint64 m_undecodable = 0;
    QStringList m_repositories;
    QStringList m_mainRepositories;
    QSet<QString> m_foundPaths;
};
