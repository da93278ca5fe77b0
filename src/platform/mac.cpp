#include "platform/Platform.h"
#include "platform/DesktopNotification.h"
#include "platform/ProcessArguments.h"

#include <QFile>
#include <QTimeZone>

#include <CoreFoundation/CoreFoundation.h>
#include <CoreServices/CoreServices.h>
#include <algorithm>
#include <cerrno>
#include <climits>  // PATH_MAX
#include <cstdio>  // renameat2 / renamex_np
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <libproc.h>
#include <spawn.h>
#include <sys/attr.h>
#include <sys/mount.h>
#include <sys/proc.h>
#include <sys/sysctl.h>
#include <unistd.h>

// Public in every SDK's ps, but declared only under __APPLE_API_UNSTABLE in some.
#ifndef KERN_PROCARGS2
#define KERN_PROCARGS2 49
#endif

namespace Platform {

namespace {

// proc_list*pids fill `ids` and return how many they wrote (not bytes), or -1.
std::vector<pid_t> positiveIds(std::vector<pid_t> ids, int count)
{
    ids.resize(size_t(std::clamp(count, 0, int(ids.size()))));
    std::erase_if(ids, [](pid_t id) { return id <= 0; });
    return ids;
}

QString sysctlText(const char* name)
{
    char buffer[256] = {};
    size_t size = sizeof buffer;
    if (::sysctlbyname(name, buffer, &size, nullptr, 0) != 0)
        return {};
    return QString::fromUtf8(buffer, qsizetype(strnlen(buffer, sizeof buffer)));
}

// A number-valued volume property of the volume holding `path`; absent when unreadable.
std::optional<qint64> volumeNumber(const QString& path, CFStringRef key)
{
    const QByteArray name = QFile::encodeName(path);
    CFURLRef url = CFURLCreateFromFileSystemRepresentation(
        kCFAllocatorDefault, reinterpret_cast<const UInt8*>(name.constData()), CFIndex(name.size()), false);
    if (url == nullptr)
        return std::nullopt;
    std::optional<qint64> result;
    CFTypeRef value = nullptr;
    if (CFURLCopyResourcePropertyForKey(url, key, &value, nullptr) && value != nullptr) {
        SInt64 number = 0;
        if (CFGetTypeID(value) == CFNumberGetTypeID()
            && CFNumberGetValue(static_cast<CFNumberRef>(value), kCFNumberSInt64Type, &number))
            result = number;
        CFRelease(value);
    }
    CFRelease(url);
    return result;
}

// The string's text through the C API: QString::fromCFString is declared only by Qt built for
// Darwin, and this keeps the file readable by the stub compile check (scripts/check-mac.sh).
QString textOf(CFStringRef string)
{
    const CFIndex size = CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8) + 1;
    QByteArray buffer(qsizetype(size), Qt::Uninitialized);
    if (!CFStringGetCString(string, buffer.data(), size, kCFStringEncodingUTF8))
        return {};
    return QString::fromUtf8(buffer.constData());
}

}  // namespace

QString bundleValue(const QString& key)
{
    const CFBundleRef bundle = CFBundleGetMainBundle();
    if (!bundle)
        return {};
    const CFStringRef name = CFStringCreateWithCString(nullptr, key.toUtf8().constData(), kCFStringEncodingUTF8);
    if (!name)
        return {};  // not valid UTF-8, or out of memory
    const CFTypeRef value = CFBundleGetValueForInfoDictionaryKey(bundle, name);
    CFRelease(name);
    if (!value || CFGetTypeID(value) != CFStringGetTypeID())
        return {};
    return textOf(static_cast<CFStringRef>(value));
}

// A non-zero argument makes PROC_PIDTBSDINFO and PROC_PIDT_SHORTBSDINFO answer for zombies too.
constexpr uint64_t includingZombies = 1;

std::optional<qint64> processStartTime(pid_t pid)
{
    struct proc_bsdinfo info {};
    // Refused (EPERM) for another user's process: absent, as promised.
    if (proc_pidinfo(pid, PROC_PIDTBSDINFO, includingZombies, &info, sizeof info) != int(sizeof info))
        return std::nullopt;
    return qint64(info.pbi_start_tvsec) * 1'000'000 + qint64(info.pbi_start_tvusec);
}

bool adoptOrphans()
{
    return false;  // no subreaper on macOS; a stop finds orphans through their process group
}

namespace {

std::vector<pid_t> allProcessIds()
{
    const int estimate = proc_listallpids(nullptr, 0);
    if (estimate <= 0)
        return {};
    std::vector<pid_t> ids(size_t(estimate) + 64);  // room for processes started meanwhile
    const int count = proc_listallpids(ids.data(), int(ids.size() * sizeof(pid_t)));
    return positiveIds(std::move(ids), count);
}

}  // namespace

std::vector<ProcessEntry> processTable()
{
    std::vector<ProcessEntry> table;
    for (pid_t id : allProcessIds()) {
        // The short record is all a table needs (parent, group, state).
        struct proc_bsdshortinfo info {};
        if (proc_pidinfo(id, PROC_PIDT_SHORTBSDINFO, includingZombies, &info, sizeof info) != int(sizeof info))
            continue;  // collected while the table was read
        table.push_back({id, pid_t(info.pbsi_ppid), pid_t(info.pbsi_pgid), info.pbsi_status == SZOMB});
    }
    return table;
}

QStringList runningExecutables()
{
    QStringList paths;
    char path[PROC_PIDPATHINFO_MAXSIZE];
    for (pid_t id : allProcessIds()) {
        if (proc_pidpath(id, path, sizeof path) > 0)
            paths.append(QFile::decodeName(path));
    }
    return paths;
}

std::optional<QStringList> runningCommandLines()
{
    int argumentsLimit = 0;
    size_t limitSize = sizeof argumentsLimit;
    int limitName[] = {CTL_KERN, KERN_ARGMAX};
    if (::sysctl(limitName, 2, &argumentsLimit, &limitSize, nullptr, 0) != 0 || argumentsLimit <= 0)
        return std::nullopt;  // then AndroidScanner runs ps
    QStringList lines;
    std::vector<char> record(static_cast<size_t>(argumentsLimit));
    for (pid_t id : allProcessIds()) {
        int name[] = {CTL_KERN, KERN_PROCARGS2, int(id)};
        size_t size = record.size();
        if (::sysctl(name, 3, record.data(), &size, nullptr, 0) != 0)
            continue;  // ended meanwhile, or another user's
        const QString line = commandLineOfProcessArguments(QByteArrayView(record.data(), qsizetype(size)));
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines;
}

std::optional<QString> applicationForBundleIdentifier(const QString& bundleIdentifier)
{
    const QByteArray utf8 = bundleIdentifier.toUtf8();
    CFStringRef identifier = CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(utf8.constData()),
                                                     CFIndex(utf8.size()), kCFStringEncodingUTF8, false);
    if (!identifier)
        return std::nullopt;
    // The workspace's Objective-C replacement has no C form; this file stays plain C++.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    CFArrayRef urls = LSCopyApplicationURLsForBundleIdentifier(identifier, nullptr);
#pragma clang diagnostic pop
    CFRelease(identifier);
    if (!urls)
        return std::nullopt;  // nothing registered under this identifier
    std::optional<QString> path;
    char buffer[PATH_MAX];
    if (CFArrayGetCount(urls) > 0) {
        const auto url = static_cast<CFURLRef>(CFArrayGetValueAtIndex(urls, 0));
        if (CFURLGetFileSystemRepresentation(url, true, reinterpret_cast<UInt8*>(buffer), sizeof buffer))
            path = QFile::decodeName(buffer);
    }
    CFRelease(urls);
    return path;
}

bool isDataless(const struct stat& info)
{
    return (info.st_flags & SF_DATALESS) != 0;
}

std::optional<QDateTime> birthTime(const QString& path)
{
    struct stat info {};
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0 || info.st_birthtimespec.tv_sec <= 0)
        return std::nullopt;  // file systems without creation times report 0
    const qint64 milliseconds =
        qint64(info.st_birthtimespec.tv_sec) * 1000 + info.st_birthtimespec.tv_nsec / 1'000'000;
    return QDateTime::fromMSecsSinceEpoch(milliseconds, QTimeZone::utc());
}

std::optional<QString> userTempFolder()
{
    char buffer[1024];
    const size_t length = ::confstr(_CS_DARWIN_USER_TEMP_DIR, buffer, sizeof buffer);
    if (length == 0 || length > sizeof buffer)
        return std::nullopt;  // unknown, or longer than any real path
    return QFile::decodeName(buffer);
}

int readFolderNames(int folder, std::string& names)
{
    const int copy = ::fcntl(folder, F_DUPFD_CLOEXEC, 0);  // the stream takes its descriptor over
    if (copy < 0)
        return errno;
    DIR* listing = ::fdopendir(copy);
    if (!listing) {
        const int error = errno;
        ::close(copy);
        return error;
    }
    errno = 0;
    while (const dirent* entry = ::readdir(listing)) {
        const char* name = entry->d_name;
        if (!(name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'))))
            names.append(name, entry->d_namlen).push_back('\0');
        errno = 0;
    }
    const int error = errno;
    ::closedir(listing);
    return error;
}

std::optional<qint64> birthNanosecondsAt(int folder, const char* name)
{
    struct stat info {};
    if (::fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) != 0 || info.st_birthtimespec.tv_sec <= 0)
        return std::nullopt;
    return qint64(info.st_birthtimespec.tv_sec) * 1'000'000'000 + info.st_birthtimespec.tv_nsec;
}

std::optional<qint64> availableCapacity(const QString& path)
{
    return volumeNumber(path, kCFURLVolumeAvailableCapacityKey);
}

// Adds what the system would purge to make room (caches, local snapshots) on APFS; other
// file systems (exFAT, FAT, HFS+) answer 0 or nothing, so only the startup disk asks for it.
std::optional<qint64> availableCapacityForImportantUsage(const QString& path)
{
    const std::optional<qint64> important = volumeNumber(path, kCFURLVolumeAvailableCapacityForImportantUsageKey);
    if (important && *important > 0)
        return important;
    return availableCapacity(path);
}

// getattrlist(2): a volume's capabilities are asked of its root folder; the interface bit
// VOL_CAP_INT_EXTENDED_ATTR says the format keeps extended attributes natively.
bool keepsExtendedAttributes(const QString& path)
{
    struct statfs volume {};
    if (::statfs(QFile::encodeName(path).constData(), &volume) != 0)
        return true;
    struct attrlist request {};
    request.bitmapcount = ATTR_BIT_MAP_COUNT;
    request.volattr = ATTR_VOL_INFO | ATTR_VOL_CAPABILITIES;
    struct {
        u_int32_t length;
        vol_capabilities_attr_t capabilities;
    } __attribute__((aligned(4), packed)) answer {};
    if (::getattrlist(volume.f_mntonname, &request, &answer, sizeof answer, 0) != 0)
        return true;
    const u_int32_t interfaces = VOL_CAPABILITIES_INTERFACES;
    if ((answer.capabilities.valid[interfaces] & VOL_CAP_INT_EXTENDED_ATTR) == 0)
        return true;  // the volume doesn't say
    return (answer.capabilities.capabilities[interfaces] & VOL_CAP_INT_EXTENDED_ATTR) != 0;
}

std::optional<qint64> totalCapacity(const QString& path)
{
    return volumeNumber(path, kCFURLVolumeTotalCapacityKey);
}

QString machineDescription()
{
    return QStringLiteral("macOS %1 on %2")
        .arg(sysctlText("kern.osproductversion"), sysctlText("machdep.cpu.brand_string"));
}

bool openPrivatePipe(int ends[2])
{
    // macOS has no pipe2(); the short window before FD_CLOEXEC is covered for our own launches
    // by POSIX_SPAWN_CLOEXEC_DEFAULT (extraSpawnFlags).
    if (::pipe(ends) != 0)
        return false;
    ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    ::fcntl(ends[1], F_SETFD, FD_CLOEXEC);
    return true;
}

bool ownDescriptorTable()
{
    return false;  // every thread shares the process's table
}

short extraSpawnFlags()
{
    return POSIX_SPAWN_CLOEXEC_DEFAULT;
}

// APFS offers no public call that says which blocks two clones share, and a clone identifier
// we cannot verify here would be a guess. So every file counts as owning its storage: clones
// keep showing as duplicates, which at worst offers a removal that frees less than its size,
// never one that loses data (one copy of every group always stays).
std::optional<QByteArray> sharedStorageKey(const QString&)
{
    return std::nullopt;
}

int renameNoReplace(const QString& from, const QString& to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renamex_np(source.constData(), target.constData(), RENAME_EXCL) == 0)
        return 0;
    return errno;
}

int changeModeAt(int folder, const char* name, const struct stat& listed, mode_t mode)
{
    struct stat info {};
    if (::fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return errno;
    if (info.st_dev != listed.st_dev || info.st_ino != listed.st_ino || S_ISLNK(info.st_mode))
        return ESTALE;
    return ::fchmodat(folder, name, mode, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : errno;
}

int renameNoReplaceAt(int fromFolder, const char* from, int toFolder, const char* to)
{
    return ::renameatx_np(fromFolder, from, toFolder, to, RENAME_EXCL) == 0 ? 0 : errno;
}

int openReadingFromDisk(int folder, const char* name)
{
    const int fd = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return -1;
    // F_FULLFSYNC asks the drive itself to write its cache out, where plain fsync stops at the
    // drive; F_NOCACHE then keeps this descriptor's reads out of the unified buffer cache.
    if ((::fcntl(fd, F_FULLFSYNC) != 0 && ::fsync(fd) != 0) || ::fcntl(fd, F_NOCACHE, 1) != 0) {
        const int error = errno;
        ::close(fd);
        errno = error;
        return -1;
    }
    return fd;
}

qint64 modificationNanoseconds(const struct stat& info)
{
    return qint64(info.st_mtimespec.tv_sec) * 1'000'000'000 + info.st_mtimespec.tv_nsec;
}

qint64 statusChangeNanoseconds(const struct stat& info)
{
    return qint64(info.st_ctimespec.tv_sec) * 1'000'000'000 + info.st_ctimespec.tv_nsec;
}

qint64 accessNanoseconds(const struct stat& info)
{
    return qint64(info.st_atimespec.tv_sec) * 1'000'000'000 + info.st_atimespec.tv_nsec;
}

Desktop desktop()
{
    return Desktop::finder;
}

bool showItemInFileManager(const QString&)
{
    return false;  // Finder is asked with `open -R` (SystemAccess::revealCommand)
}

std::optional<quint32> postDesktopNotification(const QString&, const DesktopNotification&)
{
    return std::nullopt;  // osascript's `display notification` (Notifier::appleScriptCommand)
}

bool watchDesktopNotifications(const QString&, QObject*, const std::function<void(quint32, NotificationAnswer)>&)
{
    return false;
}

void closeDesktopNotification(const QString&, quint32) {}

}  // namespace Platform
