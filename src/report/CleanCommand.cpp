#include "report/CleanCommand.h"

#include "actions/Remover.h"
#include "model/CleanupLock.h"
#include "model/CleanupRun.h"
#include "model/CleanupSession.h"
#include "model/StatsStore.h"
#include "report/CleanReport.h"
#include "report/InterruptWatch.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>
#include <utility>

namespace CleanCommand {

namespace {

void printLine(std::FILE* stream, const QString& line)
{
    std::fprintf(stream, "%s\n", qPrintable(line));
}

void print(const CleanReport& report, bool json)
{
    const QByteArray out = json ? QJsonDocument(report.toJson()).toJson(QJsonDocument::Indented) : report.toText();
    std::fwrite(out.constData(), 1, static_cast<size_t>(out.size()), stdout);
}

// Removes the plan's items one at a time, stopping between items once `interrupted` is set.
CleanReport removeAll(const CleanPlan& plan, const ScanContext& context, const std::atomic<bool>& interrupted,
                      QSettings* settings)
{
    CleanupSession session(plan.toRemove(), RemovalEnvironment::system(context.home, context.roots));
    session.setPhase(CleanupSession::Phase::running);
    CleanReport report = CleanReport::runOf(plan);
    CleanupRun::Steps steps;
    steps.stopRequested = [&] { return interrupted.load(); };
    steps.starting = [](const CleanupItem&) {};
    steps.finished = [&](const CleanupItem& item, const RemovalOutcome& outcome) {
        session.record(item, outcome);
        report.record(item, outcome);
    };
    report.stopped = CleanupRun::run(session.items(), plan.copies, session.environment(), &Remover::remove, steps);
    if (report.stopped)
        session.setStopped();
    session.setPhase(CleanupSession::Phase::finished);
    StatsStore stats(settings);
    stats.recordCleanup(session.movedToTrash(), session.removedByTools(), session.removedCount());
    return report;
}

// The cleanup lock, waited for with --wait (until Ctrl-C); absent after saying why not.
std::optional<CleanupLock> lockFor(const ReportOptions& options, const std::atomic<bool>& interrupted)
{
    QString reason;
    bool busy = false;
    bool said = false;
    for (;;) {
        if (auto lock = CleanupLock::acquire(CleanupLock::defaultPath(), &reason, &busy))
            return lock;
        if (!busy || !options.clean.wait || interrupted)
            break;
        if (!std::exchange(said, true))
            //: Said by clean --yes --wait while the app or another clean removes files
            printLine(stderr, QCoreApplication::translate("CleanCommand", "Waiting for the other cleanup to finish…"));
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    if (interrupted)
        //: Said by clean --yes after Ctrl-C while it waited for another cleanup
        reason = QCoreApplication::translate("CleanCommand", "Stopped before anything was removed.");
    printLine(stderr, reason);
    return std::nullopt;
}

int cleanHolding(const CleanPlan& plan, const ReportOptions& options, const ScanContext& context,
                 const std::atomic<bool>& interrupted, QSettings* settings)
{
    const auto lock = lockFor(options, interrupted);
    if (!lock) {
        if (interrupted)
            print(CleanReport::runOf(plan), options.json);
        return 1;
    }
    const CleanReport report = removeAll(plan, context, interrupted, settings);
    print(report, options.json);
    if (report.stopped)
        //: Said by clean --yes after Ctrl-C; what was done is listed above
        printLine(stderr, QCoreApplication::translate("CleanCommand", "Stopped after the current item."));
    return report.stopped || report.count(CleanReport::Outcome::failed) > 0 ? 1 : 0;
}

}  // namespace

int run(const ReportOptions& options, const ReportCommand::Protection& protection, QSettings* settings)
{
    std::atomic<bool> interrupted{false};
    // Made before the scan starts its threads, so that Ctrl-C reaches only the watch.
    std::optional<InterruptWatch> watch;
    if (options.clean.yes)
        watch.emplace([&interrupted] { interrupted = true; });
    const ScanContext context = ReportCommand::makeContext(options, protection);
    const CleanPlan plan = CleanPlan::make(ReportCommand::scan(options, protection), options.clean, context.home, context.now);
    for (const QString& id : plan.unknownIds)
        //: Said by clean when an --id names no row of the scanned categories; %1 is that id
        printLine(stderr, QCoreApplication::translate("CleanCommand", "No item with the id \"%1\" was found.").arg(id));
    if (plan.toRemove().isEmpty()) {
        print(options.clean.yes ? CleanReport::runOf(plan) : CleanReport::dryRunOf(plan), options.json);
        //: Said by clean when no row of the asked categories passes the filters
        printLine(stderr, QCoreApplication::translate("CleanCommand", "Nothing to clean: no item passes the filters."));
        return 3;
    }
    if (options.clean.dryRun) {
        print(CleanReport::dryRunOf(plan), options.json);
        return 0;
    }
    return cleanHolding(plan, options, context, interrupted, settings);
}

}  // namespace CleanCommand
