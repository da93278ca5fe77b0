#include "platform/Platform.h"
#include "platform/DesktopNotification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTimeZone>
#include <QUrl>

#include <cerrno>
#include <cstdio>  // renameat2 / renamex_np
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Platform {

namespace {

// The fields of /proc/PID/stat after the command name, which may itself hold spaces and
// parentheses; field 3 of the file ("state") is index 0 here.
QList<QByteArray> statFieldsAfterName(pid_t pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray line = file.readAll();
    const qsizetype nameEnd = line.lastIndexOf(')');
    if (nameEnd < 0)
        return {};
    return line.mid(nameEnd + 2).trimmed().split(' ');
}

QList<pid_t> allProcessIds()
{
    QList<pid_t> ids;
    const QStringList names = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        bool ok = false;
        const int id = name.toInt(&ok);
        if (ok && id > 0)
            ids.append(id);
    }
    return ids;
}

// Seconds since 1970 at which the system booted, from /proc/stat; 0 when unreadable.
qint64 bootTimeSeconds()
{
    QFile file(QStringLiteral("/proc/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("btime "))
            return line.mid(6).trimmed().toLongLong();
    }
    return 0;
}

// The value of `key` in a "key<separator>value" text file, without surrounding quotes.
QString valueInFile(const QString& path, const QByteArray& key, char separator)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : file.readAll().split('\n')) {
        const qsizetype at = line.indexOf(separator);
        if (at < 0 || line.left(at).trimmed() != key)
            continue;
        QByteArray value = line.mid(at + 1).trimmed();
        if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
            value = value.mid(1, value.size() - 2);
        return QString::fromUtf8(value);
    }
    return {};
}

std::optional<struct statvfs> volumeInfo(const QString& path)
{
    struct statvfs info {};
    if (::statvfs(QFile::encodeName(path).constData(), &info) != 0)
        return std::nullopt;
    return info;
}

}  // namespace

QString bundleValue(const QString& key)
{
    if (key == QLatin1String("CFBundleShortVersionString"))
        return QStringLiteral(DUSTLARK_VERSION);
    if (key == QLatin1String("CFBundleVersion"))
        return QStringLiteral(DUSTLARK_BUILD);
    if (key == QLatin1String("CFBundleIdentifier"))
        return QStringLiteral(DUSTLARK_BUNDLE_ID);
    return {};
}

std::optional<qint64> processStartTime(pid_t pid)
{
    static const qint64 bootSeconds = bootTimeSeconds();
    static const long ticksPerSecond = sysconf(_SC_CLK_TCK);
    const QList<QByteArray> fields = statFieldsAfterName(pid);
    constexpr int startTimeIndex = 22 - 3;  // field 22 of the file, counted from "state"
    if (bootSeconds == 0 || ticksPerSecond <= 0 || fields.size() <= startTimeIndex)
        return std::nullopt;
    bool ok = false;
    const qint64 ticks = fields[startTimeIndex].toLongLong(&ok);
    if (!ok)
        return std::nullopt;
    return bootSeconds * 1'000'000 + ticks * 1'000'000 / ticksPerSecond;
}

QStringList runningExecutables()
{
    QStringList paths;
    for (pid_t id : allProcessIds()) {
        const QByteArray link = QFile::encodeName(QStringLiteral("/proc/%1/exe").arg(id));
        char target[4096];
        const ssize_t length = ::readlink(link.constData(), target, sizeof target);
        if (length > 0 && length < ssize_t(sizeof target))
            paths.append(QFile::decodeName(QByteArray(target, length)));
    }
    return paths;
}

std::optional<QStringList> runningCommandLines()
{
    QStringList lines;
    for (pid_t id : allProcessIds()) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(id));
        if (!file.open(QIODevice::ReadOnly))
            continue;  // ended while the list was read
        QByteArray arguments = file.readAll();
        while (arguments.endsWith('\0'))
            arguments.chop(1);
        if (arguments.isEmpty())
            continue;
        arguments.replace('\0', ' ');
        lines.append(QFile::decodeName(arguments));
    }
    return lines;
}

std::optional<QString> applicationForBundleIdentifier(const QString&)
{
    return std::nullopt;  // no registry of applications by identifier on Linux desktops
}

bool isDataless(const struct stat&)
{
    return false;  // Linux file systems have no evicted-to-the-cloud flag
}

std::optional<QDateTime> birthTime(const QString& path)
{
    struct statx info {};
    const QByteArray name = QFile::encodeName(path);
    if (::statx(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW, STATX_BTIME, &info) != 0)
        return std::nullopt;
    if ((info.stx_mask & STATX_BTIME) == 0)
        return std::nullopt;
    const qint64 milliseconds = qint64(info.stx_btime.tv_sec) * 1000 + info.stx_btime.tv_nsec / 1'000'000;
    return QDateTime::fromMSecsSinceEpoch(milliseconds, QTimeZone::utc());
}

std::optional<QString> userTempFolder()
{
    return std::nullopt;  // Linux keeps no per-user temporary folder; $TMPDIR is the person's choice
}

int readFolderNames(int folder, std::string& names)
{
    alignas(alignof(dirent64)) char buffer[32 * 1024];  // a listing of a few hundred names per read
    for (;;) {
        const ssize_t filled = ::getdents64(folder, buffer, sizeof buffer);
        if (filled == 0)
            return 0;
        if (filled < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        for (ssize_t offset = 0; offset < filled;) {
            const auto* entry = reinterpret_cast<const dirent64*>(buffer + offset);
            offset += entry->d_reclen;
            const char* name = entry->d_name;
            if (name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0')))
                continue;
            names.append(name, std::strlen(name) + 1);
        }
    }
}

int changeModeAt(int folder, const char* name, const struct stat& listed, mode_t mode)
{
    const int pinned = ::openat(folder, name, O_PATH | O_NOFOLLOW | O_CLOEXEC);
    if (pinned < 0)
        return errno;
    struct stat info {};
    int error = ::fstat(pinned, &info) == 0 ? 0 : errno;
    if (error == 0 && (info.st_dev != listed.st_dev || info.st_ino != listed.st_ino || S_ISLNK(info.st_mode)))
        error = ESTALE;
    // fchmod refuses an O_PATH descriptor; its /proc name is the pinned object itself.
    const QByteArray pin = "/proc/self/fd/" + QByteArray::number(pinned);
    if (error == 0 && ::chmod(pin.constData(), mode) != 0)
        error = errno;
    ::close(pinned);
    return error;
}

std::optional<qint64> birthNanosecondsAt(int folder, const char* name)
{
    struct statx info {};
    if (::statx(folder, name, AT_SYMLINK_NOFOLLOW, STATX_BTIME, &info) != 0 || (info.stx_mask & STATX_BTIME) == 0)
        return std::nullopt;
    return qint64(info.stx_btime.tv_sec) * 1'000'000'000 + info.stx_btime.tv_nsec;
}

std::optional<qint64> availableCapacity(const QString& path)
{
    const auto info = volumeInfo(path);
    if (!info)
        return std::nullopt;
    return qint64(info->f_bavail) * qint64(info->f_frsize);
}

std::optional<qint64> availableCapacityForImportantUsage(const QString& path)
{
    return availableCapacity(path);  // Linux purges nothing on demand
}

bool keepsExtendedAttributes(const QString& path)
{
    // A file system without attributes refuses even the question.
    return ::getxattr(QFile::encodeName(path).constData(), "user.dustlark", nullptr, 0) == 0 || errno != ENOTSUP;
}

std::optional<qint64> totalCapacity(const QString& path)
{
    const auto info = volumeInfo(path);
    if (!info)
        return std::nullopt;
    return qint64(info->f_blocks) * qint64(info->f_frsize);
}

QString machineDescription()
{
    QString system = valueInFile(QStringLiteral("/etc/os-release"), "PRETTY_NAME", '=');
    if (system.isEmpty())
        system = QSysInfo::prettyProductName();
    QString processor = valueInFile(QStringLiteral("/proc/cpuinfo"), "model name", ':');
    if (processor.isEmpty())
        processor = QSysInfo::currentCpuArchitecture();
    return system + QStringLiteral(" on ") + processor;
}

bool adoptOrphans()
{
    return ::prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) == 0;
}

std::vector<ProcessEntry> processTable()
{
    std::vector<ProcessEntry> table;
    for (pid_t id : allProcessIds()) {
        const QList<QByteArray> fields = statFieldsAfterName(id);  // state, parent, group, ...
        if (fields.size() < 3)
            continue;  // ended while the table was read
        table.push_back({id, pid_t(fields[1].toLongLong()), pid_t(fields[2].toLongLong()), fields[0] == "Z"});
    }
    return table;
}

bool openPrivatePipe(int ends[2])
{
    return ::pipe2(ends, O_CLOEXEC) == 0;
}

bool ownDescriptorTable()
{
    if (::unshare(CLONE_FILES) != 0)
        return false;  // the table is still shared: closing anything here would close it for all
    if (::close_range(STDERR_FILENO + 1, ~0U, 0) != 0) {
        for (int descriptor = STDERR_FILENO + 1; descriptor < ::getdtablesize(); ++descriptor)
            ::close(descriptor);  // a kernel before close_range
    }
    return true;
}

short extraSpawnFlags()
{
    return 0;
}

// ---- Shared storage: FIEMAP reports each extent's physical place and whether it is shared ----

namespace {

constexpr __u32 extentBatch = 256;
// Extents whose physical address says nothing about sharing: not placed yet, or kept inside
// the file system's metadata.
constexpr __u32 unplacedExtent = FIEMAP_EXTENT_UNKNOWN | FIEMAP_EXTENT_DELALLOC
    | FIEMAP_EXTENT_DATA_INLINE | FIEMAP_EXTENT_DATA_TAIL | FIEMAP_EXTENT_NOT_ALIGNED;

enum class ExtentScan { more, done, failed };

// Appends each extent of one batch as (logical, physical, length).
ExtentScan appendExtents(const fiemap& map, QByteArray& key, bool& shared)
{
    for (__u32 i = 0; i < map.fm_mapped_extents; ++i) {
        const fiemap_extent& extent = map.fm_extents[i];
        if (extent.fe_flags & unplacedExtent)
            return ExtentScan::failed;
        shared = shared || (extent.fe_flags & FIEMAP_EXTENT_SHARED) != 0;
        const __u64 place[3] = {extent.fe_logical, extent.fe_physical, extent.fe_length};
        key.append(reinterpret_cast<const char*>(place), sizeof place);
        if (extent.fe_flags & FIEMAP_EXTENT_LAST)
            return ExtentScan::done;
    }
    return map.fm_mapped_extents == 0 ? ExtentScan::done : ExtentScan::more;
}

// Every extent of the open file, when at least one of them is shared.
std::optional<QByteArray> sharedExtents(int fd)
{
    std::vector<std::uint64_t> storage((sizeof(fiemap) + extentBatch * sizeof(fiemap_extent)) / 8 + 1);
    auto* map = reinterpret_cast<fiemap*>(storage.data());
    QByteArray key;
    bool shared = false;
    for (__u64 start = 0;;) {
        std::memset(map, 0, sizeof(fiemap));
        map->fm_start = start;
        map->fm_length = FIEMAP_MAX_OFFSET - start;
        map->fm_extent_count = extentBatch;
        if (::ioctl(fd, FS_IOC_FIEMAP, map) != 0)
            return std::nullopt;
        const ExtentScan scan = appendExtents(*map, key, shared);
        if (scan == ExtentScan::failed)
            return std::nullopt;
        if (scan == ExtentScan::done)
            return shared ? std::optional<QByteArray>(key) : std::nullopt;
        const fiemap_extent& last = map->fm_extents[map->fm_mapped_extents - 1];
        start = last.fe_logical + last.fe_length;
    }
}

}  // namespace

std::optional<QByteArray> sharedStorageKey(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (fd < 0)
        return std::nullopt;
    struct stat info {};
    std::optional<QByteArray> key;
    if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode))
        key = sharedExtents(fd);
    ::close(fd);
    // Physical addresses are per volume.
    const quint64 device = info.st_dev;
    if (key)
        key->prepend(reinterpret_cast<const char*>(&device), sizeof device);
    return key;
}

int renameNoReplace(const QString& from, const QString& to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    return errno;
}

int renameNoReplaceAt(int fromFolder, const char* from, int toFolder, const char* to)
{
    return ::renameat2(fromFolder, from, toFolder, to, RENAME_NOREPLACE) == 0 ? 0 : errno;
}

int openReadingFromDisk(int folder, const char* name)
{
    const int fd = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return -1;
    // Only clean pages can be dropped, so the flush comes first.
    const int advice = ::fsync(fd) == 0 ? ::posix_fadvise(fd, 0, 0, POSIX_FADV_DONTNEED) : errno;
    if (advice != 0) {
        ::close(fd);
        errno = advice;
        return -1;
    }
    return fd;
}

qint64 modificationNanoseconds(const struct stat& info)
{
    return qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec;
}

qint64 statusChangeNanoseconds(const struct stat& info)
{
    return qint64(info.st_ctim.tv_sec) * 1'000'000'000 + info.st_ctim.tv_nsec;
}

qint64 accessNanoseconds(const struct stat& info)
{
    return qint64(info.st_atim.tv_sec) * 1'000'000'000 + info.st_atim.tv_nsec;
}

Desktop desktop()
{
    return Desktop::freedesktop;
}

bool showItemInFileManager(const QString& path)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    return bus.call(call, QDBus::Block, 3000).type() == QDBusMessage::ReplyMessage;
}

namespace {

const QString notificationService = QStringLiteral("org.freedesktop.Notifications");
const QString notificationPath = QStringLiteral("/org/freedesktop/Notifications");

QDBusMessage notificationCall(const QString& method)
{
    return QDBusMessage::createMethodCall(notificationService, notificationPath, notificationService, method);
}

QDBusMessage notifyCall(const DesktopNotification& notification)
{
    QDBusMessage call = notificationCall(QStringLiteral("Notify"));
    QVariantMap hints;
    hints.insert(QStringLiteral("desktop-entry"), notification.desktopEntry);
    // "default" is the click on the notification itself, told back to this connection alone.
    const QStringList actions{QStringLiteral("default"), QString()};
    call << notification.appName << quint32(0) << notification.desktopEntry << notification.summary
         << notification.body << actions << hints << qint32(-1);
    return call;
}

// One connection per bus for the whole process, never closed: the service answers a click to
// the connection that showed the notification, so it must outlive the call that posted it.
QDBusConnection notificationBus(const QString& busAddress)
{
    if (busAddress.isEmpty())
        return QDBusConnection::sessionBus();
    return QDBusConnection::connectToBus(busAddress, QStringLiteral("dustlark-notify ") + busAddress);
}

// Hands the service's ActionInvoked and NotificationClosed signals to a function.
class NotificationSignals : public QObject {
    Q_OBJECT

public:
    NotificationSignals(std::function<void(quint32, NotificationAnswer)> answered, QObject* parent)
        : QObject(parent), m_answered(std::move(answered))
    {
    }

public slots:
    void actionInvoked(uint id, const QString& action)
    {
        if (action == QLatin1String("default"))
            m_answered(id, NotificationAnswer::clicked);
    }
    void notificationClosed(uint id, uint) { m_answered(id, NotificationAnswer::closed); }

private:
    std::function<void(quint32, NotificationAnswer)> m_answered;
};

}  // namespace

std::optional<quint32> postDesktopNotification(const QString& busAddress, const DesktopNotification& notification)
{
    QDBusConnection bus = notificationBus(busAddress);
    if (!bus.isConnected())
        return std::nullopt;
    const QDBusMessage reply = bus.call(notifyCall(notification), QDBus::Block, 3000);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    return reply.arguments().constFirst().toUInt();
}

bool watchDesktopNotifications(const QString& busAddress, QObject* context,
                               const std::function<void(quint32, NotificationAnswer)>& answered)
{
    QDBusConnection bus = notificationBus(busAddress);
    auto* relay = new NotificationSignals(answered, context);
    const bool clicks = bus.connect(notificationService, notificationPath, notificationService, QStringLiteral("ActionInvoked"),
                                    relay, SLOT(actionInvoked(uint,QString)));
    const bool closes = bus.connect(notificationService, notificationPath, notificationService,
                                    QStringLiteral("NotificationClosed"), relay, SLOT(notificationClosed(uint,uint)));
    return bus.isConnected() && clicks && closes;
}

void closeDesktopNotification(const QString& busAddress, quint32 id)
{
    QDBusConnection bus = notificationBus(busAddress);
    QDBusMessage call = notificationCall(QStringLiteral("CloseNotification"));
    call << id;
    if (bus.isConnected())
        bus.call(call, QDBus::Block, 3000);
}

}  // namespace Platform

#include "linux.moc"
