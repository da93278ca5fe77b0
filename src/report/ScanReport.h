#pragma once

#include "vocabulary/CategoryResult.h"

#include <QByteArray>
#include <QJsonObject>

#include <map>

// Renders scan results for the report tool: one JSON object, or a readable table.
// Every category appears, in declaration order; missing ones as idle.
namespace ScanReport {

using Results = std::map<CategoryID, CategoryResult>;

QJsonObject toJson(const Results& results, const QString& home);
QJsonObject itemToJson(const CleanupItem& item, const QString& home);
QByteArray toText(const Results& results, const QString& home);
// The row's title with its badge, so two rows of one title (node_modules of two projects) are
// told apart in a table.
QString titleWithBadge(const CleanupItem& item);

}  // namespace ScanReport
