#include "scan/Walk.h"

#include "machinery/SplitWalk.h"
#include "platform/Platform.h"
#include "scan/KnownLocations.h"
#include "scan/ProjectInfo.h"
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
    return WalkNames::isInstallerExtension(lowercasedExtension(name));
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

// What every piece of one root's traversal decides by: fixed for the whole walk.
struct WalkSettings {
    WalkSettings(const ScanContext& context, const QString& root);

    const ScanContext& context;
    QByteArray root;
    size_t relativeStart;  // where a path below the root starts its first component
    QByteArray home;
    QByteArray goPackages;
    QSet<QByteArray> safeFolders;
};

WalkSettings::WalkSettings(const ScanContext& context, const QString& root)
    : context(context),
      root(QFile::encodeName(root)),
      relativeStart(this->root.endsWith('/') ? this->root.size() : this->root.size() + 1),
      home(QFile::encodeName(context.home)),
      goPackages(home + "/go/pkg")
{
    for (const QString& folder : context.safeFolders)
        safeFolders.insert(QFile::encodeName(folder));
}

}  // namespace

// One traversal of one root, or one piece of it. Paths are built for folders (the rules compare
// them) and for the few files big enough to end up in a result; they become QStrings only for
// results.
class Walk::Pass : public SplittableVisitor {
public:
    Pass(const WalkSettings& settings, QStringList repositories, ShallowNewest newest);

    std::unique_ptr<SplittableVisitor> fork() const override;
    void join(SplittableVisitor& later) override;
    Verdict enterFolder(const TreeEntry& entry) override;
    Verdict visitItem(const TreeEntry& entry) override;
    void leaveFolder(const TreeEntry& entry) override;
    void problem(const TreeEntry& entry, TreeProblem kind, int error) override;

    // Puts the project dates in with the rest of the findings.
    Findings& finished();

private:
    Verdict visitDirectory(const TreeEntry& entry);
    void noteRepository(const TreeEntry& entry, std::string_view path);
    bool isSkippedInPlace(std::string_view path, std::string_view name) const;
    bool skipsBuildFolder(const TreeEntry& entry, std::string_view path, std::string_view name);
    void showProgress(std::string_view path) const;
    void visitFile(const TreeEntry& entry);
    bool liesInHiddenFolder(std::string_view path) const;

    const WalkSettings& m_settings;
    Findings m_found;
    ShallowNewest m_newest;
    std::string m_probe;  // reused buffer for the ".git" test
};

Walk::Pass::Pass(const WalkSettings& settings, QStringList repositories, ShallowNewest newest)
    : m_settings(settings), m_newest(std::move(newest))
{
    m_found.repositories = std::move(repositories);
}

std::unique_ptr<SplittableVisitor> Walk::Pass::fork() const
{
    return std::make_unique<Pass>(m_settings, m_found.repositories, m_newest.forked());
}

void Walk::Pass::join(SplittableVisitor& later)
{
    auto& piece = static_cast<Pass&>(later);
    m_newest.append(std::move(piece.m_newest));
    m_found.append(std::move(piece.m_found));
}

Walk::Findings& Walk::Pass::finished()
{
    m_found.projectDates.insert(m_newest.known());
    return m_found;
}

TreeVisitor::Verdict Walk::Pass::enterFolder(const TreeEntry& entry)
{
    Verdict verdict = Verdict::Enter;
    if (entry.depth() > 0 && !entry.nameDecodes()) {
        ++m_found.undecodable;  // nothing in it could be shown or removed by its path
        verdict = Verdict::Skip;
    } else if (entry.depth() > 0) {
        verdict = visitDirectory(entry);
    }
    if (verdict == Verdict::Enter)
        m_newest.entered(entry);
    else
        m_newest.passedOver(entry);
    return verdict;
}

TreeVisitor::Verdict Walk::Pass::visitItem(const TreeEntry& entry)
{
    m_newest.visited(entry);
    if (S_ISREG(entry.status().st_mode))
        visitFile(entry);
    return Verdict::Enter;  // links, sockets and devices are not the walk's business
}

void Walk::Pass::leaveFolder(const TreeEntry& entry)
{
    m_newest.left(entry);
}

// Entries whose status cannot be read are passed over, as if they had vanished.
void Walk::Pass::problem(const TreeEntry& entry, TreeProblem kind, int)
{
    m_newest.problem(entry);
    if (kind != TreeProblem::CannotExamine)
        ++m_found.unreadable;
}

TreeVisitor::Verdict Walk::Pass::visitDirectory(const TreeEntry& entry)
{
    const std::string_view path = entry.pathView();
    const std::string_view name = entry.name();
    noteRepository(entry, path);
    if (isSkippedInPlace(path, name) || skipsBuildFolder(entry, path, name))
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
    if (!m_found.insideRepository(folder))
        m_found.repositories.append(folder);
    if (S_ISDIR(info.st_mode))
        m_found.mainRepositories.append(folder);
}

bool Walk::Pass::isSkippedInPlace(std::string_view path, std::string_view name) const
{
    if (WalkNames::contains(WalkNames::neverEntered, name) || isPackage(name))
        return true;
    const QByteArray pathBytes = QByteArray::fromRawData(path.data(), static_cast<qsizetype>(path.size()));
    if (m_settings.safeFolders.contains(pathBytes) || pathBytes == m_settings.goPackages)
        return true;
    if (parentOf(path) != std::string_view(m_settings.home.constData(), m_settings.home.size()))
        return false;
    return name.front() == '.' || WalkNames::contains(WalkNames::skippedHomeFolders, name);
}

// A proven build folder is recorded and never entered; an unproven "node_modules" is not
// worth entering either. Other unproven names are ordinary folders.
bool Walk::Pass::skipsBuildFolder(const TreeEntry& entry, std::string_view path, std::string_view name)
{
    if (!WalkNames::contains(WalkNames::buildFolders, name))
        return false;
    const QString folder = decoded(path);
    const QString folderName = decoded(name);
    const QString project = decoded(parentOf(path));
    if (!Walk::isBuildFolder(folderName, folder, project))
        return name == "node_modules";
    m_found.artifacts.append({folder, folderName, project});
    m_newest.markProjectHolding(entry);
    return true;
}

void Walk::Pass::showProgress(std::string_view path) const
{
    if (m_settings.context.progress)
        m_settings.context.progress->setCurrentFolder(PathRules::withTilde(decoded(path), m_settings.context.home));
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
        ++m_found.undecodable;
        return;
    }
    const QString file = QFile::decodeName(pathBytes);
    if (KnownLocations::isInSyncedHomeFolder(file, m_settings.context.home) || Platform::isDataless(info))
        return;
    if (!m_found.insideRepository(file))
        m_found.duplicateCandidates.append(duplicateCandidate(file, info));
    if (info.st_size >= Thresholds::largeFileSize && !isInstaller(entry.name()))
        m_found.largeFiles.append({file, static_cast<qint64>(info.st_blocks) * 512});
}

// Whether a folder between the root and the file begins with "."; the file's own name may.
bool Walk::Pass::liesInHiddenFolder(std::string_view path) const
{
    if (path.size() <= m_settings.relativeStart)
        return false;
    const std::string_view relative = path.substr(m_settings.relativeStart);
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
    const WalkSettings settings(m_context, root);
    Pass pass(settings, m_found.repositories, ShallowNewest(ProjectInfo::projectEntryLimit));
    SplitWalk::Options options;
    options.walker.progress = m_context.progress.get();
    options.walker.cancellation = &m_context.cancellation;
    SplitWalk(options).walk(settings.root, pass);
    m_found.append(std::move(pass.finished()));
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
        m_found.repositories = QStringList{root};
        if (S_ISDIR(info->st_mode))
            m_found.mainRepositories.append(folder);
        return;
    }
}

bool Walk::Findings::insideRepository(const QString& path)
{
    while (!repositories.isEmpty()) {
        const QString& innermost = repositories.constLast();
        if (path.size() > innermost.size() && path.startsWith(innermost) && path.at(innermost.size()) == QLatin1Char('/'))
            return true;
        repositories.removeLast();
    }
    return false;
}

void Walk::Findings::append(Findings&& later)
{
    for (Artifact& artifact : later.artifacts) {
        if (!artifactPaths.contains(artifact.path)) {
            artifactPaths.insert(artifact.path);
            artifacts.append(std::move(artifact));
        }
    }
    largeFiles.append(std::move(later.largeFiles));
    duplicateCandidates.append(std::move(later.duplicateCandidates));
    unreadable += later.unreadable;
    undecodable += later.undecodable;
    repositories = std::move(later.repositories);  // the later piece's position is the walk's
    mainRepositories.append(std::move(later.mainRepositories));
    projectDates.insert(later.projectDates);
}
