#include "scan/AndroidScanner.h"

#include "format/RelativeDate.h"
#include "machinery/Concurrency.h"
#include "machinery/FileInfo.h"
#include "machinery/FileSizer.h"
#include "machinery/ProcessRunner.h"
#include "machinery/ToolLocations.h"
#include "platform/Platform.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>
#include <thread>

namespace {

constexpr int measuringLimit = 4;
const QLatin1String avdSuffix(".avd");

QString emulatorName(const QString& avd)
{
    const QString folder = avd.section(QLatin1Char('/'), -1);
    return folder.left(folder.size() - avdSuffix.size());
}

std::vector<QString> emulatorFolders(const QString& home)
{
    const QString folder = home + QStringLiteral("/.android/avd");
    std::vector<QString> folders;
    for (const QString& name : FileInfo::children(folder)) {
        if (name.endsWith(avdSuffix) && name.size() > avdSuffix.size())
            folders.push_back(folder + QLatin1Char('/') + name);
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

QString emulatorDetail(qint64 latestChange)
{
    //: Detail line of an Android emulator row
    QString detail = QCoreApplication::translate("AndroidScanner", "Android emulator with its apps and data");
    if (latestChange > 0) {
        const QDateTime changed = QDateTime::fromSecsSinceEpoch(latestChange, QTimeZone::utc());
        //: Fact in an Android emulator's detail line; %1 is a relative date like '3 months ago'
        detail += QStringLiteral(" · ") + QCoreApplication::translate("AndroidScanner", "changed %1").arg(RelativeDate::marker(changed));
    }
    return detail;
}

}  // namespace

ScanOutputs AndroidScanner::scan(const ScanContext& context) const
{
    const std::vector<QString> folders = emulatorFolders(context.home);
    // The process list only frees emulators: without one it is not worth a child process.
    std::optional<QSet<QString>> running;
    std::thread listing;
    if (!folders.empty())
        listing = std::thread([&] { running = runningAVDs(&context.cancellation); });
    // Every emulator starts locked and is freed only when the process list shows it idle.
    const auto measured = Concurrency::map(folders, measuringLimit, context.cancellation, [&](const QString& avd) {
        return emulatorRow(avd, true, context);
    });
    if (listing.joinable())
        listing.join();
    ScanOutput output;
    for (std::optional<CleanupItem> row : measured) {
        if (!row)
            continue;
        if (running && !running->contains(emulatorName(row->id)))
            row->lockedReason.reset();
        output.items.append(*row);
    }
    std::stable_sort(output.items.begin(), output.items.end(), [](const auto& a, const auto& b) { return a.size > b.size; });
    ScanOutput locations = LocationScanner(CategoryID::android, KnownLocations::android()).scan(context)[CategoryID::android];
    output.items += locations.items;
    output.notes += locations.notes;
    return {{CategoryID::android, output}};
}

std::optional<QSet<QString>> AndroidScanner::runningAVDs(const CancellationToken* cancellation) const
{
    if (!m_environment.ps) {
        if (const std::optional<QStringList> commandLines = Platform::runningCommandLines())
            return avdNames(commandLines->join(QLatin1Char('\n')));
    }
    const ProcessRunner::Result result = ProcessRunner::run(
        m_environment.ps.value_or(ToolLocations::standard({}).ps), {QStringLiteral("-axww"), QStringLiteral("-o"), QStringLiteral("command=")}, m_environment.psTimeLimit, {}, cancellation);
    if (!result.launched() || result.output->status != 0 || result.output->timedOut)
        return std::nullopt;
    return avdNames(result.output->standardOutput);
}

QSet<QString> AndroidScanner::avdNames(const QString& processList)
{
    QSet<QString> names;
    for (const QString& line : processList.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (!line.contains(QLatin1String("qemu-system")) && !line.contains(QLatin1String("emulator")))
            continue;
        const QStringList arguments = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const qsizetype flag = arguments.indexOf(QLatin1String("-avd"));
        if (flag >= 0 && flag + 1 < arguments.size())
            names.insert(arguments[flag + 1]);
    }
    return names;
}

std::optional<CleanupItem> AndroidScanner::emulatorRow(const QString& avd, bool running, const ScanContext& context)
{
    const auto folder = FileTarget::make(avd);
    if (!folder)
        return std::nullopt;
    const FileSizer::Measurement size = FileSizer::measure(avd, context.progress.get(), &context.cancellation);
    QList<FileTarget> targets = {*folder};
    // The settings file beside the folder goes with it; an emulator whose file is gone still goes.
    if (auto settings = FileTarget::make(avd.left(avd.size() - avdSuffix.size()) + QStringLiteral(".ini")))
        targets.append(*settings);
    CleanupItem row;
    row.id = avd;
    row.category = CategoryID::android;
    row.title = emulatorName(avd).replace(QLatin1Char('_'), QLatin1Char(' '));
    //: Badge of an Android emulator row
    row.badge = QCoreApplication::translate("AndroidScanner", "Emulator");
    row.detail = emulatorDetail(size.latestChange);
    row.size = size.bytes;
    row.removal = Removal::trash(targets);
    if (size.latestChange > 0)
        row.date = QDateTime::fromSecsSinceEpoch(size.latestChange, QTimeZone::utc());
    if (running)
        row.lockedReason = RemovalReasons::running();
    return row;
}
