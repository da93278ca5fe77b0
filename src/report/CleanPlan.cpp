#include "report/CleanPlan.h"

#include "model/Selection.h"
#include "model/SelectionIndex.h"

#include <QCoreApplication>

namespace {

constexpr qint64 secondsPerDay = 86'400;

bool passes(const CleanupItem& item, const CleanOptions& options, const QString& home, const QDateTime& now)
{
    if (!options.ids.isEmpty() && !options.ids.contains(item.id))
        return false;
    if (options.minSize && item.size < *options.minSize)
        return false;
    if (!options.safeties.isEmpty() && !options.safeties.contains(item.safety(home)))
        return false;
    // A row without a date has no age to compare: it is kept.
    if (options.olderThanDays && (!item.date || *item.date > now.addSecs(-*options.olderThanDays * secondsPerDay)))
        return false;
    return true;
}

// Drops duplicate rows that have no copy left in the list, as the app does after every scan.
void dropLoneCopies(ScanReport::Results* results)
{
    const auto found = results->find(CategoryID::duplicates);
    if (found == results->end())
        return;
    const QSet<QString> lone = Selection::loneCopyIds(ListFacts(CategoryID::duplicates, found->second.items));
    found->second.items.removeIf([&](const CleanupItem& item) { return lone.contains(item.id); });
}

QStringList unknown(const QStringList& ids, const ScanReport::Results& results)
{
    QSet<QString> known;
    for (const auto& [category, result] : results) {
        for (const CleanupItem& item : result.items)
            known.insert(item.id);
    }
    QStringList missing;
    for (const QString& id : ids) {
        if (!known.contains(id) && !missing.contains(id))
            missing.append(id);
    }
    return missing;
}

}  // namespace

CleanPlan CleanPlan::make(ScanReport::Results results, const CleanOptions& options, const QString& home, const QDateTime& now)
{
    dropLoneCopies(&results);
    CleanPlan plan;
    plan.copies = results[CategoryID::duplicates].items;
    plan.unknownIds = unknown(options.ids, results);
    Selection selection;
    selection.indexDuplicates(ListFacts(CategoryID::duplicates, plan.copies));
    // Each category is one list whose select-all takes the rows that pass, as in the app.
    QList<CleanupItem> selected;
    for (const auto& [category, result] : results) {
        QList<CleanupItem> shown;
        for (const CleanupItem& item : result.items) {
            if (passes(item, options, home, now))
                shown.append(item);
        }
        selection.setAll(shown, true);
    }
    for (const auto& [category, result] : results) {
        for (const CleanupItem& item : result.items) {
            if (selection.contains(item.id))
                selected.append(item);
        }
    }
    for (const CleanupItem& item : SelectionIndex::uncovered(selected)) {
        const bool keep = item.removal.isPermanent() && !options.permanent;
        plan.entries.append({item, keep ? std::optional<QString>(permanentLeftOutReason()) : std::nullopt});
    }
    return plan;
}

QList<CleanupItem> CleanPlan::toRemove() const
{
    QList<CleanupItem> items;
    for (const Entry& entry : entries) {
        if (!entry.leftOut)
            items.append(entry.item);
    }
    return items;
}

int CleanPlan::leftOutCount() const
{
    return static_cast<int>(entries.size() - toRemove().size());
}

QString CleanPlan::permanentLeftOutReason()
{
    //: Why clean left a row out; keep the option as it is
    return QCoreApplication::translate("CleanPlan", "Docker or Xcode would remove it for good, without the Trash. Add --permanent to include it.");
}
