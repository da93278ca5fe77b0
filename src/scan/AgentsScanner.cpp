#include "scan/AgentsScanner.h"

#include "format/RelativeDate.h"
#include "machinery/Concurrency.h"
#include "machinery/FileSizer.h"
#include "scan/LocationScanner.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>
#include <QTimeZone>

namespace {

// Measuring is disk-bound; a few rows at once keep the disk busy beside the other scanners.
constexpr int measuringLimit = 4;

struct Measured {
    qint64 bytes = 0;
    qint64 latestChange = 0;  // seconds since 1970; 0 when unknown
    QList<FileTarget> targets;
    bool complete = true;
};

Measured measureAll(const QStringList& paths, const ScanContext& context)
{
    Measured measured;
    for (const QString& path : paths) {
        const auto target = FileTarget::make(path);
        if (!target)
            return {0, 0, {}, false};  // vanished since the row was built
        context.progress->setCurrentFolder(path);
        const FileSizer::Measurement size = FileSizer::measure(path, context.progress.get(), &context.cancellation);
        if (!size.complete || context.isCancelled())
            return {0, 0, {}, false};
        measured.bytes += size.bytes;
        measured.latestChange = std::max(measured.latestChange, size.latestChange);
        measured.targets.append(*target);
    }
    return measured;
}

std::optional<QString> lockedReason(const AgentsScanner::Row& row, const std::optional<QDateTime>& changed,
                                    const ScanContext& context, const RunningApps& running)
{
    // A running app holds its files open whatever their age, so its lock speaks first.
    if (row.lockIfRunning && running.isRunning(*row.lockIfRunning))
        return RunningApps::quitToRemove(row.agent);
    if (row.lockIfRecent && changed && *changed > context.now.addDays(-1))
        return RemovalReasons::changedInLastDay();
    return std::nullopt;
}

QString detailOf(const AgentsScanner::Row& row, const std::optional<QDateTime>& changed)
{
    if (!changed)
        return row.note;
    //: Fact in the detail line of an AI agents row; %1 is a relative date like "3 days ago"
    const QString last = QCoreApplication::translate("AgentsScanner", "last changed %1")
                             .arg(RelativeDate::marker(*changed));
    return row.note + QStringLiteral(" · ") + last;
}

}  // namespace

std::optional<CleanupItem> AgentsScanner::item(const Row& row, const ScanContext& context, const RunningApps& running)
{
    const Measured measured = measureAll(row.paths, context);
    if (!measured.complete || measured.targets.isEmpty() || measured.bytes <= LocationScanner::largestIgnoredSize)
        return std::nullopt;
    std::optional<QDateTime> changed;
    if (measured.latestChange > 0)
        changed = QDateTime::fromSecsSinceEpoch(measured.latestChange, QTimeZone::utc());
    CleanupItem item;
    item.id = row.paths.size() == 1 ? row.paths.first() : QStringLiteral("agents:") + row.idTitle.value_or(row.title);
    item.category = CategoryID::aiAgents;
    item.title = row.title;
    item.badge = row.agent;
    item.detail = detailOf(row, changed);
    item.size = measured.bytes;
    item.removal = Removal::trash(measured.targets);
    item.lockedReason = lockedReason(row, changed, context, running);
    item.date = changed;
    item.safetyLevel = row.safety;
    return item;
}

ScanOutputs AgentsScanner::scan(const ScanContext& context) const
{
    const QSet<QString> installed = installedAgents(context.home, m_environment);
    const QList<Row> found = rows(context, installed);
    const RunningApps running = RunningApps::from(context.runningPrograms->list());
    const std::vector<Row> work(found.begin(), found.end());
    const auto items = Concurrency::map(work, measuringLimit, context.cancellation,
                                        [&](const Row& row) { return item(row, context, running); });
    ScanOutput output;
    for (const auto& one : items) {
        if (one)
            output.items.append(*one);
    }
    return {{CategoryID::aiAgents, output}};
}
