#include "machinery/TreeWalker.h"

#include "machinery/ScanProgress.h"
#include "platform/Platform.h"

#include <QFile>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

// The root without trailing slashes; "/" becomes empty so that children read "/name".
std::string withoutTrailingSlashes(const QByteArray& root)
{
    std::string path(root.constData(), static_cast<size_t>(root.size()));
    while (!path.empty() && path.back() == '/')
        path.pop_back();
    return path;
}

std::string lastComponent(const std::string& path)
{
    if (path.empty())
        return "/";
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

// One folder on the way down: its listing, read whole when it was opened, and the descriptor
// that entries are examined through (-1 while closed to stay under the limit).
struct TreeWalker::Level {
    std::string name;
    struct stat status {};
    int descriptor = -1;
    std::string names;  // the listing, each name followed by '\0'
    size_t next = 0;    // offset of the next name to walk
    size_t pathLength = 0;
    int reopenError = 0;  // set when the folder could not be reopened after a close

    bool isOpen() const { return descriptor >= 0; }
    bool done() const { return next >= names.size(); }
};

std::string_view TreeEntry::pathView() const
{
    if (m_depth == 0)
        return {m_walker->m_root.constData(), static_cast<size_t>(m_walker->m_root.size())};
    return m_walker->entryPath(m_name);
}

QByteArray TreeEntry::pathBytes() const
{
    const std::string_view path = pathView();
    return {path.data(), static_cast<qsizetype>(path.size())};
}

QString TreeEntry::path() const
{
    return QFile::decodeName(pathBytes());
}

QByteArray TreeEntry::folderPathBytes() const
{
    if (m_depth > 0) {
        const size_t length = m_walker->folderPathLength();
        return length == 0 ? QByteArray("/") : QByteArray(m_walker->m_path.data(), static_cast<qsizetype>(length));
    }
    const std::string root = withoutTrailingSlashes(m_walker->m_root);
    const size_t slash = root.rfind('/');
    if (slash == std::string::npos)
        return QByteArray(".");
    return slash == 0 ? QByteArray("/") : QByteArray::fromStdString(root.substr(0, slash));
}

bool TreeEntry::nameDecodes() const
{
    if (std::all_of(m_name.begin(), m_name.end(), [](char c) { return (c & 0x80) == 0; }))
        return true;
    const QByteArray bytes = QByteArray::fromRawData(m_name.data(), static_cast<qsizetype>(m_name.size()));
    return QFile::encodeName(QFile::decodeName(bytes)) == bytes;
}

TreeWalker::TreeWalker(Options options) : m_options(options)
{
    m_options.descriptorLimit = std::max(2, m_options.descriptorLimit);  // the current folder and one to reopen by
}

TreeWalker::~TreeWalker()
{
    for (const size_t index : m_openLevels)
        ::close(m_levels[index]->descriptor);
}

TreeWalker::Result TreeWalker::walk(const QByteArray& root, TreeVisitor& visitor)
{
    m_root = root;
    m_baseName = root.toStdString();
    if (examineRoot(visitor)) {
        while (!m_levels.empty() && m_end == End::Finished)
            walkNext(visitor);
    }
    return finish();
}

TreeWalker::Result TreeWalker::walkBelow(const TreeFolder& folder, TreeVisitor& visitor)
{
    m_root = folder.parentPath;
    m_device = folder.status.st_dev;
    m_baseDescriptor = folder.parentDescriptor;
    m_baseName = folder.name;
    m_depthOffset = folder.depth;
    m_basePath = withoutTrailingSlashes(folder.parentPath);
    m_path = m_basePath;
    descend(visitor, TreeEntry(*this, folder.name, folder.status, folder.depth, folder.parentDescriptor));
    while (!m_levels.empty() && m_end == End::Finished)
        walkNext(visitor);
    return finish();
}

TreeWalker::Result TreeWalker::finish()
{
    if (m_options.progress && m_entries % progressBatch != 0)
        m_options.progress->addEntries(m_entries % progressBatch);
    return {m_end, m_entries};
}

// The root is the one entry looked up by path; a link there is reported as a link.
bool TreeWalker::examineRoot(TreeVisitor& visitor)
{
    const std::string rootName = lastComponent(withoutTrailingSlashes(m_root));
    struct stat status {};
    const bool examined = ::lstat(m_root.constData(), &status) == 0;
    const int error = errno;
    countEntry();
    const TreeEntry entry(*this, rootName, status, 0, AT_FDCWD);
    if (!examined) {
        visitor.problem(entry, TreeProblem::CannotExamine, error);
        return false;
    }
    m_device = status.st_dev;
    if (!S_ISDIR(status.st_mode)) {
        if (visitor.visitItem(entry) == TreeVisitor::Verdict::Stop)
            m_end = End::Stopped;
        return false;
    }
    handleFolder(visitor, entry);
    return true;
}

void TreeWalker::walkNext(TreeVisitor& visitor)
{
    Level& top = *m_levels.back();
    if (top.done()) {
        leave(visitor);
        return;
    }
    if (top.next == 0 && isCancelled()) {  // before each folder, so that a stop is prompt in small trees too
        m_end = End::Cancelled;
        return;
    }
    const std::string_view name(top.names.data() + top.next);
    top.next += name.size() + 1;
    if (!top.isOpen() && !ensureOpen(m_levels.size() - 1)) {
        top.reopenError = errno;       // reported as the folder is left, with its own path
        top.next = top.names.size();  // the rest of this folder cannot be reached any more
        return;
    }
    handleEntry(visitor, top, name);
}

void TreeWalker::handleEntry(TreeVisitor& visitor, const Level& folder, std::string_view name)
{
    const int descriptor = folder.descriptor;
    const int depth = m_depthOffset + static_cast<int>(m_levels.size());
    if (!countEntry()) {
        m_end = End::Cancelled;
        return;
    }
    struct stat status;  // filled whole by the call; zeroing it first cost 0.3% of a scan
    if (::fstatat(descriptor, name.data(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        const int error = errno;
        status = {};
        visitor.problem(TreeEntry(*this, name, status, depth, descriptor), TreeProblem::CannotExamine, error);
        return;
    }
    if (status.st_dev != m_device)
        return;  // a mount point: another volume is never entered or counted
    const TreeEntry entry(*this, name, status, depth, descriptor);
    if (S_ISDIR(status.st_mode))
        handleFolder(visitor, entry);
    else if (!(m_options.hardLinksOnce && isRepeatedLink(status))
             && visitor.visitItem(entry) == TreeVisitor::Verdict::Stop)
        m_end = End::Stopped;
}

void TreeWalker::handleFolder(TreeVisitor& visitor, const TreeEntry& entry)
{
    switch (visitor.enterFolder(entry)) {
    case TreeVisitor::Verdict::Stop:
        m_end = End::Stopped;
        return;
    case TreeVisitor::Verdict::Skip:
        return;
    case TreeVisitor::Verdict::Enter:
        descend(visitor, entry);
        return;
    }
}

void TreeWalker::descend(TreeVisitor& visitor, const TreeEntry& entry)
{
    auto level = std::make_unique<Level>();
    level->name = std::string(entry.name());
    level->status = entry.status();
    const bool isRoot = entry.depth() == 0;
    if (!openLevel(*level, m_levels.size())) {
        const int error = errno;
        visitor.problem(entry, TreeProblem::CannotOpen, error);
        visitor.leaveFolder(entry);
        return;
    }
    listLevel(*level, entry, visitor);
    if (isRoot)
        m_path = withoutTrailingSlashes(m_root);
    else
        entryPath(level->name);
    level->pathLength = m_path.size();
    m_levels.push_back(std::move(level));
    noteOpen(m_levels.size() - 1);
    keepUnderLimit(m_levels.size() - 1);
}

// Opens the folder at `index` relative to its parent (the first level as the walk began) and
// checks it is the folder that was examined: a folder swapped for a link fails on O_NOFOLLOW,
// one swapped for another folder on its inode.
bool TreeWalker::openLevel(Level& level, size_t index)
{
    const int parent = index == 0 ? m_baseDescriptor : m_levels[index - 1]->descriptor;
    const char* name = index == 0 ? m_baseName.c_str() : level.name.c_str();
    const int descriptor = ::openat(parent, name, folderFlags);
    if (descriptor < 0)
        return false;
    struct stat opened {};
    if (::fstat(descriptor, &opened) != 0 || opened.st_dev != level.status.st_dev
        || opened.st_ino != level.status.st_ino) {
        ::close(descriptor);
        errno = ESTALE;
        return false;
    }
    level.descriptor = descriptor;
    return true;
}

void TreeWalker::listLevel(Level& level, const TreeEntry& entry, TreeVisitor& visitor)
{
    if (const int error = Platform::readFolderNames(level.descriptor, level.names))
        visitor.problem(entry, TreeProblem::CannotList, error);
}

void TreeWalker::leave(TreeVisitor& visitor)
{
    const std::unique_ptr<Level> level = std::move(m_levels.back());
    m_levels.pop_back();
    if (level->isOpen()) {
        if (!m_levels.empty() && !m_levels.back()->isOpen())
            climbFrom(level->descriptor);
        ::close(level->descriptor);
        m_openLevels.pop_back();  // the deepest open level is the one left
    }
    m_path.resize(folderPathLength());
    if (!m_levels.empty())
        ensureOpen(m_levels.size() - 1);  // so that leaveFolder can act relative to it (a removal)
    const int parent = m_levels.empty() ? m_baseDescriptor : m_levels.back()->descriptor;
    const TreeEntry entry(*this, level->name, level->status, m_depthOffset + static_cast<int>(m_levels.size()), parent);
    if (level->reopenError != 0)
        visitor.problem(entry, TreeProblem::CannotOpen, level->reopenError);
    visitor.leaveFolder(entry);
}

// Reopens a folder closed for the limit, name by name from its nearest open ancestor (the
// walk's base when none is), each checked against the status it had when first opened.
bool TreeWalker::ensureOpen(size_t index)
{
    if (m_levels[index]->isOpen())
        return true;
    const auto above = std::lower_bound(m_openLevels.begin(), m_openLevels.end(), index);
    const size_t first = above == m_openLevels.begin() ? 0 : *std::prev(above) + 1;
    for (size_t each = first; each <= index; ++each) {
        if (!openLevel(*m_levels[each], each))
            return false;
        noteOpen(each);
        keepUnderLimit(each);
    }
    return true;
}

void TreeWalker::noteOpen(size_t index)
{
    m_openLevels.insert(std::upper_bound(m_openLevels.begin(), m_openLevels.end(), index), index);
}

namespace {

// Whether the ancestor at `index` is one of those kept open for the folder at `current`. With
// positions counted from 1 and written in base 4, they are the positions that agree with the
// current one above some digit, are zero below it, and do not exceed it in that digit: at
// most three per digit, about 20 at a depth of 10,000. Climbing back to a closed one, its
// nearest open ancestor lies at most the place value of its lowest nonzero digit below, so the
// chains that climbs check (and that reopenings by name walk) add up to O(n log n) levels for
// a chain of n folders. Closing the shallowest instead made every climb of `descriptorLimit`
// levels reopen the whole chain from its top: quadratic in depth.
bool staysOpenFor(size_t index, size_t current)
{
    const size_t position = index + 1;
    const size_t reach = current + 1;
    const int digit = 2 * (std::countr_zero(position) / 2);
    return position <= reach && (position >> (digit + 2)) == (reach >> (digit + 2))
        && ((position >> digit) & 3) <= ((reach >> digit) & 3);
}

}  // namespace

// Closes open ancestors until at most `most` (the limit unless given) are open, never the
// current folder, `pinned` (the one just opened or climbed from) nor the child being left:
// first those the current folder does not keep, shallowest first.
void TreeWalker::keepUnderLimit(size_t pinned, int most)
{
    const size_t current = m_levels.size() - 1;
    const size_t allowed = static_cast<size_t>(most < 0 ? m_options.descriptorLimit : most);
    while (m_openLevels.size() > allowed) {
        auto victim = m_openLevels.end();
        for (auto open = m_openLevels.begin(); open != m_openLevels.end(); ++open) {
            if (*open >= current || *open == pinned)
                continue;
            if (!staysOpenFor(*open, current)) {
                victim = open;
                break;
            }
            if (victim == m_openLevels.end())
                victim = open;
        }
        if (victim == m_openLevels.end())
            return;
        closeLevel(*victim);
    }
}

namespace {

// The most levels one relative path climbs: ".." repeated stays far below PATH_MAX (1024 on
// macOS).
constexpr size_t longestClimb = 256;

std::string climbPath(size_t levels)
{
    std::string path("..");
    for (size_t each = 1; each < levels; ++each)
        path.append("/..");
    return path;
}

bool isRecorded(const struct stat& found, const struct stat& recorded)
{
    return found.st_dev == recorded.st_dev && found.st_ino == recorded.st_ino;
}

}  // namespace

// Reopens the current folder, closed for the limit, from its open child through "..", as du
// climbs, instead of name by name from above. The child's parent must still be the folder, and
// the chain of closed ancestors above it must still lead by ".." to the nearest open one (or,
// with none open, to the walk's first level found by name from the base), each stop where it
// was recorded: an ancestor moved out of the tree or swapped while closed fails here, and the
// reopening by name then gives it up. The check is by identity, not by name: a closed folder
// renamed in its own folder, or moved to another at the same depth below the same open
// ancestor, stays in the tree and is walked where it is, under its old path (as an open one
// moved anywhere is). On the way up it opens the ancestors that the folder keeps (see
// keepUnderLimit), so that the next climbs check short chains. Whatever does not match leaves
// nothing open.
void TreeWalker::climbFrom(int child)
{
    const size_t current = m_levels.size() - 1;
    std::vector<size_t> opened;
    int from = child;
    size_t fromIndex = current + 1;
    for (;;) {
        const auto above = std::lower_bound(m_openLevels.begin(), m_openLevels.end(), fromIndex);
        const bool anchored = above != m_openLevels.begin();
        const size_t anchor = anchored ? *std::prev(above) : 0;
        const size_t span = anchored ? fromIndex - anchor : fromIndex;  // levels up to the check
        const bool room = m_openLevels.size() < static_cast<size_t>(m_options.descriptorLimit);
        const std::optional<size_t> stop = fromIndex > current ? current : nextStop(fromIndex, span, room);
        if (!stop) {
            if (!(anchored ? leadsTo(from, span, *m_levels[anchor]) : isWalkBase(from, span)))
                closeLevels(opened);
            return;
        }
        if (!openByClimbing(from, fromIndex, *stop, room)) {
            closeLevels(opened);
            return;
        }
        opened.push_back(*stop);
        from = m_levels[*stop]->descriptor;
        fromIndex = *stop;
    }
}

// Opens the closed level `index` by climbing from the open `from` at `fromIndex`, checked
// against its record, closing another first unless there is `room` under the limit.
bool TreeWalker::openByClimbing(int from, size_t fromIndex, size_t index, bool room)
{
    if (!room)
        keepUnderLimit(fromIndex, m_options.descriptorLimit - 1);
    if (m_openLevels.size() >= static_cast<size_t>(m_options.descriptorLimit))
        return false;
    const int descriptor = ::openat(from, climbPath(fromIndex - index).c_str(), folderFlags);
    if (descriptor < 0)
        return false;
    struct stat found {};
    if (::fstat(descriptor, &found) != 0 || !isRecorded(found, m_levels[index]->status)) {
        ::close(descriptor);
        return false;
    }
    m_levels[index]->descriptor = descriptor;
    noteOpen(index);
    return true;
}

// Where a climb from the level `from`, `span` levels below the check that ends it, opens next:
// while there is `room` under the limit, the deepest ancestor on the way that the current
// folder keeps open; else the farthest one climb reaches when the check lies beyond it; none
// when the check is in one climb's reach.
std::optional<size_t> TreeWalker::nextStop(size_t from, size_t span, bool room) const
{
    if (span == 0)
        return std::nullopt;
    if (!room)
        return span > longestClimb ? std::optional<size_t>(from - longestClimb) : std::nullopt;
    const size_t current = m_levels.size() - 1;
    const size_t lowest = from - std::min(span - 1, longestClimb);
    for (size_t index = from; index-- > lowest;) {
        if (staysOpenFor(index, current))
            return index;
    }
    return span > longestClimb ? std::optional<size_t>(from - longestClimb) : std::nullopt;
}

// Whether climbing `levels` from `descriptor` by ".." arrives at `expected`.
bool TreeWalker::leadsTo(int descriptor, size_t levels, const Level& expected) const
{
    struct stat found {};
    return ::fstatat(descriptor, climbPath(levels).c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0
        && isRecorded(found, expected.status);
}

// Whether `descriptor`, `levels` below the walk's first level, hangs below that level, still
// found by its name from the walk's base.
bool TreeWalker::isWalkBase(int descriptor, size_t levels) const
{
    struct stat found {};
    if (levels > 0 && !leadsTo(descriptor, levels, *m_levels.front()))
        return false;
    return ::fstatat(m_baseDescriptor, m_baseName.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0
        && isRecorded(found, m_levels.front()->status);
}

void TreeWalker::closeLevels(const std::vector<size_t>& indices)
{
    for (const size_t index : indices)
        closeLevel(index);
}

void TreeWalker::closeLevel(size_t index)
{
    Level& level = *m_levels[index];
    if (!level.isOpen())
        return;
    ::close(level.descriptor);
    level.descriptor = -1;
    m_openLevels.erase(std::lower_bound(m_openLevels.begin(), m_openLevels.end(), index));
}


// The path of the current folder's entry `name`, left in the path buffer after the folder's own.
std::string_view TreeWalker::entryPath(std::string_view name) const
{
    const size_t folderLength = folderPathLength();
    if (m_path.size() != folderLength + 1 + name.size() || m_path.compare(folderLength + 1, name.size(), name) != 0) {
        m_path.resize(folderLength);
        m_path.append("/").append(name);
    }
    return m_path;
}

size_t TreeWalker::folderPathLength() const
{
    return m_levels.empty() ? m_basePath.size() : m_levels.back()->pathLength;
}

bool TreeWalker::isRepeatedLink(const struct stat& status)
{
    if (status.st_nlink < 2)
        return false;
    LinkRegister& links = m_options.links ? *m_options.links : m_ownLinks;
    return !links.firstSighting(status);
}

// Counts one entry; at every full batch publishes it and answers whether to go on.
bool TreeWalker::countEntry()
{
    if (++m_entries % progressBatch != 0)
        return true;
    if (m_options.progress)
        m_options.progress->addEntries(progressBatch);
    return !isCancelled();
}

bool TreeWalker::isCancelled() const
{
    return m_options.cancellation && m_options.cancellation->isCancelled();
}
