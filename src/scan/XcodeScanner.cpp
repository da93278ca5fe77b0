#include "scan/XcodeScanner.h"

#include "machinery/FileInfo.h"
#include "machinery/FileSizer.h"
#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"
#include "scan/KnownLocations.h"
#include "scan/LocationScanner.h"
#include "scan/PropertyList.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/RemovalReasons.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

bool isXcodeCopy(const QString& name)
{
    return name.startsWith(QLatin1String("Xcode")) && name.endsWith(QLatin1String(".app"));
}

QString copyDetail(const std::optional<QString>& selected)
{
    if (!selected)
        //: Detail of a row of another Xcode copy, when no copy is known to be selected
        return QCoreApplication::translate("XcodeScanner", "Another copy of Xcode; the one selected for builds is not this one");
    //: Detail of a row of another Xcode copy; %1 is the selected copy's name like 'Xcode.app'
    return QCoreApplication::translate("XcodeScanner", "Another copy of Xcode; the one selected for builds is %1")
        .arg(selected->section(QLatin1Char('/'), -1));
}

bool runsFrom(const QString& application, const QStringList& runningExecutables)
{
    const QString inside = application + QLatin1Char('/');
    return std::any_of(runningExecutables.begin(), runningExecutables.end(),
                       [&](const QString& executable) { return executable.startsWith(inside); });
}

std::optional<CleanupItem> copyRow(const QString& path, const std::optional<QString>& selected, const QStringList& running,
                                   const ScanContext& context)
{
    const QString program = path.section(QLatin1Char('/'), -1).chopped(4);  // without ".app"
    const auto target = FileTarget::watching(path, {program});
    if (!target)
        return std::nullopt;
    CleanupItem row;
    row.id = path;
    row.category = CategoryID::xcode;
    const auto version = PropertyList::string(path + QStringLiteral("/Contents/Info.plist"), QStringLiteral("CFBundleShortVersionString"));
    row.title = version ? program + QLatin1Char(' ') + *version : program;
    //: Badge of a row of another copy of Xcode
    row.badge = QCoreApplication::translate("XcodeScanner", "Xcode app");
    row.detail = copyDetail(selected);
    row.size = FileSizer::measure(path, context.progress.get(), &context.cancellation).bytes;
    row.removal = Removal::trash({*target});
    if (runsFrom(path, running))
        row.lockedReason = RemovalReasons::running();
    return row;
}

}  // namespace

ScanOutputs XcodeScanner::scan(const ScanContext& context) const
{
    ScanOutput output = LocationScanner(CategoryID::xcode, KnownLocations::xcode()).scan(context)[CategoryID::xcode];
    labelArchives(output.items);
    if (!context.isCancelled())
        output.items += otherCopies(selectedXcode(&context.cancellation), context);
    return {{CategoryID::xcode, output}};
}

std::optional<QString> XcodeScanner::selectedXcode(const CancellationToken* cancellation) const
{
    const ProcessRunner::Result result = ProcessRunner::run(m_environment.xcodeSelect, {QStringLiteral("-p")},
                                                            m_environment.selectTimeLimit, {}, cancellation);
    if (!result.launched() || result.output->status != 0 || result.output->timedOut)
        return std::nullopt;
    return applicationOf(result.output->standardOutput.trimmed());
}

std::optional<QString> XcodeScanner::applicationOf(const QString& developerFolder)
{
    const QStringList parts = developerFolder.split(QLatin1Char('/'));
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (parts[i].endsWith(QLatin1String(".app")) && parts[i].size() > 4)
            return parts.mid(0, i + 1).join(QLatin1Char('/'));
    }
    return std::nullopt;
}

QList<CleanupItem> XcodeScanner::otherCopies(const std::optional<QString>& selected, const ScanContext& context) const
{
    QStringList names = FileInfo::children(m_environment.applications);
    names.removeIf([&](const QString& name) {
        return !isXcodeCopy(name) || m_environment.applications + QLatin1Char('/') + name == selected;
    });
    if (names.isEmpty())
        return {};  // nothing to ask the process list about
    names.sort();
    const QStringList running = m_environment.runningExecutables ? m_environment.runningExecutables() : Platform::runningExecutables();
    QList<CleanupItem> rows;
    for (const QString& name : names) {
        const QString path = m_environment.applications + QLatin1Char('/') + name;
        if (context.isCancelled())
            continue;
        if (auto row = copyRow(path, selected, running, context))
            rows.append(*row);
    }
    return rows;
}
