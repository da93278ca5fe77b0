#include "vocabulary/SafeItemInfo.h"

#include "vocabulary/JsonDate.h"
#include "vocabulary/JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>

SafeItemInfo SafeItemInfo::from(const CleanupItem& item, const QDateTime& added)
{
    SafeItemInfo info;
    info.title = item.title;
    info.category = Categories::rawValue(item.category);
    info.detail = item.detail;
    const QStringList itemPaths = item.removal.paths();
    if (!itemPaths.isEmpty())
        info.path = itemPaths.first();
    if (item.category == CategoryID::apps)
        info.paths = itemPaths;
    info.size = item.size;
    info.added = added;
    return info;
}

QStringList SafeItemInfo::protectedPaths() const
{
    if (paths)
        return *paths;
    if (path)
        return {*path};
    return {};
}

QJsonObject SafeItemInfo::toJson() const
{
    QJsonObject object{
        {QStringLiteral("title"), title},
        {QStringLiteral("category"), category},
        {QStringLiteral("detail"), detail},
        {QStringLiteral("size"), size},
        {QStringLiteral("added"), JsonDate::encode(added)},
    };
    if (path)
        object.insert(QStringLiteral("path"), *path);
    if (paths)
        object.insert(QStringLiteral("paths"), QJsonArray::fromStringList(*paths));
    return object;
}

std::optional<SafeItemInfo> SafeItemInfo::fromJson(const QJsonObject& object)
{
    JsonFields fields(object);
    SafeItemInfo info;
    info.title = fields.string(QStringLiteral("title"));
    info.category = fields.string(QStringLiteral("category"));
    info.detail = fields.string(QStringLiteral("detail"));
    info.path = fields.optionalString(QStringLiteral("path"));
    info.paths = fields.optionalStringList(QStringLiteral("paths"));
    info.size = fields.integer(QStringLiteral("size"));
    info.added = fields.date(QStringLiteral("added"));
    if (!fields.ok())
        return std::nullopt;
    return info;
}

QByteArray SafeItemInfo::encodeAll(const QMap<QString, SafeItemInfo>& infos)
{
    QJsonObject object;
    for (auto it = infos.cbegin(); it != infos.cend(); ++it)
        object.insert(it.key(), it.value().toJson());
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QMap<QString, SafeItemInfo> SafeItemInfo::decodeAll(const QByteArray& data)
{
    const QJsonDocument document = QJsonDocument::fromJson(data);
    if (!document.isObject())
        return {};
    const QJsonObject object = document.object();
    QMap<QString, SafeItemInfo> infos;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const std::optional<SafeItemInfo> info = it.value().isObject() ? fromJson(it.value().toObject()) : std::nullopt;
        if (!info)
            return {};
        infos.insert(it.key(), *info);
    }
    return infos;
}
