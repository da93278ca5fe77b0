#include "report/ReportHelp.h"

#include "vocabulary/CategoryID.h"

#include <QCoreApplication>

namespace ReportHelp {

namespace {

// One option or verb and what it does, the description starting in one column.
QString entry(const QString& name, const QString& text)
{
    return QStringLiteral("  ") + name.leftJustified(26) + QLatin1Char(' ') + text + QLatin1Char('\n');
}

QString categories()
{
    QString list;
    for (CategoryID category : Categories::allCases())
        list += entry(Categories::rawValue(category), Categories::title(category));
    return list;
}

}  // namespace

QString page()
{
    QString text = QStringLiteral("dustlark-cli scan [--home DIR] [--root DIR]... [--category RAW]... [--json] [--record]\n"
                                  "                  [--notify]\n"
                                  "dustlark-cli storage [--home DIR] [--json] [--record]\n"
                                  "dustlark-cli history [--since DATE|last] [--json]\n"
                                  "dustlark-cli clean --category RAW... (--dry-run | --yes) [--permanent] [--wait] [--json]\n"
                                  "                   [--home DIR] [--root DIR]... [--id ID]... [--older-than DAYS]\n"
                                  "                   [--min-size BYTES] [--safety safe|askAI|risky]...\n"
                                  "dustlark-cli help | --help | --version\n\n");
    //: Heading of the report tool's help page
    text += QCoreApplication::translate("ReportHelp", "Commands:") + QLatin1Char('\n');
    //: Report tool help: what the scan command does
    text += entry(QStringLiteral("scan"), QCoreApplication::translate("ReportHelp", "List what the scanners find, as the app shows it. Changes nothing."));
    //: Report tool help: what the storage command does
    text += entry(QStringLiteral("storage"), QCoreApplication::translate("ReportHelp", "Show what takes the space of the home folder. Changes nothing."));
    //: Report tool help: what the history command does
    text += entry(QStringLiteral("history"), QCoreApplication::translate("ReportHelp", "List the recorded scans, or with --since what grew since one of them."));
    //: Report tool help: what the clean command does
    text += entry(QStringLiteral("clean"), QCoreApplication::translate("ReportHelp", "Scan the categories, then move the rows that pass the filters to the Trash."));
    //: Report tool help: what the help command does
    text += entry(QStringLiteral("help"), QCoreApplication::translate("ReportHelp", "Show this page."));
    //: Heading of the report tool's help page
    text += QLatin1Char('\n') + QCoreApplication::translate("ReportHelp", "Options:") + QLatin1Char('\n');
    //: Report tool help: the --home option
    text += entry(QStringLiteral("--home DIR"), QCoreApplication::translate("ReportHelp", "Scan DIR as the home folder, without the stored Safe List."));
    //: Report tool help: the --root option
    text += entry(QStringLiteral("--root DIR"), QCoreApplication::translate("ReportHelp", "Scan DIR as a scan folder (repeat for more)."));
    //: Report tool help: the --category option
    text += entry(QStringLiteral("--category RAW"), QCoreApplication::translate("ReportHelp", "Only this category (repeat for more; names below)."));
    //: Report tool help: the --json option
    text += entry(QStringLiteral("--json"), QCoreApplication::translate("ReportHelp", "Print one JSON object instead of a table."));
    //: Report tool help: the --record option of scan and storage
    text += entry(QStringLiteral("--record"), QCoreApplication::translate("ReportHelp", "scan, storage: add the result to the scan history, as the app does."));
    //: Report tool help: the --notify option of scan
    text += entry(QStringLiteral("--notify"), QCoreApplication::translate("ReportHelp", "scan: tell the desktop what was found, and when free space runs low."));
    //: Report tool help: the --since option of history; keep "last" as it is
    text += entry(QStringLiteral("--since DATE|last"), QCoreApplication::translate("ReportHelp", "history: what grew since the scan of that date (YYYY-MM-DD), or since the one before the newest (last)."));
    //: Report tool help: the --dry-run option of clean
    text += entry(QStringLiteral("--dry-run"), QCoreApplication::translate("ReportHelp", "clean: list what would go and change nothing."));
    //: Report tool help: the --yes option of clean
    text += entry(QStringLiteral("--yes"), QCoreApplication::translate("ReportHelp", "clean: remove exactly that list, each row checked again first."));
    //: Report tool help: the --permanent option of clean
    text += entry(QStringLiteral("--permanent"), QCoreApplication::translate("ReportHelp", "clean: include rows Docker and Xcode remove for good."));
    //: Report tool help: the --wait option of clean
    text += entry(QStringLiteral("--wait"), QCoreApplication::translate("ReportHelp", "clean: wait while another cleanup removes files, instead of refusing."));
    //: Report tool help: the --id option of clean
    text += entry(QStringLiteral("--id ID"), QCoreApplication::translate("ReportHelp", "clean: only the row with this id (repeat for more)."));
    //: Report tool help: the --older-than option of clean
    text += entry(QStringLiteral("--older-than DAYS"), QCoreApplication::translate("ReportHelp", "clean: only rows dated at least DAYS days ago."));
    //: Report tool help: the --min-size option of clean
    text += entry(QStringLiteral("--min-size BYTES"), QCoreApplication::translate("ReportHelp", "clean: only rows of at least BYTES bytes."));
    //: Report tool help: the --safety option of clean; keep the three names as they are
    text += entry(QStringLiteral("--safety LABEL"), QCoreApplication::translate("ReportHelp", "clean: only rows labelled safe, askAI or risky (repeat for more)."));
    //: Report tool help: the --version option
    text += entry(QStringLiteral("--version"), QCoreApplication::translate("ReportHelp", "Print the version and build."));
    //: Heading of the report tool's help page, above the list of category names
    text += QLatin1Char('\n') + QCoreApplication::translate("ReportHelp", "Categories:") + QLatin1Char('\n') + categories();
    //: Report tool help: the exit statuses of clean
    text += QLatin1Char('\n') + QCoreApplication::translate("ReportHelp", "clean exits with 0 when everything listed was removed (or would be), 1 when some failed or "
                                  "it was stopped, 2 for bad arguments and 3 when nothing passed the filters.")
        + QLatin1Char('\n');
    return text;
}

}  // namespace ReportHelp
