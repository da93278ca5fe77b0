#include "report/ScanReport.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "format/WholeNumber.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QTextStream>

namespace ScanReport {

namespace {

QJsonValue optionalText(const std::optional<QString>& text)
{
    return text ? QJsonValue(*text) : QJsonValue(QJsonValue::Null);
}

CategoryResult resultFor(const Results& results, CategoryID category)
{
    const auto found = results.find(category);
    return found == results.end() ? CategoryResult{} : found->second;
}

QString itemCount(qsizetype count)
{
    if (count == 1)
        //: The number of rows of a category in the report tool's table
        return QCoreApplication::translate("ScanReport", "1 item");
    //: The number of rows of a category in the report tool's table; %1 is the number
    return QCoreApplication::translate("ScanReport", "%1 items").arg(WholeNumber::format(count));
}

}  // namespace

QJsonObject itemToJson(const CleanupItem& item, const QString& home)
{
    QJsonObject object;
    object[QStringLiteral("id")] = item.id;
    object[QStringLiteral("title")] = item.title;
    object[QStringLiteral("badge")] = optionalText(item.badge);
    object[QStringLiteral("detail")] = RelativeDate::expand(item.detail);
    object[QStringLiteral("size")] = static_cast<double>(item.size);
    object[QStringLiteral("safety")] = Safeties::rawValue(item.safety(home));
    object[QStringLiteral("lockedReason")] = optionalText(item.lockedReason);
    object[QStringLiteral("date")] = item.date ? QJsonValue(item.date->toUTC().toString(Qt::ISODate))
                                               : QJsonValue(QJsonValue::Null);
    object[QStringLiteral("projectPath")] = optionalText(item.projectPath);
    object[QStringLiteral("paths")] = QJsonArray::fromStringList(item.removal.paths());
    object[QStringLiteral("removal")] = item.removal.rawKind();
    object[QStringLiteral("duplicateGroup")] = optionalText(item.duplicateGroup);
    object[QStringLiteral("isOldestCopy")] = item.isOldestCopy;
    return object;
}

QJsonObject toJson(const Results& results, const QString& home)
{
    QJsonArray categories;
    for (CategoryID category : Categories::allCases()) {
        const CategoryResult result = resultFor(results, category);
        QJsonArray items;
        for (const CleanupItem& item : result.items)
            items.append(itemToJson(item, home));
        QJsonObject object;
        object[QStringLiteral("id")] = Categories::rawValue(category);
        object[QStringLiteral("title")] = Categories::title(category);
        object[QStringLiteral("state")] = CategoryResult::rawState(result.state);
        object[QStringLiteral("notes")] = QJsonArray::fromStringList(result.notes);
        object[QStringLiteral("summary")] = optionalText(result.summary);
        object[QStringLiteral("totalSize")] = static_cast<double>(result.totalSize());
        object[QStringLiteral("items")] = items;
        categories.append(object);
    }
    return QJsonObject{{QStringLiteral("version"), 1}, {QStringLiteral("categories"), categories}};
}

QString titleWithBadge(const CleanupItem& item)
{
    return item.badge ? item.title + QStringLiteral("  (") + *item.badge + QLatin1Char(')') : item.title;
}

QByteArray toText(const Results& results, const QString& home)
{
    QByteArray out;
    QTextStream stream(&out);
    for (CategoryID category : Categories::allCases()) {
        const CategoryResult result = resultFor(results, category);
        stream << Categories::title(category) << "  (" << CategoryResult::rawState(result.state) << ", "
               << itemCount(result.items.size()) << ", " << ByteCount::format(result.totalSize()) << ")\n";
        for (const QString& note : result.notes)
            stream << "  ! " << note << '\n';
        for (const CleanupItem& item : result.items) {
            stream << "  " << ByteCount::format(item.size).rightJustified(10) << "  "
                   << Safeties::title(item.safety(home)).leftJustified(7) << ' ' << titleWithBadge(item);
            if (item.lockedReason)
                stream << "  [" << *item.lockedReason << ']';
            stream << "\n              " << RelativeDate::expand(item.detail) << '\n';
        }
    }
    stream.flush();
    return out;
}

}  // namespace ScanReport
