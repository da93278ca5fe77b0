#include "model/SettingsStore.h"

#include "vocabulary/PathRules.h"
#include "vocabulary/ScanFilter.h"

#include <cmath>
#include <limits>

namespace {

const QString scanRootsKey = QStringLiteral("scanRoots");
const QString safeItemsKey = QStringLiteral("ignoredItems");
const QString safeFoldersKey = QStringLiteral("safeFolders");
const QString safeItemInfoKey = QStringLiteral("safeItemInfo");
const QString sizeFilterKey = QStringLiteral("sizeFilter");
const QString freeSpaceWarningKey = QStringLiteral("freeSpaceWarning");
const QString scanScheduleKey = QStringLiteral("scheduledScan");
const QString keepWatchingKey = QStringLiteral("keepWatchingWhenClosed");

std::optional<QStringList> stringsOnly(const QVariantList& values)
{
    QStringList strings;
    for (const QVariant& value : values) {
        if (value.typeId() != QMetaType::QString)
            return std::nullopt;
        strings.append(value.toString());
    }
    return strings;
}

std::optional<int> wholeNumber(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString) {
        bool ok = false;
        const int number = value.toString().trimmed().toInt(&ok);
        return ok ? std::optional<int>(number) : std::nullopt;
    }
    if (!value.canConvert<double>() || value.typeId() == QMetaType::QByteArray || value.typeId() == QMetaType::Bool)
        return std::nullopt;
    const double number = value.toDouble();
    if (std::trunc(number) != number || std::fabs(number) > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(number);
}

// A value that is text, else empty: a list holding one text is not that text.
QString textOnly(const QVariant& value)
{
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

// Only a stored true turns a choice on: the native store's boolean, or an INI file's "true".
bool storedTrue(const QVariant& value)
{
    return value.typeId() == QMetaType::Bool ? value.toBool() : textOnly(value) == QLatin1String("true");
}

}  // namespace

SettingsStore::SettingsStore(QSettings* settings, const QString& home, QObject* parent)
    : QObject(parent), m_settings(settings), m_home(QDir::cleanPath(home)),
      m_clock([] { return QDateTime::currentDateTimeUtc(); })
{
    load();
}

void SettingsStore::load()
{
    m_scanRoots = readFolderList(scanRootsKey);
    if (m_scanRoots.isEmpty())
        m_scanRoots = {m_home};
    m_safeItems = readStringList(safeItemsKey).value_or(QStringList());
    m_safeItems.removeAll(QString());
    m_safeFolders = readFolderList(safeFoldersKey);
    const QVariant info = m_settings->value(safeItemInfoKey);
    if (info.typeId() == QMetaType::QByteArray)
        m_safeItemInfo = SafeItemInfo::decodeAll(info.toByteArray());
    m_sizeFilter = wholeNumber(m_settings->value(sizeFilterKey)).value_or(0);
    m_freeSpaceWarning = FreeSpaceWarnings::fromRawValue(textOnly(m_settings->value(freeSpaceWarningKey)));
    m_scanSchedule = ScanSchedules::fromRawValue(textOnly(m_settings->value(scanScheduleKey)));
    m_keepsWatchingWhenClosed = storedTrue(m_settings->value(keepWatchingKey));
}

// QSettings hands back what the store holds: a native list, a list of variants, or, from an
// INI file, a single string for a one-element list. Numbers and maps are not lists.
std::optional<QStringList> SettingsStore::readStringList(const QString& key) const
{
    const QVariant value = m_settings->value(key);
    switch (value.typeId()) {
    case QMetaType::QStringList: return value.toStringList();
    case QMetaType::QString: return QStringList{value.toString()};
    case QMetaType::QVariantList: return stringsOnly(value.toList());
    default: return std::nullopt;
    }
}

// Only absolute paths: a relative one would be resolved against whatever folder the app
// started in, and an INI file reads a stray number back as a one-element list.
QStringList SettingsStore::readFolderList(const QString& key) const
{
    QStringList folders;
    for (const QString& path : readStringList(key).value_or(QStringList())) {
        if (path.startsWith(QLatin1Char('/')))
            folders.append(path);
    }
    return folders;
}

QString SettingsStore::normalizedFolder(const QString& path) const
{
    if (!path.startsWith(QLatin1Char('/')))
        return {};
    return QDir::cleanPath(path);
}

void SettingsStore::addRoot(const QString& path)
{
    const QString folder = normalizedFolder(path);
    if (folder.isEmpty() || m_scanRoots.contains(folder))
        return;
    m_scanRoots.append(folder);
    writeScanRoots();
}

void SettingsStore::removeRoot(const QString& path)
{
    if (m_scanRoots.removeAll(path) == 0)
        return;
    // There is always at least one scan folder.
    if (m_scanRoots.isEmpty())
        m_scanRoots = {m_home};
    writeScanRoots();
}

void SettingsStore::writeScanRoots()
{
    m_settings->setValue(scanRootsKey, m_scanRoots);
    emit scanRootsChanged();
}

void SettingsStore::addSafeItem(const CleanupItem& item)
{
    if (item.id.isEmpty() || m_safeItems.contains(item.id))
        return;
    m_safeItems.append(item.id);
    m_safeItemInfo.insert(item.id, SafeItemInfo::from(item, m_clock()));
    m_settings->setValue(safeItemsKey, m_safeItems);
    m_settings->setValue(safeItemInfoKey, SafeItemInfo::encodeAll(m_safeItemInfo));
    safeListDidChange();
}

void SettingsStore::removeSafeItem(const QString& id)
{
    const bool listed = m_safeItems.removeAll(id) > 0;
    const bool described = m_safeItemInfo.remove(id) > 0;
    if (!listed && !described)
        return;
    m_settings->setValue(safeItemsKey, m_safeItems);
    m_settings->setValue(safeItemInfoKey, SafeItemInfo::encodeAll(m_safeItemInfo));
    safeListDidChange();
}

void SettingsStore::addSafeFolder(const QString& path)
{
    const QString folder = normalizedFolder(path);
    if (folder.isEmpty() || folder == QLatin1String("/") || folder == m_home || m_safeFolders.contains(folder))
        return;
    m_safeFolders.append(folder);
    m_settings->setValue(safeFoldersKey, m_safeFolders);
    safeListDidChange();
}

void SettingsStore::removeSafeFolder(const QString& path)
{
    if (m_safeFolders.removeAll(path) == 0)
        return;
    m_settings->setValue(safeFoldersKey, m_safeFolders);
    safeListDidChange();
}

void SettingsStore::setSizeFilterRaw(int raw)
{
    if (raw == m_sizeFilter)
        return;
    m_sizeFilter = raw;
    m_settings->setValue(sizeFilterKey, raw);
    emit sizeFilterChanged();
}

void SettingsStore::setFreeSpaceWarning(FreeSpaceWarning warning)
{
    if (warning == m_freeSpaceWarning)
        return;
    m_freeSpaceWarning = warning;
    m_settings->setValue(freeSpaceWarningKey, FreeSpaceWarnings::rawValue(warning));
    emit watchChanged();
}

void SettingsStore::setScanSchedule(ScanSchedule schedule)
{
    if (schedule == m_scanSchedule)
        return;
    m_scanSchedule = schedule;
    m_settings->setValue(scanScheduleKey, ScanSchedules::rawValue(schedule));
    emit watchChanged();
}

void SettingsStore::setKeepsWatchingWhenClosed(bool keeps)
{
    if (keeps == m_keepsWatchingWhenClosed)
        return;
    m_keepsWatchingWhenClosed = keeps;
    m_settings->setValue(keepWatchingKey, keeps);
    emit watchChanged();
}

void SettingsStore::safeListDidChange()
{
    m_protectedCache.reset();
    emit safeListChanged();
}

const QStringList& SettingsStore::protectedPaths() const
{
    if (!m_protectedCache)
        m_protectedCache = computeProtectedPaths();
    return *m_protectedCache;
}

QStringList SettingsStore::computeProtectedPaths() const
{
    QStringList paths = m_safeFolders;
    for (const QString& id : m_safeItems) {
        const auto info = m_safeItemInfo.constFind(id);
        if (info != m_safeItemInfo.cend())
            paths.append(info->protectedPaths());
        else if (id.startsWith(QLatin1Char('/')))  // a file row's id is its path
            paths.append(id);
    }
    // An empty path would count as the parent of every absolute path.
    paths.removeAll(QString());
    return paths;
}

bool SettingsStore::isSafe(const CleanupItem& item) const
{
    return ScanFilter::isOnSafeList(item, QSet<QString>(m_safeItems.begin(), m_safeItems.end()), protectedPaths());
}
