#pragma once

#include "machinery/FileSizer.h"
#include "machinery/ToolLocations.h"
#include "platform/Platform.h"
#include "scan/Artifact.h"
#include "scan/LargeFile.h"
#include "scan/ProjectInfo.h"
#include "scan/Scanner.h"
#include "vocabulary/CleanupItem.h"

#include <QDir>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// The projects scanner: owns the one walk of the scan folders and turns it into four
// categories at once: build folders inside projects, large files, duplicates and git
// worktrees. A value type; scan() runs on one worker thread and fans the per-project,
// per-folder and per-worktree work out to bounded pools of its own.
class ProjectScanner : public Scanner {
public:
    // `gitCandidates`: where to look for git, first installed one wins.
    explicit ProjectScanner(QStringList gitCandidates = ToolLocations::gitCandidates())
        : m_gitCandidates(std::move(gitCandidates)) {}

    QList<CategoryID> categories() const override;
    ScanOutputs scan(const ScanContext& context) const override;

    // The scan folders to walk, each once: "~" expanded with `home`, paths cleaned, sorted by
    // plain string order, folders inside an earlier one dropped (so nothing is walked twice),
    // and only existing folders kept.
    [[nodiscard]] static QStringList distinctRoots(const QStringList& roots, const QString& home = QDir::homePath());

    // The row of one build folder of the measured `size`, with its project's info when known and
    // the git check for a "build" folder (`git` absent: not installed). Absent when the folder
    // vanished, holds no file or could not be measured completely.
    [[nodiscard]] static std::optional<CleanupItem> buildFolderRow(const Artifact& artifact,
                                                                   const FileSizer::Measurement& size,
                                                                   const ProjectInfo* project,
                                                                   const std::optional<QString>& git,
                                                                   const ScanContext& context);
    // The row of one large file; absent when it vanished.
    [[nodiscard]] static std::optional<CleanupItem> largeFileRow(const LargeFile& file, const ScanContext& context);

    // How many files inside the build folder git tracks; 0 when git is missing, fails or
    // times out.
    [[nodiscard]] static int trackedFiles(const Artifact& artifact, const QString& git,
                                          const CancellationToken* cancellation = nullptr);

    // When the file was last opened, where the system knows it.
    [[nodiscard]] static std::optional<QDateTime> lastOpened(const QString& path);

    // The note of the Project Builds and Large Files lists when folders couldn't be read.
    [[nodiscard]] static QString unreadableNote(qint64 folders, Platform::Desktop desktop = Platform::desktop());
    // The note about entries the walk left out because their names cannot be read as text.
    [[nodiscard]] static QString undecodableNote(qint64 entries);

private:
    QStringList m_gitCandidates;
};
