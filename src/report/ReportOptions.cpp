#include "report/ReportOptions.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

std::optional<ReportOptions::Command> commandNamed(const QString& name)
{
    if (name == QLatin1String("scan"))
        return ReportOptions::Command::scan;
    if (name == QLatin1String("storage"))
        return ReportOptions::Command::storage;
    if (name == QLatin1String("history"))
        return ReportOptions::Command::history;
    if (name == QLatin1String("clean"))
        return ReportOptions::Command::clean;
    return std::nullopt;
}

QString categoryNames()
{
    QStringList names;
    for (CategoryID category : Categories::allCases())
        names.append(Categories::rawValue(category));
    return names.join(QStringLiteral(", "));
}

// A folder the tool is pointed at must be one it can list; an empty report would hide the typo.
std::optional<QString> folderProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        //: Error of the report tool; %1 is the path given after --home or --root
        return QCoreApplication::translate("ReportOptions", "\"%1\" does not exist.").arg(path);
    if (!info.isDir())
        //: Error of the report tool; %1 is the path given after --home or --root
        return QCoreApplication::translate("ReportOptions", "\"%1\" is not a folder.").arg(path);
    if (!info.isReadable() || !info.isExecutable())
        //: Error of the report tool; %1 is the path given after --home or --root
        return QCoreApplication::translate("ReportOptions", "\"%1\" can't be read: no permission.").arg(path);
    return std::nullopt;
}

bool takesValue(ReportOptions::Command command, const QString& argument)
{
    using Command = ReportOptions::Command;
    if (command == Command::history)
        return argument == QLatin1String("--since");
    // The storage analysis walks the whole home: scan folders and categories don't apply.
    return argument == QLatin1String("--home")
        || (command != Command::storage
            && (argument == QLatin1String("--root") || argument == QLatin1String("--category")));
}

// --record adds a scan or an analysis to the history; a cleanup is recorded in the statistics.
bool takesFlagRecord(ReportOptions::Command command, const QString& argument)
{
    return argument == QLatin1String("--record")
        && (command == ReportOptions::Command::scan || command == ReportOptions::Command::storage);
}

bool takeValue(ReportOptions* options, const QString& argument, const QString& value, QString* error)
{
    if (argument == QLatin1String("--home")) {
        options->home = value;
    } else if (argument == QLatin1String("--since")) {
        options->since = value;
    } else if (argument == QLatin1String("--root")) {
        options->roots.append(value);
    } else if (auto category = Categories::fromRawValue(value)) {
        if (!options->categories.contains(*category))
            options->categories.append(*category);
    } else {
        //: Error of the report tool; %1 is the category name it did not know, %2 the list of valid names
        *error = QCoreApplication::translate("ReportOptions", "Unknown category \"%1\". The categories are: %2.")
                     .arg(value, categoryNames());
        return false;
    }
    return true;
}

bool isComplete(const ReportOptions& options, QString* error)
{
    if (options.command == ReportOptions::Command::clean) {
        if (options.categories.isEmpty()) {
            //: Error of the report tool's clean command; keep the option as it is
            *error = QCoreApplication::translate("ReportOptions", "clean needs at least one --category.");
            return false;
        }
        if (!options.clean.isComplete(error))
            return false;
    }
    QStringList folders = options.roots;
    if (options.home)
        folders.prepend(*options.home);
    for (const QString& folder : folders) {
        if (const auto problem = folderProblem(folder)) {
            *error = *problem;
            return false;
        }
    }
    return true;
}

}  // namespace

QString ReportOptions::usage()
{
    return QStringLiteral("usage: dustlark-cli scan [--home DIR] [--root DIR]... [--category RAW]... [--json]"
                          " [--record] [--notify] | storage [--home DIR] [--json] [--record] | history [--since DATE|last] [--json]"
                          " | clean --category RAW... (--dry-run | --yes) [OPTIONS]"
                          " | help | --version");
}

bool ReportOptions::asksForHelp(const QStringList& arguments)
{
    return arguments.value(0) == QLatin1String("help") || arguments.contains(QStringLiteral("--help"))
        || arguments.contains(QStringLiteral("-h"));
}

std::optional<ReportOptions> ReportOptions::parse(const QStringList& arguments, QString* error)
{
    const auto command = commandNamed(arguments.value(0));
    if (!command) {
        *error = usage();
        return std::nullopt;
    }
    ReportOptions options;
    options.command = *command;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--json")) {
            options.json = true;
            continue;
        }
        if (argument == QLatin1String("--notify") && options.command == Command::scan) {
            options.notify = true;
            continue;
        }
        if (takesFlagRecord(options.command, argument)) {
            options.record = true;
            continue;
        }
        if (options.command == Command::clean) {
            const CleanOptions::Taken taken = options.clean.take(arguments, &i, error);
            if (taken == CleanOptions::Taken::failed)
                return std::nullopt;
            if (taken == CleanOptions::Taken::yes)
                continue;
        }
        if (!takesValue(options.command, argument)) {
            //: Error of the report tool; %1 is the argument it did not understand
            *error = QCoreApplication::translate("ReportOptions", "Unknown argument \"%1\".").arg(argument) + QLatin1Char(' ') + usage();
            return std::nullopt;
        }
        if (i + 1 >= arguments.size()) {
            //: Error of the report tool; %1 is an option such as --home
            *error = QCoreApplication::translate("ReportOptions", "%1 needs a value.").arg(argument);
            return std::nullopt;
        }
        if (!takeValue(&options, argument, arguments.at(++i), error))
            return std::nullopt;
    }
    if (!isComplete(options, error))
        return std::nullopt;
    return options;
}
