#include "scan/DuplicateFinder.h"

#include "format/RelativeDate.h"
#include "machinery/Concurrency.h"
#include "machinery/FileDigest.h"
#include "machinery/FileSizer.h"
#include "platform/Platform.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <openssl/evp.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace DuplicateFinder {

namespace {

constexpr qint64 headLength = 65'536;
constexpr qint64 chunkLength = 1'048'576;
constexpr int concurrentGroups = 4;

// ---- SHA-256 through OpenSSL's EVP interface ----

struct HashFree {
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
};
using HashState = std::unique_ptr<EVP_MD_CTX, HashFree>;

HashState newHash()
{
    HashState state(EVP_MD_CTX_new());
    if (state && EVP_DigestInit_ex(state.get(), EVP_sha256(), nullptr) != 1)
        state.reset();
    return state;
}

// A second state that continues from where `state` stands; lets the head pass hand out its
// own digest without giving up the state the whole-file pass continues from.
HashState forkHash(const HashState& state)
{
    HashState copy(EVP_MD_CTX_new());
    if (copy && EVP_MD_CTX_copy_ex(copy.get(), state.get()) != 1)
        copy.reset();
    return copy;
}

std::optional<QString> finishHash(const HashState& state)
{
    unsigned char value[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    if (!state || EVP_DigestFinal_ex(state.get(), value, &length) != 1)
        return std::nullopt;
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(value), int(length));
    return QString::fromLatin1(bytes.toHex());
}

// ---- Reading ----

// A file opened for reading. A symbolic link put in the file's place is not followed, and a
// pipe put there cannot block the scan.
class ReadHandle {
public:
    explicit ReadHandle(const QString& path)
        : m_fd(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK))
    {
    }
    ~ReadHandle()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    ReadHandle(const ReadHandle&) = delete;
    ReadHandle& operator=(const ReadHandle&) = delete;

    bool isOpen() const { return m_fd >= 0; }
    int fd() const { return m_fd; }

    // True when the open file is still the regular file the walk saw, unchanged. The times count
    // too: a file deleted and made again often gets the same inode back.
    bool isStill(const File& file) const
    {
        struct stat info {};
        if (::fstat(m_fd, &info) != 0 || !S_ISREG(info.st_mode))
            return false;
        return static_cast<qint32>(info.st_dev) == file.device
            && static_cast<quint64>(info.st_ino) == file.inode && info.st_size == file.size
            && FileTarget::ContentStamp::of(info) == file.stamp;
    }

private:
    int m_fd;
};

using Buffer = std::vector<unsigned char>;

// ---- Comparing one size group ----

// A candidate after its first 64 KiB: their digest, and for longer files the hash state
// to continue from, so the whole-file pass never reads the head twice.
struct Head {
    const File* file = nullptr;
    QString digest;
    HashState rest;
};

struct Group {
    QString id;  // the content's SHA-256
    std::vector<const File*> members;
};

// A copy in a finished group, with the date it is ordered by.
struct Member {
    const File* file = nullptr;
    QDateTime date;
};

struct OrderedGroup {
    QString id;
    std::vector<Member> members;  // oldest first
};

struct SizeGroupOutcome {
    std::vector<OrderedGroup> groups;
    Stats stats;
};

// Splits `items` by `key`, keeping the order in which each key first appears.
template <typename Item, typename Key>
std::vector<std::vector<Item>> bucketBy(std::vector<Item> items, Key key)
{
    QHash<QString, size_t> indexOf;
    std::vector<std::vector<Item>> buckets;
    for (Item& item : items) {
        const QString value = key(item);
        const auto found = indexOf.constFind(value);
        const size_t index = found != indexOf.cend() ? *found : buckets.size();
        if (index == buckets.size()) {
            indexOf.insert(value, index);
            buckets.emplace_back();
        }
        buckets[index].push_back(std::move(item));
    }
    return buckets;
}

// The date a copy is ordered and labelled by: when it was created where the file system
// records that; otherwise its last change, the closest known bound.
QDateTime memberDate(const File& file)
{
    if (const auto born = Platform::birthTime(file.path))
        return *born;
    return QDateTime::fromMSecsSinceEpoch(file.stamp.modified / 1'000'000, Qt::UTC);
}

// Compares the files of one size on one thread: first-64-KiB digests, then whole-file digests
// only within sub-groups that share a head. Gives up the group (returns nothing) once the
// scan is cancelled, since a half-compared group proves nothing.
class SizeGroupComparer {
public:
    explicit SizeGroupComparer(const ScanContext& context) : m_context(context), m_buffer(chunkLength) {}

    SizeGroupOutcome compare(const std::vector<const File*>& sameSize)
    {
        std::vector<Head> heads;
        for (const File* file : sameSize) {
            if (m_context.isCancelled())
                return {{}, m_stats};
            if (auto head = hashHead(*file))
                heads.push_back(std::move(*head));
        }
        std::vector<Group> groups;
        for (auto& bucket : bucketBy(std::move(heads), [](const Head& h) { return h.digest; })) {
            if (bucket.size() >= 2 && !splitWhole(bucket, groups))
                return {{}, m_stats};
        }
        return {ordered(std::move(groups)), m_stats};
    }

private:
    std::optional<Head> hashHead(const File& file)
    {
        ReadHandle handle(file.path);
        if (!handle.isOpen() || !handle.isStill(file))
            return std::nullopt;
        ++m_stats.filesRead;
        if (m_context.progress)
            m_context.progress->addEntries(1);
        HashState hash = newHash();
        if (!hash || !readExactly(handle.fd(), 0, std::min(file.size, headLength), hash))
            return std::nullopt;
        if (file.size <= headLength) {
            const auto digest = finishHash(hash);
            return digest ? std::optional(Head{&file, *digest, {}}) : std::nullopt;
        }
        const auto digest = finishHash(forkHash(hash));
        return digest ? std::optional(Head{&file, *digest, std::move(hash)}) : std::nullopt;
    }

    std::optional<QString> finishWhole(Head& head)
    {
        const File& file = *head.file;
        ReadHandle handle(file.path);
        if (!head.rest || !handle.isOpen() || !handle.isStill(file))
            return std::nullopt;
        ++m_stats.filesReadWhole;
        if (!readExactly(handle.fd(), headLength, file.size, head.rest))
            return std::nullopt;
        return finishHash(head.rest);
    }

    // Hashes the bytes from `from` to `to`; false when they cannot all be read.
    bool readExactly(int fd, qint64 from, qint64 to, const HashState& hash)
    {
        const auto fed = FileDigest::feed(fd, from, to, hash.get(), m_buffer.data(), m_buffer.size());
        if (!fed)
            return false;
        m_stats.bytesRead += fed->read;
        return fed->length == to - from;
    }

    // Adds the groups of one shared head to `groups`; false when cancelled part-way. Files are
    // read whole only when their last 64 KiB match another's too; the survivors are finished
    // in their original order so the groups come out as a whole-file pass alone makes them.
    bool splitWhole(std::vector<Head>& sameHead, std::vector<Group>& groups)
    {
        if (sameHead.front().file->size <= headLength) {
            groups.push_back({sameHead.front().digest, files(sameHead)});
            return true;
        }
        const std::optional<QSet<const File*>> sharingTail = filesSharingTail(sameHead);
        if (!sharingTail)
            return false;
        std::vector<Head> whole;
        for (Head& head : sameHead) {
            if (!sharingTail->contains(head.file))
                continue;
            if (m_context.isCancelled())
                return false;
            if (auto digest = finishWhole(head))
                whole.push_back({head.file, *digest, {}});
        }
        for (auto& bucket : bucketBy(std::move(whole), [](const Head& h) { return h.digest; })) {
            if (bucket.size() >= 2)
                groups.push_back({bucket.front().digest, files(bucket)});
        }
        return true;
    }

    // The files whose last 64 KiB match another file's; absent when cancelled. Below two
    // heads' length the rest of a file is no longer than its tail, so all are kept unread.
    std::optional<QSet<const File*>> filesSharingTail(const std::vector<Head>& sameHead)
    {
        QSet<const File*> sharing;
        if (sameHead.front().file->size <= 2 * headLength) {
            for (const Head& head : sameHead)
                sharing.insert(head.file);
            return sharing;
        }
        std::vector<Head> tails;
        for (const Head& head : sameHead) {
            if (m_context.isCancelled())
                return std::nullopt;
            if (auto digest = tailDigest(*head.file))
                tails.push_back({head.file, *digest, {}});
        }
        for (const auto& bucket : bucketBy(std::move(tails), [](const Head& h) { return h.digest; })) {
            for (const Head& tail : bucket) {
                if (bucket.size() >= 2)
                    sharing.insert(tail.file);
            }
        }
        return sharing;
    }

    std::optional<QString> tailDigest(const File& file)
    {
        ReadHandle handle(file.path);
        HashState hash = newHash();
        if (!hash || !handle.isOpen() || !handle.isStill(file))
            return std::nullopt;
        ++m_stats.filesReadTail;
        if (!readExactly(handle.fd(), file.size - headLength, file.size, hash))
            return std::nullopt;
        return finishHash(hash);
    }

    std::vector<OrderedGroup> ordered(std::vector<Group> groups)
    {
        std::vector<OrderedGroup> result;
        for (Group& group : groups) {
            auto members = withoutSharedStorage(oldestFirst(group.members));
            if (members.size() >= 2)
                result.push_back({group.id, std::move(members)});
        }
        return result;
    }

    static std::vector<Member> oldestFirst(const std::vector<const File*>& files)
    {
        std::vector<Member> members;
        for (const File* file : files)
            members.push_back({file, memberDate(*file)});
        std::stable_sort(members.begin(), members.end(),
                         [](const Member& a, const Member& b) { return a.date < b.date; });
        return members;
    }

    // Copies that share their blocks with an older copy (clones, reflinks) free nothing when
    // removed, so like hard links they count once: the oldest of them stays in the group.
    std::vector<Member> withoutSharedStorage(std::vector<Member> members)
    {
        QSet<QByteArray> storage;
        std::vector<Member> kept;
        for (Member& member : members) {
            const auto key = Platform::sharedStorageKey(member.file->path);
            if (key && storage.contains(*key)) {
                ++m_stats.sharedStorage;
                continue;
            }
            if (key)
                storage.insert(*key);
            kept.push_back(std::move(member));
        }
        return kept;
    }

    static std::vector<const File*> files(const std::vector<Head>& heads)
    {
        std::vector<const File*> result;
        for (const Head& head : heads)
            result.push_back(head.file);
        return result;
    }

    const ScanContext& m_context;
    Buffer m_buffer;
    Stats m_stats;
};

// ---- Candidates and rows ----

// One entry per stored file (hard links count once, files with no blocks not at all), grouped
// by length; groups of one are dropped. Larger files come first: they waste the most and take
// longest to hash, so the concurrent map starts them early.
std::vector<std::vector<const File*>> sizeGroups(const QList<File>& files)
{
    QSet<FileKey> seen;
    QHash<qint64, size_t> indexOfSize;
    std::vector<std::vector<const File*>> groups;
    for (const File& file : files) {
        const FileKey key{file.device, file.inode};
        // A file that is all holes takes no space: removing it frees nothing, so it is never read.
        if (file.allocated == 0 || seen.contains(key))
            continue;
        seen.insert(key);
        const size_t index = indexOfSize.value(file.size, groups.size());
        if (index == groups.size()) {
            indexOfSize.insert(file.size, index);
            groups.emplace_back();
        }
        groups[index].push_back(&file);
    }
    std::erase_if(groups, [](const auto& group) { return group.size() < 2; });
    std::stable_sort(groups.begin(), groups.end(),
                     [](const auto& a, const auto& b) { return a.front()->size > b.front()->size; });
    return groups;
}

FileTarget targetOf(const File& file)
{
    FileTarget target;
    target.path = file.path;
    target.device = file.device;
    target.inode = file.inode;
    target.content = file.stamp;
    // The birth time tells this file from one made later on its freed inode; taken only while
    // the path still names the object the walk found.
    const std::optional<FileTarget> now = FileTarget::make(file.path);
    if (now && now->device == file.device && now->inode == file.inode)
        target.birth = now->birth;
    return target;
}

CleanupItem row(const Member& member, const QString& groupId, bool isOldest, const ScanContext& context)
{
    const File& file = *member.file;
    CleanupItem item;
    item.id = file.path;
    item.category = CategoryID::duplicates;
    item.title = PathRules::withTilde(file.path, context.home);
    //: Fact in a Duplicates row's detail line; %1 is a relative date like '3 months ago'
    item.detail = QCoreApplication::translate("DuplicateFinder", "created %1")
                      .arg(RelativeDate::marker(member.date));
    item.size = file.allocated;
    item.removal = Removal::trash({targetOf(file)});
    item.date = member.date;
    item.duplicateGroup = groupId;
    item.isOldestCopy = isOldest;
    if (isOldest)
        //: Badge of the oldest copy among duplicates
        item.badge = QCoreApplication::translate("DuplicateFinder", "Oldest copy");
    return item;
}

Stats& operator+=(Stats& total, const Stats& part)
{
    total.bytesRead += part.bytesRead;
    total.filesRead += part.filesRead;
    total.filesReadWhole += part.filesReadWhole;
    total.filesReadTail += part.filesReadTail;
    total.sharedStorage += part.sharedStorage;
    return total;
}

}  // namespace

Outcome find(const QList<File>& files, const ScanContext& context)
{
    const auto compared = Concurrency::map(sizeGroups(files), concurrentGroups, context.cancellation,
        [&context](const std::vector<const File*>& sameSize) {
            return SizeGroupComparer(context).compare(sameSize);
        });
    Outcome outcome;
    for (const SizeGroupOutcome& sizeGroup : compared) {
        outcome.stats += sizeGroup.stats;
        for (const OrderedGroup& group : sizeGroup.groups) {
            for (size_t i = 0; i < group.members.size(); ++i)
                outcome.items.push_back(row(group.members[i], group.id, i == 0, context));
        }
    }
    return outcome;
}

QList<CleanupItem> items(const QList<File>& files, const ScanContext& context)
{
    return find(files, context).items;
}

std::optional<QString> digest(const QString& path, std::optional<qint64> limit)
{
    ReadHandle handle(path);
    HashState hash = newHash();
    if (!handle.isOpen() || !hash)
        return std::nullopt;
    Buffer buffer(size_t(std::clamp(limit.value_or(chunkLength), qint64(1), chunkLength)));
    const qint64 end = limit.value_or(std::numeric_limits<qint64>::max());
    if (!FileDigest::feed(handle.fd(), 0, end, hash.get(), buffer.data(), buffer.size()))
        return std::nullopt;
    return finishHash(hash);
}

}  // namespace DuplicateFinder
