#include "history/HistoryGrowth.h"

#include <algorithm>

namespace HistoryGrowth {

namespace {

void sortByGrowth(QList<Change>* changes)
{
    std::stable_sort(changes->begin(), changes->end(), [](const Change& a, const Change& b) { return a.growth() > b.growth(); });
}

template <typename Key, typename Make>
QList<Change> compare(const QMap<Key, HistoryRecord::Tally>& before, const QMap<Key, HistoryRecord::Tally>& after, Make make)
{
    QList<Change> changes;
    for (auto it = after.begin(); it != after.end(); ++it) {
        const qint64 was = before.value(it.key()).bytes;
        if (was != it->bytes)
            changes.append(make(it.key(), was, it->bytes));
    }
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!after.contains(it.key()) && it->bytes != 0)
            changes.append(make(it.key(), it->bytes, 0));
    }
    sortByGrowth(&changes);
    return changes;
}

}  // namespace

QList<Change> totals(const QMap<QString, HistoryRecord::Tally>& before, const QMap<QString, HistoryRecord::Tally>& after)
{
    return compare(before, after, [](const QString& name, qint64 was, qint64 is) { return Change{name, {}, was, is}; });
}

QList<Change> folders(const QMap<HistoryRecord::FolderKey, HistoryRecord::Tally>& before,
                      const QMap<HistoryRecord::FolderKey, HistoryRecord::Tally>& after)
{
    return compare(before, after, [](const HistoryRecord::FolderKey& key, qint64 was, qint64 is) {
        return Change{key.bucket, key.path, was, is};
    });
}

std::optional<Pair> pair(const QList<HistoryRecord>& newestFirst, HistoryRecord::Kind kind,
                         const std::optional<QDateTime>& since)
{
    QList<HistoryRecord> ofKind;
    std::copy_if(newestFirst.begin(), newestFirst.end(), std::back_inserter(ofKind),
                 [kind](const HistoryRecord& record) { return record.kind == kind; });
    if (ofKind.size() < 2)
        return std::nullopt;
    if (!since)
        return Pair{ofKind.at(1), ofKind.first()};
    const auto atOrBefore = std::find_if(ofKind.begin() + 1, ofKind.end(),
                                         [&](const HistoryRecord& record) { return record.date <= *since; });
    return Pair{atOrBefore != ofKind.end() ? *atOrBefore : ofKind.last(), ofKind.first()};
}

qint64 headline(const Pair& pair)
{
    if (pair.before.diskUsed && pair.after.diskUsed)
        return *pair.after.diskUsed - *pair.before.diskUsed;
    return pair.after.found() - pair.before.found();
}

}  // namespace HistoryGrowth
