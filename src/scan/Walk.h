#pragma once

#include "machinery/ScanContext.h"
#include "scan/Artifact.h"
#include "scan/DuplicateFinder.h"
#include "scan/LargeFile.h"
#include "scan/ShallowNewest.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

// The one pass over the scan folders that feeds four categories: build folders inside
// projects, large files, duplicate candidates and git repositories. Symbolic links are never
// followed, no other volume is entered, and build folders, packages, Safe List folders and
// tool folders directly in the home folder are never entered.
//
// Thread-safety: a Walk belongs to the thread that runs it; a big tree is walked on two threads
// (SplitWalk) and the pieces' findings are put back in walk order before run() returns. The
// only shared object is the context's ScanProgress, which guards itself. The static tests are
// thread-safe.
class Walk {
public:
    explicit Walk(ScanContext context);

    // Walks one scan folder and adds what it finds to the results; call once per distinct
    // root (ProjectScanner::distinctRoots), in order. Stops early, keeping what it found, when
    // the context's cancellation fires. A root that cannot be opened adds nothing.
    void run(const QString& root);

    [[nodiscard]] const QList<Artifact>& artifacts() const { return m_found.artifacts; }
    [[nodiscard]] const QList<LargeFile>& largeFiles() const { return m_found.largeFiles; }
    [[nodiscard]] const QList<DuplicateFinder::File>& duplicateCandidates() const { return m_found.duplicateCandidates; }
    // Folders and entries that could not be read.
    [[nodiscard]] qint64 unreadable() const { return m_found.unreadable; }
    // Folders and big files left out because their names do not survive decoding to text:
    // such an entry could be neither shown nor found again by its path.
    [[nodiscard]] qint64 undecodable() const { return m_found.undecodable; }
    // Every folder found whose ".git" is a directory (not an extra worktree's ".git" file).
    [[nodiscard]] const QStringList& mainRepositories() const { return m_found.mainRepositories; }
    // The newest file of each project's shallow part (ProjectInfo::newestChange with the project
    // entry limit), for the projects whose every such entry the walk met.
    [[nodiscard]] const ShallowNewest::Known& projectDates() const { return m_found.projectDates; }

    // Whether the folder `path`, named `name` and lying in `parent`, is a build folder that
    // its project's marker file proves (or, for "build", Xcode output inside it).
    [[nodiscard]] static bool isBuildFolder(const QString& name, const QString& path, const QString& parent);
    // Whether the entry `child` of the folder `buildPath` is something only Xcode makes.
    [[nodiscard]] static bool provesXcodeOutput(const QString& child, const QString& buildPath);
    // Whether `path` is a regular file starting with a Mach-O or universal-binary magic number.
    [[nodiscard]] static bool isMachO(const QString& path);

private:
    class Pass;

    // What a walk, or one piece of it, has found, in walk order.
    struct Findings {
        QList<Artifact> artifacts;
        QList<LargeFile> largeFiles;
        QList<DuplicateFinder::File> duplicateCandidates;
        qint64 unreadable = 0;
        qint64 undecodable = 0;
        // The repositories enclosing the current position, innermost last; entries that no
        // longer enclose it are popped when next asked, which is right because the walk is
        // depth first.
        QStringList repositories;
        QStringList mainRepositories;
        QSet<QString> artifactPaths;  // filled by append only
        ShallowNewest::Known projectDates;

        [[nodiscard]] bool insideRepository(const QString& path);
        // Adds what a later piece of the walk found; a build folder already found stays once.
        void append(Findings&& later);
    };

    void adoptRepositoryAbove(const QString& root);

    ScanContext m_context;
    Findings m_found;
};
