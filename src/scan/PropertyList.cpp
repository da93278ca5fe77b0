#include "scan/PropertyList.h"

#include <QFile>
#include <QTimeZone>

#include <plist/plist.h>

namespace {

// Info.plist files are a few kilobytes; anything far larger is not what we are looking for.
constexpr qint64 largestReadableSize = 16 * 1024 * 1024;

}  // namespace

std::optional<PropertyList> PropertyList::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestReadableSize)
        return std::nullopt;
    return parse(file.readAll());
}

std::optional<PropertyList> PropertyList::parse(const QByteArray& data)
{
    if (data.isEmpty() || data.size() > largestReadableSize)
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_memory(data.constData(), static_cast<uint32_t>(data.size()), &root);
    if (!root)
        return std::nullopt;
    return PropertyList(std::shared_ptr<void>(root, [](void* node) { plist_free(static_cast<plist_t>(node)); }));
}

void* PropertyList::node(const QStringList& keyPath) const
{
    plist_t node = m_root.get();
    for (const QString& key : keyPath) {
        if (plist_get_node_type(node) != PLIST_DICT)
            return nullptr;
        node = plist_dict_get_item(node, key.toUtf8().constData());
        if (!node)
            return nullptr;
    }
    return node;
}

std::optional<QString> PropertyList::string(const QStringList& keyPath) const
{
    plist_t found = node(keyPath);
    if (!found || plist_get_node_type(found) != PLIST_STRING)
        return std::nullopt;
    uint64_t length = 0;
    const char* value = plist_get_string_ptr(found, &length);
    if (!value)
        return std::nullopt;
    return QString::fromUtf8(value, static_cast<qsizetype>(length));
}

QStringList PropertyList::strings(const QString& key) const
{
    plist_t root = m_root.get();
    if (plist_get_node_type(root) != PLIST_DICT)
        return {};
    plist_t array = plist_dict_get_item(root, key.toUtf8().constData());
    if (!array || plist_get_node_type(array) != PLIST_ARRAY)
        return {};
    QStringList texts;
    for (uint32_t i = 0; i < plist_array_get_size(array); ++i) {
        plist_t element = plist_array_get_item(array, i);
        uint64_t length = 0;
        const char* value = plist_get_node_type(element) == PLIST_STRING ? plist_get_string_ptr(element, &length) : nullptr;
        if (value)
            texts.append(QString::fromUtf8(value, static_cast<qsizetype>(length)));
    }
    return texts;
}

std::optional<qint64> PropertyList::integer(const QStringList& keyPath) const
{
    plist_t found = node(keyPath);
    if (!found || plist_get_node_type(found) != PLIST_UINT)
        return std::nullopt;
    uint64_t value = 0;
    plist_get_uint_val(found, &value);
    return static_cast<qint64>(value);
}

std::optional<QDateTime> PropertyList::date(const QStringList& keyPath) const
{
    plist_t found = node(keyPath);
    if (!found || plist_get_node_type(found) != PLIST_DATE)
        return std::nullopt;
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(found, &seconds, &microseconds);  // since 2001-01-01 00:00:00 UTC
    const QDateTime reference(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
    return reference.addMSecs(qint64(seconds) * 1000 + microseconds / 1000);
}

std::optional<QString> PropertyList::string(const QString& path, const QString& key)
{
    const auto list = read(path);
    return list ? list->string(key) : std::nullopt;
}
