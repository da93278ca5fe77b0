#include "scan/Walk.h"

#include "platform/Platform.h"
#include "scan/KnownLocations.h"
#include "scan/WalkNames.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/Thresholds.h"

#include <QFile>

#include <fts.h>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace {

constexpr qint64 progressBatch = 4096;

QString decoded(std::string_view bytes)
{
    return QFile::decodeName(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

std::string_view parentOf(std::string_view path)
{
    const size_t slash = path.rfind('/');
    if (slash == std::string_view::npos)
        return {};
    return slash == 0 ? path.substr(0, 1) : path.substr(0, slash);
}

QString parentFolder(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash < 0)
        return {};
    return slash == 0 ? QStringLiteral("/") : path.left(slash);
}

// The text after the last "." lowercased; empty when the name has no ".". Non-ASCII text is
// lowercased by Qt so that, say, a Kelvin sign still reads as "k".
std::string lowercasedExtension(std::string_view name)
{
    const size_t dot = name.rfind('.');
    if (dot == std::string_view::npos)
        return {};
    std::string extension(name.substr(dot + 1));
    const bool ascii = std::all_of(extension.begin(), extension.end(), [](char c) { return (c & 0x80) == 0; });
    if (!ascii)
        return decoded(extension).toLower().toStdString();
    for (char& c : extension)
        c = (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
    return extension;
}

bool isPackage(std::string_view name)
{
    if (name.empty() || name.front() == '.' || name.find('.') == std::string_view::npos)
        return false;
    return WalkNames::contains(WalkNames::packageExtensions, lowercasedExtension(name));
}

bool isInstaller(std::string_view name)
{
    return WalkNames::contains(WalkNames::installerExtensions, lowercasedExtension(name));
}

DuplicateFinder::File duplicateCandidate(const QString& path, const struct stat& info)
{
    DuplicateFinder::File file;
    file.path = path;
    file.size = info.st_size;
    file.allocated = static_cast<qint64>(info.st_blocks) * 512;
    file.device = static_cast<qint32>(info.st_dev);
    file.inode = static_cast<quint64>(info.st_ino);
    file.stamp = FileTarget::ContentStamp::of(info);
    return file;
}

}  // namespace

// One traversal of one root. Paths stay the bytes fts gives; they become QStrings only for
// the few entries that end up in a result.
class Walk::Pass {
public:
    Pass(Walk& walk, const QString& root);
    void run();

private:
    Action handle(const FTSENT* entry);
    Action visitDirectory(const FTSENT* entry);
    void noteRepository(std::string_view path, std::string_view name);
    bool isSkippedInPlace(std::string_view path, std::string_view name) const;
    bool skipsBuildFolder(std::string_view path, std::string_view name);
    void showProgress(std::string_view path) const;
    void visitFile(const FTSENT* entry);
    bool liesInHiddenFolder(std::string_view path) const;
    bool countEntry();

    Walk& m_walk;
    QByteArray m_root;
    size_t m_relativeStart;  // where a path below the root starts its first component
    QByteArray m_home;
    QByteArray m_goPackages;
    QSet<QByteArray> m_safeFolders;
    std::string m_probe;  // reused buffer for the ".git" test
    dev_t m_device = 0;
    qint64 m_entries = 0;
};

Walk::Pass::Pass(Walk& walk, const QString& root)
    : m_walk(walk),
      m_root(QFile::encodeName(root)),
      m_relativeStart(m_root.endsWith('/') ? m_root.size() : m_root.size() + 1),
      m_home(QFile::encodeName(walk.m_context.home)),
      m_goPackages(m_home + "/go/pkg")
{
    for (const QString& folder : walk.m_context.safeFolders)
        m_safeFolders.insert(QFile::encodeName(folder));
}

void Walk::Pass::run()
{
    char* roots[] = {m_root.data(), nullptr};
    FTS* tree = ::fts_open(roots, FTS_PHYSICAL | FTS_NOCHDIR | FTS_XDEV, nullptr);
    if (!tree)
        return;
    while (FTSENT* entry = ::fts_read(tree)) {
        if (entry->fts_info == FTS_DP)
            continue;
        const Action action = countEntry() ? handle(entry) : Action::Stop;
        if (action == Action::Stop)
            break;
        if (action == Action::Skip)
            ::fts_set(tree, entry, FTS_SKIP);
    }
    ::fts_close(tree);
    if (m_walk.m_context.progress && m_entries % progressBatch != 0)
        m_walk.m_context.progress->addEntries(m_entries % progressBatch);
}

Walk::Action Walk::Pass::handle(const FTSENT* entry)
{
    if (entry->fts_level == FTS_ROOTLEVEL)
        m_device = entry->fts_statp->st_dev;  // the volume the walk stays on
    switch (entry->fts_info) {
    case FTS_D:
        return entry->fts_level > FTS_ROOTLEVEL ? visitDirectory(entry) : Action::Continue;
    case FTS_DNR:
    case FTS_ERR:
        ++m_walk.m_unreadable;
        return Action::Continue;
    case FTS_F:
        visitFile(entry);
        return Action::Continue;
    default:
        return Action::Continue;  // links, sockets, devices, entries that could not be examined
    }
}

Walk::Action Walk::Pass::visitDirectory(const FTSENT* entry)
{
    if (entry->fts_statp->st_dev != m_device)
        return Action::Skip;  // a mount point: another volume
    const std::string_view path(entry->fts_path, entry->fts_pathlen);
    const std::string_view name(entry->fts_name, entry->fts_namelen);
    noteRepository(path, name);
    if (isSkippedInPlace(path, name) || skipsBuildFolder(path, name))
        return Action::Skip;
    if (entry->fts_level <= 2)
        showProgress(path);
    return Action::Continue;
}

// A working copy is a folder holding ".git"; only a ".git" folder (not an extra worktree's
// ".git" file) makes it a main repository.
void Walk::Pass::noteRepository(std::string_view path, std::string_view name)
{
    if (name == ".git")
        return;
    m_probe.assign(path).append("/.git");
    struct stat info {};
    if (::lstat(m_probe.c_str(), &info) != 0)
        return;
    const QString folder = decoded(path);
    if (!m_walk.insideRepository(folder))
        m_walk.m_repositories.append(folder);
    if (S_ISDIR(info.st_mode))
        m_walk.m_mainRepositories.append(folder);
}

bool Walk::Pass::isSkippedInPlace(std::string_view path, std::string_view name) const
{
    if (WalkNames::contains(WalkNames::neverEntered, name) || isPackage(name))
        return true;
    const QByteArray pathBytes = QByteArray::fromRawData(path.data(), static_cast<qsizetype>(path.size()));
    if (m_safeFolders.contains(pathBytes) || pathBytes == m_goPackages)
        return true;
    if (parentOf(path) != std::string_view(m_home.constData(), m_home.size()))
        return false;
    return name.front() == '.' || WalkNames::contains(WalkNames::skippedHomeFolders, name);
}

// A proven build folder is recorded and never entered; an unproven "node_modules" is not
// worth entering either. Other unproven names are ordinary folders.
bool Walk::Pass::skipsBuildFolder(std::string_view path, std::string_view name)
{
    if (!WalkNames::contains(WalkNames::buildFolders, name))
        return false;
    const QString folder = decoded(path);
    const QString folderName = decoded(name);
    const QString project = decoded(parentOf(path));
    if (!Walk::isBuildFolder(folderName, folder, project))
        return name == "node_modules";
    if (!m_walk.m_foundPaths.contains(folder)) {
        m_walk.m_foundPaths.insert(folder);
        m_walk.m_artifacts.append({folder, folderName, project});
    }
    return true;
}

void Walk::Pass::showProgress(std::string_view path) const
{
    if (m_walk.m_context.progress)
        m_walk.m_context.progress->setCurrentFolder(PathRules::withTilde(decoded(path), m_walk.m_context.home));
}

void Walk::Pass::visitFile(const FTSENT* entry)
{
    const struct stat& info = *entry->fts_statp;
    if (info.st_size < Thresholds::duplicateMinimumSize || info.st_dev != m_device)
        return;
    const std::string_view path(entry->fts_path, entry->fts_pathlen);
    if (liesInHiddenFolder(path))
        return;
    const QString file = decoded(path);
    if (KnownLocations::isInSyncedHomeFolder(file, m_walk.m_context.home) || Platform::isDataless(info))
        return;
    if (!m_walk.insideRepository(file))
        m_walk.m_duplicateCandidates.append(duplicateCandidate(file, info));
    const std::string_view name(entry->fts_name, entry->fts_namelen);
    if (info.st_size >= Thresholds::largeFileSize && !isInstaller(name))
        m_walk.m_largeFiles.append({file, static_cast<qint64>(info.st_blocks) * 512});
}

// Whether a folder between the root and the file begins with "."; the file's own name may.
bool Walk::Pass::liesInHiddenFolder(std::string_view path) const
{
    if (path.size() <= m_relativeStart)
        return false;
    const std::string_view relative = path.substr(m_relativeStart);
    const size_t lastSlash = relative.rfind('/');
    if (lastSlash == std::string_view::npos)
        return false;
    const std::string_view folders = relative.substr(0, lastSlash);
    return folders.front() == '.' || folders.find("/.") != std::string_view::npos;
}

// Counts one entry; at every full batch publishes it and answers whether to go on.
bool Walk::Pass::countEntry()
{
    if (++m_entries % progressBatch != 0)
        return true;
    if (m_walk.m_context.progress)
        m_walk.m_context.progress->addEntries(progressBatch);
    return !m_walk.m_context.isCancelled();
}

Walk::Walk(ScanContext context) : m_context(std::move(context)) {}

void Walk::run(const QString& root)
{
    adoptRepositoryAbove(root);
    Pass(*this, root).run();
}

// A scan folder inside a working copy: everything under it counts as inside a repository.
// The climb stops at the home folder so that a home kept in git does not swallow every scan.
void Walk::adoptRepositoryAbove(const QString& root)
{
    for (QString folder = root; !folder.isEmpty() && folder != m_context.home && folder != QLatin1String("/");
         folder = parentFolder(folder)) {
        const auto info = FileStatus::of(folder + QLatin1String("/.git"));
        if (!info)
            continue;
        m_repositories = QStringList{root};
        if (S_ISDIR(info->st_mode))
            m_mainRepositories.append(folder);
        return;
    }
}

bool Walk::insideRepository(const QString& path)
{
    while (!m_repositories.isEmpty()) {
        const QString& innermost = m_repositories.constLast();
        if (path.size() > innermost.size() && path.startsWith(innermost) && path.at(innermost.size()) == QLatin1Char('/'))
            return true;
        m_repositories.removeLast();
    }
    return false;
}
