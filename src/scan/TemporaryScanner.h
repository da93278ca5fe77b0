#pragma once

#include "platform/Platform.h"
#include "scan/Scanner.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Fills the temporary category: entries in the system's temporary folders untouched for 3 days
// and in the person's own temp folders ("~/tmp" and its kin) untouched for 30 days, temporary
// simulator devices, and the scratch files of past Claude Code sessions. A value type; scan()
// and the static steps hold no state and may run on any thread.
class TemporaryScanner : public Scanner {
public:
    static constexpr int systemDays = 3;
    static constexpr int ownDays = 30;

    struct Root {
        QString path;  // real path
        bool isSystem = false;
        bool operator==(const Root&) const = default;
    };

    // One old entry below a root.
    struct Entry {
        QString path;
        qint64 newestChange = 0;  // seconds since 1970
        bool isFolder = false;
        bool isSimulatorDevice = false;
        bool operator==(const Entry&) const = default;
    };

    // The old entries found directly in one folder: the root, or a busy folder entered below it.
    struct Group {
        QString folder;
        QList<Entry> entries;
        bool operator==(const Group&) const = default;
    };

    struct ClaudeTemp {
        QString title;
        QString detail;
        bool isSession = false;  // one session's files, which may hold unsaved work
    };

    // `systemFolders` replaces the system's temporary folders (tests); absent means the system's.
    explicit TemporaryScanner(std::optional<QStringList> systemFolders = std::nullopt)
        : m_systemFolders(std::move(systemFolders)) {}

    QList<CategoryID> categories() const override { return {CategoryID::temporary}; }
    ScanOutputs scan(const ScanContext& context) const override;

    // The roots to look in: the system folders that resolve to real folders, then the home's
    // "tmp", "temp", "Temp" and "TMP". Two names of one folder (a link, or a case-insensitive
    // volume) give one root; a system root wins over an own folder that is the same folder.
    [[nodiscard]] static QList<Root> roots(const QStringList& systemFolders, const QString& home);

    // The groups of old entries under `root`: entries whose newest change is before `now` minus
    // `days`. Hidden, "com.apple." and "NSIRD_" names, symbolic links and entries of other users
    // are never taken; a folder that is not old is entered, if it lies at most two levels below
    // the root.
    [[nodiscard]] static QList<Group> oldEntries(const QString& root, int days, const QDateTime& now,
                                                 const CancellationToken* cancellation = nullptr);

    // The newest change inside an entry, in seconds since 1970; absent when it can't be told.
    [[nodiscard]] static std::optional<qint64> newestChange(const QString& path,
                                                            const CancellationToken* cancellation = nullptr);

    // A folder holding both "device.plist" and "data": a simulator device, handled as a unit.
    [[nodiscard]] static bool isSimulatorDevice(const QString& path);
    // Whether the simulator device at `path` is booted (its device.plist's state is not shut down).
    [[nodiscard]] static bool isRunningSimulator(const QString& path);

    // The title and detail of a Claude Code scratch entry, given its path below its temp root
    // ("claude-501/-Users-me-www-app"); absent for any other entry. `home` writes project paths.
    [[nodiscard]] static std::optional<ClaudeTemp> claudeCodeTemp(const QString& relativePath, const QString& home);

    // The project folder a Claude Code project name stands for ("-Users-me-www-app" for
    // "/Users/me/www/app"): the folders that exist are followed where a "-" is ambiguous.
    [[nodiscard]] static QString claudeProjectPath(const QString& encodedName);

    // The rows of one root's groups: several old files of one folder share a row, every other
    // entry has its own. Entries that vanished since they were found give none.
    [[nodiscard]] static QList<CleanupItem> rows(const QList<Group>& groups, const Root& root, const ScanContext& context);

    [[nodiscard]] static QString summary(Platform::Desktop desktop = Platform::desktop());

private:
    std::optional<QStringList> m_systemFolders;
};
