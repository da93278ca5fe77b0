#pragma once

#include "machinery/CancellationToken.h"
#include "machinery/FileKey.h"

#include <QByteArray>
#include <QSet>
#include <QString>

#include <fcntl.h>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

class ScanProgress;
class TreeWalker;

// One entry as the walk meets it. Valid only during the callback that receives it.
class TreeEntry {
public:
    [[nodiscard]] std::string_view name() const { return m_name; }
    // The entry's own status (never a link's target).
    [[nodiscard]] const struct stat& status() const { return *m_status; }
    // 0 for the root, 1 for what lies directly in it, and so on.
    [[nodiscard]] int depth() const { return m_depth; }
    // The open folder that holds the entry, for lookups relative to it (`fstatat`, `openat`)
    // instead of by path from the root. AT_FDCWD for the root. Valid in enterFolder, visitItem
    // and leaveFolder (reopened if it was closed to stay under the limit; -1 only when that
    // failed); in problem it may be -1.
    [[nodiscard]] int folderDescriptor() const { return m_folder; }
    [[nodiscard]] FileKey key() const { return FileKey::of(*m_status); }
    // The path, built only when asked for: the root as given, then "/" and each name. The view
    // lies in the walker's own buffer (no copy: it costs the name alone, however deep) and
    // lasts while the callback runs.
    [[nodiscard]] std::string_view pathView() const;
    [[nodiscard]] QByteArray pathBytes() const;
    [[nodiscard]] QString path() const;
    // The path of the folder holding the entry (the root's own parent for the root).
    [[nodiscard]] QByteArray folderPathBytes() const;
    // Whether the name survives decoding to text and encoding back; a name that does not
    // cannot be shown or handed to a later step by path, so users leave such entries out.
    [[nodiscard]] bool nameDecodes() const;

private:
    friend class TreeWalker;
    TreeEntry(const TreeWalker& walker, std::string_view name, const struct stat& status, int depth, int folder)
        : m_walker(&walker), m_name(name), m_status(&status), m_depth(depth), m_folder(folder) {}

    const TreeWalker* m_walker;
    std::string_view m_name;
    const struct stat* m_status;
    int m_depth;
    int m_folder;
};

// What went wrong with one entry; the walk goes on after each.
enum class TreeProblem {
    CannotExamine,  // its status could not be read (vanished, no permission): no other callback
    CannotOpen,     // a folder that could not be opened, or was replaced before it was opened
    CannotList,     // a folder whose listing failed part way (what was listed is still walked)
};

// The hard-linked files seen so far, shared by the walkers that measure one tree together.
// Thread-safe.
class LinkRegister {
public:
    // Whether this is the first time the file (by device and inode) is seen.
    bool firstSighting(const struct stat& status)
    {
        const std::lock_guard lock(m_mutex);
        const qsizetype before = m_seen.size();
        m_seen.insert(FileKey::of(status));
        return m_seen.size() != before;
    }

private:
    std::mutex m_mutex;
    QSet<FileKey> m_seen;
};

// A folder that one walk examined and entered, handed to another walk to go on below it.
struct TreeFolder {
    int parentDescriptor = -1;  // the open folder holding it; must stay open during the walk
    QByteArray parentPath;      // that folder's path
    std::string name;
    struct stat status {};
    int depth = 0;              // its depth in the whole walk; the walk stays on its volume
};

// The callbacks of one walk. Every one runs on the walking thread.
class TreeVisitor {
public:
    enum class Verdict { Enter, Skip, Stop };
    virtual ~TreeVisitor() = default;

    // Pre-order: a folder, the root included. Enter descends, Skip leaves it out, Stop ends
    // the walk. Every folder that got Enter is later given to leaveFolder, also when it could
    // not be opened (after problem), so tallies kept on a stack stay balanced.
    virtual Verdict enterFolder(const TreeEntry&) { return Verdict::Enter; }
    // Post-order: the folder's whole subtree has been walked (or it could not be read).
    virtual void leaveFolder(const TreeEntry&) {}
    // Anything that is not a folder: files, symbolic links (never followed), devices,
    // sockets. Stop ends the walk; Enter and Skip both go on.
    virtual Verdict visitItem(const TreeEntry&) { return Verdict::Enter; }
    virtual void problem(const TreeEntry&, TreeProblem, int error) { (void)error; }
};

// A depth-first walk of one tree by folder descriptors: each folder is opened relative to its
// parent (`openat` with O_NOFOLLOW | O_DIRECTORY), listed whole, and each entry examined with
// `fstatat` relative to it, so no entry is ever looked up by its path from the root and the
// working folder never changes. The walk
// - never follows a symbolic link, and never enters a folder that was swapped for another one
//   (or for a link) between its status and its opening: the opened folder must have the
//   device and inode the status showed;
// - stays on the root's volume: entries of another device (mount points) are not reported;
// - keeps at most `descriptorLimit` folders open: past that depth some ancestors are closed and
//   reopened on the way back up through ".." from the child just finished, each checked again
//   and with the closed ancestors above still leading to an open one; when that fails (a folder
//   moved or swapped meanwhile), name by name from the nearest open ancestor, which gives up a
//   folder no longer where it was (which ones stay open keeps a deep chain's cost near linear;
//   see keepUnderLimit);
// - reports hard-linked non-folders once per walk when `hardLinksOnce` is set (by FileKey);
// - counts every examined entry and adds them to `progress` in batches of 4096; polls
//   `cancellation` at the same rhythm and before reading each folder.
// Sizes are the users' business: `status().st_blocks * 512` is what a file takes on disk.
//
// How the users fit: FileSizer sums in enterFolder and visitItem with `hardLinksOnce`; a
// per-folder tally (storage) pushes in enterFolder and pops into its parent in leaveFolder;
// a per-file record (fingerprint) takes the path relative to the root from `pathBytes()` and
// may open the file with `openat(folderDescriptor(), name, O_NOFOLLOW)`; a bounded walk
// returns Stop from any callback once it has seen enough.
//
// Thread-safety: a TreeWalker belongs to the thread that runs it; separate walkers may run at
// once. Only `progress` is shared, and it guards itself.
class TreeWalker {
public:
    struct Options {
        ScanProgress* progress = nullptr;
        const CancellationToken* cancellation = nullptr;
        bool hardLinksOnce = false;
        LinkRegister* links = nullptr;  // shared when several walkers measure one tree; else own
        int descriptorLimit = 24;  // several walks run side by side; deeper trees reopen
    };

    enum class End { Finished, Cancelled, Stopped };
    struct Result {
        End end = End::Finished;
        qint64 entries = 0;  // entries examined, the root included
    };

    explicit TreeWalker(Options options);
    TreeWalker(const TreeWalker&) = delete;
    TreeWalker& operator=(const TreeWalker&) = delete;
    ~TreeWalker();

    // Walks `root` (an entry of any kind; a link is reported as a link). A root that cannot be
    // examined gives problem(CannotExamine) and nothing else. Call once per walker.
    Result walk(const QByteArray& root, TreeVisitor& visitor);
    // Walks what lies below `folder`, whose enterFolder has already been given by the walk that
    // found it; its leaveFolder comes from this walk, last. Entries keep their depths and paths
    // in the whole walk. The folder itself is not counted again. Call once per walker.
    Result walkBelow(const TreeFolder& folder, TreeVisitor& visitor);

    static constexpr qint64 progressBatch = 4096;

private:
    friend class TreeEntry;
    struct Level;

    bool examineRoot(TreeVisitor& visitor);
    Result finish();
    void walkNext(TreeVisitor& visitor);
    void handleEntry(TreeVisitor& visitor, const Level& folder, std::string_view name);
    void handleFolder(TreeVisitor& visitor, const TreeEntry& entry);
    void descend(TreeVisitor& visitor, const TreeEntry& entry);
    bool openLevel(Level& level, size_t index);
    static void listLevel(Level& level, const TreeEntry& entry, TreeVisitor& visitor);
    void leave(TreeVisitor& visitor);
    bool ensureOpen(size_t index);
    void noteOpen(size_t index);
    void keepUnderLimit(size_t pinned, int most = -1);
    void climbFrom(int child);
    std::optional<size_t> nextStop(size_t from, size_t span, bool room) const;
    bool leadsTo(int descriptor, size_t levels, const Level& expected) const;
    bool isWalkBase(int descriptor, size_t levels) const;
    bool openByClimbing(int from, size_t fromIndex, size_t index, bool room);
    void closeLevels(const std::vector<size_t>& indices);
    void closeLevel(size_t index);
    size_t folderPathLength() const;
    std::string_view entryPath(std::string_view name) const;
    bool isRepeatedLink(const struct stat& status);
    bool countEntry();
    bool isCancelled() const;

    Options m_options;
    QByteArray m_root;
    int m_baseDescriptor = AT_FDCWD;  // what the first level is opened relative to
    std::string m_baseName;           // and by which name (the root's path for a whole walk)
    int m_depthOffset = 0;            // the first level's depth in the whole walk
    std::string m_basePath;           // the path holding the first level ("" for "/" or a root)
    // The current folder's path; an entry asked for its path leaves "/" and its name after it
    // until another entry asks.
    mutable std::string m_path;
    std::vector<std::unique_ptr<Level>> m_levels;  // by pointer: entries view names in them
    std::vector<size_t> m_openLevels;              // indices of the open levels, ascending
    dev_t m_device = 0;
    LinkRegister m_ownLinks;
    qint64 m_entries = 0;
    End m_end = End::Finished;
};
