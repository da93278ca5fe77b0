#include "scan/ProjectScanner.h"

#include "machinery/Concurrency.h"
#include "machinery/LastOpened.h"
#include "scan/DuplicateFinder.h"
#include "scan/GitCommand.h"
#include "scan/Walk.h"
#include "scan/WorktreeFinder.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <climits>
#include <vector>

namespace {

// Project infos and rows mostly wait on the disk; a few at once keep it busy without
// crowding the other scanners that run beside this one.
constexpr int projectsAtOnce = 4;
constexpr int rowsAtOnce = 4;

QString expandedTilde(const QString& path, const QString& home)
{
    if (path == QLatin1String("~"))
        return home;
    if (path.startsWith(QLatin1String("~/")))
        return home + path.mid(1);
    return path;
}

bool liesInAny(const QString& path, const QStringList& folders)
{
    return std::any_of(folders.begin(), folders.end(),
                       [&](const QString& folder) { return PathRules::isAtOrBelow(path, folder); });
}

QHash<QString, ProjectInfo> projectInfos(const Walk& walk, const ScanContext& context)
{
    std::vector<QString> projects;
    for (const Artifact& artifact : walk.artifacts()) {
        if (std::find(projects.begin(), projects.end(), artifact.project) == projects.end())
            projects.push_back(artifact.project);
    }
    const auto infos = Concurrency::map(projects, projectsAtOnce, context.cancellation, [&](const QString& project) {
        return ProjectInfo::of(project, context.home, &context.cancellation, &walk.projectDates());
    });
    QHash<QString, ProjectInfo> byPath;
    for (const ProjectInfo& info : infos)
        byPath.insert(info.path, info);
    return byPath;
}

// Biggest first, so what frees the most space is at the top; ties by path for a stable order.
void sortBySize(QList<CleanupItem>& items)
{
    std::sort(items.begin(), items.end(), [](const CleanupItem& a, const CleanupItem& b) {
        return a.size != b.size ? a.size > b.size : a.id < b.id;
    });
}

template <typename Item, typename MakeRow>
QList<CleanupItem> rows(const QList<Item>& found, const ScanContext& context, MakeRow makeRow)
{
    const std::vector<Item> items(found.begin(), found.end());
    QList<CleanupItem> made;
    for (const std::optional<CleanupItem>& row : Concurrency::map(items, rowsAtOnce, context.cancellation, makeRow)) {
        if (row)
            made.append(*row);
    }
    sortBySize(made);
    return made;
}

// Each build folder with its size; one not measured (the scan was stopped) is left out.
QList<std::pair<Artifact, FileSizer::Measurement>> measured(const QList<Artifact>& artifacts, const ScanContext& context)
{
    std::vector<QString> paths;
    for (const Artifact& artifact : artifacts)
        paths.push_back(artifact.path);
    const auto sizes = FileSizer::measureAll(paths, rowsAtOnce, context.progress.get(), context.cancellation);
    QList<std::pair<Artifact, FileSizer::Measurement>> found;
    for (qsizetype index = 0; index < artifacts.size(); ++index) {
        if (sizes[size_t(index)])
            found.append({artifacts[index], *sizes[size_t(index)]});
    }
    return found;
}

ScanOutput projectRows(const Walk& walk, const std::optional<QString>& git, const ScanContext& context)
{
    const QHash<QString, ProjectInfo> infos = projectInfos(walk, context);
    ScanOutput output;
    output.items = rows(measured(walk.artifacts(), context), context, [&](const auto& found) {
        const auto& [artifact, size] = found;
        const auto info = infos.constFind(artifact.project);
        return ProjectScanner::buildFolderRow(artifact, size, info == infos.cend() ? nullptr : &*info, git, context);
    });
    return output;
}

ScanOutput largeFileRows(const Walk& walk, const ScanContext& context)
{
    ScanOutput output;
    output.items = rows(walk.largeFiles(), context,
                        [&](const LargeFile& file) { return ProjectScanner::largeFileRow(file, context); });
    return output;
}

}  // namespace

QList<CategoryID> ProjectScanner::categories() const
{
    return {CategoryID::projects, CategoryID::worktrees, CategoryID::largeFiles, CategoryID::duplicates};
}

ScanOutputs ProjectScanner::scan(const ScanContext& context) const
{
    Walk walk(context);
    for (const QString& root : distinctRoots(context.roots, context.home))
        walk.run(root);
    const std::optional<QString> git = GitCommand::locate(m_gitCandidates);
    ScanOutputs outputs;
    outputs[CategoryID::projects] = projectRows(walk, git, context);
    outputs[CategoryID::largeFiles] = largeFileRows(walk, context);
    if (walk.unreadable() > 0) {
        outputs[CategoryID::projects].notes.append(unreadableNote(walk.unreadable()));
        outputs[CategoryID::largeFiles].notes.append(unreadableNote(walk.unreadable()));
    }
    if (walk.undecodable() > 0) {
        outputs[CategoryID::projects].notes.append(undecodableNote(walk.undecodable()));
        outputs[CategoryID::largeFiles].notes.append(undecodableNote(walk.undecodable()));
    }
    outputs[CategoryID::duplicates].items = DuplicateFinder::items(walk.duplicateCandidates(), context);
    outputs[CategoryID::worktrees] = WorktreeFinder::items(walk.mainRepositories(), context, m_gitCandidates);
    return outputs;
}

QStringList ProjectScanner::distinctRoots(const QStringList& roots, const QString& home)
{
    QStringList cleaned;
    for (const QString& root : roots)
        cleaned.append(QDir::cleanPath(expandedTilde(root, home)));
    cleaned.sort();
    QStringList kept;
    for (const QString& root : std::as_const(cleaned)) {
        if (!liesInAny(root, kept))
            kept.append(root);
    }
    kept.removeIf([](const QString& root) { return !QFileInfo(root).isDir(); });
    return kept;
}

std::optional<QDateTime> ProjectScanner::lastOpened(const QString& path)
{
    return LastOpened::of(path);
}

QString ProjectScanner::undecodableNote(qint64 entries)
{
    const int count = entries > INT_MAX ? INT_MAX : int(entries);
    //: Note above Project Builds and Large Files; %n is the number of files and folders whose names aren't valid text
    return QCoreApplication::translate("ProjectScanner",
        "%n files or folders were left out because their names can't be read as text. Rename them to include them.",
        nullptr, count);
}

QString ProjectScanner::unreadableNote(qint64 folders, Platform::Desktop desktop)
{
    const int count = folders > INT_MAX ? INT_MAX : int(folders);
    if (desktop == Platform::Desktop::freedesktop)
        //: Note above Project Builds and Large Files on Linux; %n is the number of folders that couldn't be read
        return QCoreApplication::translate("ProjectScanner",
            "%n folders couldn't be read: their permissions don't let you open them.", nullptr, count);
    //: Note above Project Builds and Large Files; %n is the number of folders that couldn't be read
    return QCoreApplication::translate("ProjectScanner",
        "%n folders couldn't be read. Allow access when macOS asks, or give Dustlark Full Disk Access.",
        nullptr, count);
}
