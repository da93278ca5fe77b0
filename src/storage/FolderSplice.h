#pragma once

#include "storage/BucketRules.h"
#include "storage/StoragePartial.h"
#include "storage/StorageReport.h"

#include <QString>
#include <QStringList>

// Puts one folder, measured again on its own, into a report in place of what the report held
// for it: the folder tree (its node replaced, every folder above it moved by the difference),
// the totals by kind, the kinds' folder lists and the large folders.
//
// The tree and the totals come out as a full measurement would give them, to the byte. The
// lists are exact where they were never cut: in a kind listing its full 200 folders, or with
// 100 large folders, an entry holding the folder may keep a figure off by what fell off the
// list. A folder above it on the large-folder list keeps its place with the new figures until
// the next full measurement decides whether it still qualifies. A file also linked from outside
// the folder counts in it after the splice; the report's notes and entry count stay as they were.
namespace FolderSplice {

// The names from the home down to `folder`, when the report's tree keeps that folder and it can
// be measured alone: below the home and not the Library, which is made of roots; else empty.
QStringList namesOf(const StorageReport& report, const QString& home, const QString& folder);

// The root of the analysis that holds the folder (`names` as `namesOf` gives them).
QString rootOf(const QString& home, const QStringList& names);

// `report` with the folder at `names` below `home` replaced by `walked`, the walk of that folder
// alone in its place (`StorageWalker::walk` with its scope); an empty walk (the folder is gone)
// takes the folder out. `treeNodes` bounds the tree as the analysis does.
StorageReport splice(StorageReport report, const QString& home, const QStringList& names, StoragePartial walked,
                     const BucketRules& rules, qsizetype treeNodes);

}  // namespace FolderSplice
