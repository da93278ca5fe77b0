// Reading what the docker tool prints: JSON lines, sizes and times.
#include "scan/DockerScanner.h"

#include "machinery/DockerEndpoint.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <cmath>

namespace {

// The text under `key`; absent when missing or not text.
std::optional<QString> text(const QJsonObject& json, const char* key)
{
    const QJsonValue value = json.value(QLatin1String(key));
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

}  // namespace

std::optional<DockerScanner::Container> DockerScanner::Container::decode(const QJsonObject& json)
{
    const auto id = text(json, "ID"), names = text(json, "Names"), image = text(json, "Image"), status = text(json, "Status");
    if (!id || !names || !image || !status)
        return std::nullopt;
    return Container{*id, *names, *image, *status, text(json, "Size")};
}

std::optional<DockerScanner::Image> DockerScanner::Image::decode(const QJsonObject& json)
{
    const auto id = text(json, "ID"), repository = text(json, "Repository"), tag = text(json, "Tag");
    if (!id || !repository || !tag)
        return std::nullopt;
    return Image{*id, *repository, *tag, text(json, "Size"), text(json, "CreatedSince"), text(json, "CreatedAt")};
}

std::optional<DockerScanner::DiskUsageRow> DockerScanner::DiskUsageRow::decode(const QJsonObject& json)
{
    const auto type = text(json, "Type");
    if (!type)
        return std::nullopt;
    return DiskUsageRow{*type, text(json, "Size"), text(json, "Reclaimable")};
}

std::optional<DockerScanner::Volume> DockerScanner::Volume::decode(const QJsonObject& json)
{
    const auto name = text(json, "Name");
    if (!name)
        return std::nullopt;
    return Volume{*name, text(json, "Links"), text(json, "Size"), text(json, "Labels")};
}

QList<QJsonObject> DockerScanner::jsonObjectLines(const QString& text)
{
    QList<QJsonObject> objects;
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8());
        if (document.isObject())
            objects.append(document.object());
        for (const QJsonValue& element : document.array()) {
            if (element.isObject())
                objects.append(element.toObject());
        }
    }
    return objects;
}

qint64 DockerScanner::parseSize(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*([0-9]*\\.?[0-9]+)\\s*([A-Za-z]*)"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return 0;
    static const QHash<QString, double> factors = {
        {QStringLiteral("kb"), 1e3},  {QStringLiteral("mb"), 1e6},  {QStringLiteral("gb"), 1e9},
        {QStringLiteral("tb"), 1e12}, {QStringLiteral("kib"), 1024.0}, {QStringLiteral("mib"), 1048576.0},
        {QStringLiteral("gib"), 1073741824.0}, {QStringLiteral("tib"), 1099511627776.0},
    };
    const double bytes = match.captured(1).toDouble() * factors.value(match.captured(2).toLower(), 1.0);
    // Refused, not clamped: no disk holds 2^63 bytes, so such a text is garbage, and a clamped
    // maximum would overflow the totals it is added to. Converting it would be undefined.
    if (!std::isfinite(bytes) || bytes >= 9223372036854775808.0)
        return 0;
    return static_cast<qint64>(bytes);
}

std::optional<QDateTime> DockerScanner::date(const QString& text)
{
    // Go's default time text: "2024-03-12 14:02:11 +0100 CET", seconds possibly with a fraction.
    static const QRegularExpression goTime(
        QStringLiteral("^(\\d{4}-\\d{2}-\\d{2}) (\\d{2}:\\d{2}:\\d{2})(?:\\.\\d+)? ([+-]\\d{2})(\\d{2})"));
    const QRegularExpressionMatch match = goTime.match(text.trimmed());
    if (!match.hasMatch())
        return DockerEndpoint::parseTime(text);
    const QString iso = match.captured(1) + QLatin1Char('T') + match.captured(2) + match.captured(3) + QLatin1Char(':') + match.captured(4);
    const QDateTime time = QDateTime::fromString(iso, Qt::ISODate);
    return time.isValid() ? std::optional(time) : std::nullopt;
}
