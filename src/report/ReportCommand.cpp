#include "report/ReportCommand.h"

#include "actions/DiskSpace.h"
#include "actions/SystemAccess.h"
#include "history/HistoryStore.h"
#include "model/HistoryEntry.h"
#include "model/SettingsStore.h"
#include "report/CleanCommand.h"
#include "report/HistoryReport.h"
#include "report/ReportHelp.h"
#include "report/StorageReportOutput.h"
#include "report/ScanNotices.h"
#include "report/ScanRunner.h"
#include "scan/ScannerCatalog.h"
#include "update/UpdateChecker.h"
#include "vocabulary/ScanFilter.h"

#include <QDir>
#include <QJsonDocument>
#include <QSettings>

#include <cstdio>
#include <mutex>

namespace ReportCommand {

namespace {

QString standardized(const QString& path)
{
    return QDir::cleanPath(QDir(path).absolutePath());
}

QList<CategoryID> askedCategories(const ReportOptions& options)
{
    if (!options.categories.isEmpty())
        return options.categories;
    return QList<CategoryID>(Categories::allCases().begin(), Categories::allCases().end());
}

}  // namespace

ScanContext makeContext(const ReportOptions& options, const Protection& protection)
{
    ScanContext context;
    context.home = standardized(options.home.value_or(QDir::homePath()));
    for (const QString& root : options.roots)
        context.roots.append(standardized(root));
    if (context.roots.isEmpty())
        context.roots = options.home ? QStringList{context.home} : protection.scanRoots;
    if (context.roots.isEmpty())
        context.roots = {context.home};
    context.safeFolders = QSet<QString>(protection.safeFolders.begin(), protection.safeFolders.end());
    return context;
}

Protection storedProtection(QSettings* settings)
{
    const SettingsStore store(settings);
    Protection protection;
    protection.safeItemIds = QSet<QString>(store.safeItems().begin(), store.safeItems().end());
    protection.protectedPaths = store.protectedPaths();
    protection.safeFolders = store.safeFolders();
    protection.scanRoots = store.scanRoots();
    return protection;
}

ScanReport::Results scan(const ReportOptions& options, const Protection& protection)
{
    const ScanContext context = makeContext(options, protection);
    const QList<CategoryID> asked = askedCategories(options);
    const ScanFilter filter(context.home, protection.safeItemIds, protection.protectedPaths);

    ScanReport::Results results;
    std::mutex resultsMutex;
    ScanRunner::runAll(ScannerCatalog::filling(asked), context, [&](const ScanOutputs& outputs) {
        std::lock_guard lock(resultsMutex);
        for (const auto& [category, output] : outputs) {
            if (!asked.contains(category))
                continue;
            results[category] = CategoryResult{CategoryResult::State::done, filter.shown(output.items, context.roots),
                                               output.notes, output.summary, {}};
        }
    });
    return results;
}

std::optional<StorageReport> storage(const ReportOptions& options)
{
    StorageAnalyzer::Request request;
    request.home = standardized(options.home.value_or(QDir::homePath()));
    request.fullDiskAccess = SystemAccess::hasFullDiskAccess(request.home);
    request.diskUsed = [home = request.home]() -> std::optional<qint64> {
        const auto disk = DiskSpace::current(home);
        return disk ? std::optional<qint64>(disk->total - disk->available) : std::nullopt;
    };
    return StorageAnalyzer::analyze(request);
}

namespace {

int printStorage(const ReportOptions& options)
{
    const auto report = storage(options);
    if (!report)
        return 1;
    const QByteArray out = options.json
        ? QJsonDocument(StorageReportOutput::toJson(*report)).toJson(QJsonDocument::Indented)
        : StorageReportOutput::toText(*report);
    std::fwrite(out.constData(), 1, static_cast<size_t>(out.size()), stdout);
    if (options.record)
        HistoryReport::record(HistoryEntry::fromStorage(*report, DiskSpace::current(standardized(options.home.value_or(QDir::homePath())))),
                              HistoryStore::defaultPath());
    return 0;
}

}  // namespace

QString versionLine()
{
    return QStringLiteral("dustlark-cli %1 (%2)").arg(UpdateChecker::currentVersion()).arg(UpdateChecker::currentBuild());
}

int run(const QStringList& arguments)
{
    if (arguments == QStringList{QStringLiteral("--version")}) {
        std::printf("%s\n", qPrintable(versionLine()));
        return 0;
    }
    if (ReportOptions::asksForHelp(arguments)) {
        const QByteArray page = ReportHelp::page().toUtf8();
        std::fwrite(page.constData(), 1, static_cast<size_t>(page.size()), stdout);
        return 0;
    }
    QString error;
    const auto options = ReportOptions::parse(arguments, &error);
    if (!options) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    if (options->command == ReportOptions::Command::storage)
        return printStorage(*options);
    if (options->command == ReportOptions::Command::history)
        return HistoryReport::run(*options, HistoryStore::defaultPath());
    // With --home the fixture home stands alone: the person's Safe List does not apply.
    QSettings settings(QStringLiteral("Dustlark"), QStringLiteral("Dustlark"));
    settings.setFallbacksEnabled(false);
    const Protection protection = options->home ? Protection{} : storedProtection(&settings);
    if (options->command == ReportOptions::Command::clean)
        return CleanCommand::run(*options, protection, &settings);
    const QDateTime started = QDateTime::currentDateTimeUtc();
    const ScanReport::Results results = scan(*options, protection);
    const QString home = standardized(options->home.value_or(QDir::homePath()));
    const QByteArray out = options->json
        ? QJsonDocument(ScanReport::toJson(results, home)).toJson(QJsonDocument::Indented)
        : ScanReport::toText(results, home);
    std::fwrite(out.constData(), 1, static_cast<size_t>(out.size()), stdout);
    std::fflush(stdout);  // the report is out before a notification can take its seconds
    if (options->record)
        HistoryReport::record(HistoryEntry::fromScan(started, results, DiskSpace::current(home)), HistoryStore::defaultPath());
    if (options->notify)
        ScanNotices::tellAfterScan(results, home, &settings);
    return 0;
}

}  // namespace ReportCommand
