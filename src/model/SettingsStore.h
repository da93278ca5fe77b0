#pragma once

#include "vocabulary/CleanupItem.h"
#include "vocabulary/FreeSpaceWarning.h"
#include "vocabulary/SafeItemInfo.h"
#include "vocabulary/ScanSchedule.h"

#include <QDateTime>
#include <QDir>
#include <QMap>
#include <QObject>
#include <QSettings>
#include <QStringList>

#include <functional>
#include <optional>

// The person's lasting choices: the scan folders, the Safe List (single rows and whole
// folders never offered) and the lists' size filter, kept in the preferences store handed in
// (the app's native store; a QSettings on a temporary file in tests). Every change writes its
// key back at once. Absent or wrong-typed keys read as their defaults.
//
// Thread-safety: GUI thread only. Scanners get copies of what they need through ScanContext,
// cleanups and moves through the RemovalEnvironment they are prepared with.
class SettingsStore : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsStore)

public:
    using Clock = std::function<QDateTime()>;

    // `settings` must outlive the store. `home` is the folder that is the scan folder by default
    // and can never be a safe folder.
    explicit SettingsStore(QSettings* settings, const QString& home = QDir::homePath(),
                           QObject* parent = nullptr);

    const QString& home() const { return m_home; }
    const QStringList& scanRoots() const { return m_scanRoots; }
    const QStringList& safeItems() const { return m_safeItems; }
    const QStringList& safeFolders() const { return m_safeFolders; }
    const QMap<QString, SafeItemInfo>& safeItemInfo() const { return m_safeItemInfo; }
    // The raw "sizeFilter" value (see SizeFilter); 0 when absent or not a whole number.
    int sizeFilterRaw() const { return m_sizeFilter; }
    // "Warn me when free space falls below" and "Scan for me"; both off unless chosen.
    FreeSpaceWarning freeSpaceWarning() const { return m_freeSpaceWarning; }
    ScanSchedule scanSchedule() const { return m_scanSchedule; }
    // Whether either of those is on, so there is something to watch.
    bool isWatching() const { return m_freeSpaceWarning != FreeSpaceWarning::off || m_scanSchedule != ScanSchedule::never; }
    // Whether closing the window leaves Dustlark watching from the status item (off unless chosen).
    bool keepsWatchingWhenClosed() const { return m_keepsWatchingWhenClosed; }

    // Dates new Safe List entries; the current time unless a test replaces it.
    void setClock(Clock clock) { m_clock = std::move(clock); }

    // Appends an absolute folder unless it is listed already.
    void addRoot(const QString& path);
    // Removes every entry equal to `path`; an emptied list becomes the home folder alone.
    void removeRoot(const QString& path);
    // Lists the item's id with what the Safe List screen shows for it; nothing when listed.
    void addSafeItem(const CleanupItem& item);
    void removeSafeItem(const QString& id);
    // Ignored when listed already, when not absolute, and for the home folder itself or "/".
    void addSafeFolder(const QString& path);
    void removeSafeFolder(const QString& path);
    void setSizeFilterRaw(int raw);
    void setFreeSpaceWarning(FreeSpaceWarning warning);
    void setScanSchedule(ScanSchedule schedule);
    void setKeepsWatchingWhenClosed(bool keeps);

    // True when the item is on the Safe List, or its project or any of its paths is at or
    // below a protected path.
    [[nodiscard]] bool isSafe(const CleanupItem& item) const;
    // The safe folders, then each safe item's paths (its info's paths, or the id itself when
    // the id is a path and the info is lost). Cached until the Safe List changes.
    [[nodiscard]] const QStringList& protectedPaths() const;

signals:
    void scanRootsChanged();
    void safeListChanged();
    void sizeFilterChanged();
    void watchChanged();  // the free-space warning, the scan schedule or watching when closed

private:
    void load();
    void writeScanRoots();
    void safeListDidChange();
    QStringList computeProtectedPaths() const;
    std::optional<QStringList> readStringList(const QString& key) const;
    QStringList readFolderList(const QString& key) const;
    QString normalizedFolder(const QString& path) const;

    QSettings* m_settings;
    QString m_home;
    Clock m_clock;
    QStringList m_scanRoots;
    QStringList m_safeItems;
    QStringList m_safeFolders;
    QMap<QString, SafeItemInfo> m_safeItemInfo;
    int m_sizeFilter = 0;
    FreeSpaceWarning m_freeSpaceWarning = FreeSpaceWarning::off;
    ScanSchedule m_scanSchedule = ScanSchedule::never;
    bool m_keepsWatchingWhenClosed = false;
    mutable std::optional<QStringList> m_protectedCache;
};
