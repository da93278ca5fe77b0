#pragma once

#include "storage/StorageReport.h"

#include <QByteArray>
#include <QJsonObject>

// How the report tool prints a storage report: one JSON object, or a readable table.
namespace StorageReportOutput {

// {"version":1,"date","diskUsed","measured","notMeasured","measuredWithFullDiskAccess","notes",
//  "buckets":[{"id","title","bytes","folders":[{"path","bytes","fileCount","files":[{"path","bytes"}],
//  "subfolders":{SUBPATH:{"bytes","fileCount"}}}]}], "largeFolders":[{"path","bytes","fileCount","smallBytes","kind"}],
//  "tree":{"name","bytes","fileCount","ownBytes","foldedBytes","kind","children":[...]}}
// Buckets largest first; the date in ISO 8601, UTC.
QJsonObject toJson(const StorageReport& report);
// Buckets largest first with their five largest folders, then the large folders.
QByteArray toText(const StorageReport& report);

}  // namespace StorageReportOutput
