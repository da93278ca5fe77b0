#pragma once

#include "history/HistoryGrowth.h"

#include <QString>

#include <optional>

// The change of a bucket or folder since the storage analysis it is compared with, as the
// Storage screen shows it beside the size ("▲ +1.2 GB"); empty when nothing changed or there
// is nothing to compare with.
namespace StorageChange {

QString ofBucket(const std::optional<HistoryGrowth::Pair>& comparison, const QString& bucket);
QString ofFolder(const std::optional<HistoryGrowth::Pair>& comparison, const QString& bucket, const QString& path);
// "12.3 GB" followed by the change, if any.
QString withSize(const QString& size, const QString& change);

}  // namespace StorageChange
