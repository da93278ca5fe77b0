// The stored "usageStats" value, decoded as StatsStore loads it. Whatever decodes must read back
// unchanged after a save, or the next start would silently replace the statistics.
#include "FuzzInput.h"

#include "model/StatsStore.h"

#include <QJsonDocument>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QJsonDocument document = QJsonDocument::fromJson(fuzzBytes(data, size));
    if (!document.isObject())
        return 0;
    const std::optional<StatsStore::Stats> stats = StatsStore::Stats::fromJson(document.object());
    if (!stats)
        return 0;
    if (stats->lastStorage)
        (void)stats->lastStorage->sortedBuckets();
    const QByteArray saved = QJsonDocument(stats->toJson()).toJson(QJsonDocument::Compact);
    fuzzRequire(StatsStore::Stats::fromJson(QJsonDocument::fromJson(saved).object()) == stats,
                "statistics read back as saved");
    return 0;
}
