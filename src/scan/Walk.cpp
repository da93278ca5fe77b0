#include "scan/Walk.h"

#include "machinery/TreeWalker.h"
#include "platform/Platform.h"
#include "scan/KnownLocations.h"
#include "scan/WalkNames.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/Thresholds.h"

#include <QFile>

#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace {

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

// One traversal of one root. Paths are built for folders (the rules compare them) and for the
// few files big enough to end up in a result; they become QStrings only for results.
class Walk::Pass : public TreeVisitor {
public:
    Pass(Walk& walk, const QString& root);
    void run();

    Verdict enterFolder(const TreeEntry& entry) override;
    Verdict visitItem(const TreeEntry& entry) override;
    void problem(const TreeEntry& entry, TreeProblem kind, int error) override;

private:
    Verdict visitDirectory(const TreeEntry& entry);
    void noteRepository(const TreeEntry& entry, std::string_view path);
    bool isSkippedInPlace(std::string_view path, std::string_view name) const;
    bool skipsBuildFolder(std::string_view path, std::string_view name);
    void showProgress(std::string_view path) const;
    void visitFile(const TreeEntry& entry);
    bool liesInHiddenFolder(std::string_view path) const;

    Walk& m_walk;
    QByteArray m_root;
    size_t m_relativeStart;  // where a path below the root starts its first component
    QByteArray m_home;
    QByteArray m_goPackages;
    QSet<QByteArray> m_safeFolders;
    std::string m_probe;  // reused buffer for the ".git" test
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
    TreeWalker::Options options;
    options.progress = m_walk.m_context.progress.get();
    options.cancellation = &m_walk.m_context.cancellation;
    TreeWalker(options).walk(m_root, *this);
}

TreeVisitor::Verdict Walk::Pass::enterFolder(const TreeEntry& entry)
{
    if (entry.depth() == 0)
        return Verdict::Enter;
    if (!entry.nameDecodes()) {
        ++m_walk.m_undecodable;  // nothing in it could be shown or removed by its path
        return Verdict::Skip;
    }
    return visitDirectory(entry);
}

TreeVisitor::Verdict Walk::Pass::visitItem(const TreeEntry& entry)
{
    if (S_ISREG(entry.status().st_mode))
        visitFile(entry);
    return Verdict::Enter;  // links, sockets and devices are not the walk's business
}

// Entries whose status cannot be read are passed over, as if they had vanished.
void Walk::Pass::problem(const TreeEntry&, TreeProblem kind, int)
{
    if (kind != TreeProblem::CannotExamine)
        ++m_walk.m_unreadable;
}

TreeVisitor::Verdict Walk::Pass::visitDirectory(const TreeEntry& entry)
{
    const QByteArray pathBytes = entry.pathBytes();
    const std::string_view path(pathBytes.constData(), static_cast<size_t>(pathBytes.size()));
    const std::string_view name = entry.name();
    noteRepository(entry, path);
    if (isSkippedInPlace(path, name) || skipsBuildFolder(path, name))
        return Verdict::Skip;
    if (entry.depth() <= 2)
        showProgress(path);
    return Verdict::Enter;
}

// A working copy is a folder holding ".git"; only a ".git" folder (not an extra worktree's
// ".git" file) makes it a main repository.
void Walk::Pass::noteRepository(const TreeEntry& entry, std::string_view path)
{
    if (entry.name() == ".git")
        return;
    m_probe.assign(entry.name()).append("/.git");
    struct stat info {};
    if (::fstatat(entry.folderDescriptor(), m_probe.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
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

void Walk::Pass::visitFile(const TreeEntry& entry)
{
    const struct stat& info = entry.status();
    if (info.st_size < Thresholds::duplicateMinimumSize)
        return;
    const QByteArray pathBytes = entry.pathBytes();
    if (liesInHiddenFolder(std::string_view(pathBytes.constData(), static_cast<size_t>(pathBytes.size()))))
        return;
    if (!entry.nameDecodes()) {
        ++m_walk.m_undecodable;
        return;
    }
    const QString file = QFile::decodeName(pathBytes);
    if (KnownLocations::isInSyncedHomeFolder(file, m_walk.m_context.home) || Platform::isDataless(info))
        return;
    if (!m_walk.insideRepository(file))
        m_walk.m_duplicateCandidates.append(duplicateCandidate(file, info));
    if (info.st_size >= Thresholds::largeFileSize && !isInstaller(entry.name()))
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
