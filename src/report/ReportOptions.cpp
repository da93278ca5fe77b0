#include "report/ReportOptions.h"

#include <QCoreApplication>

QString ReportOptions::usage()
{
    return QStringLiteral("usage: dustlark-cli scan [--home DIR] [--root DIR]... [--category RAW]... [--json] [--notify]"
                          " | storage [--home DIR] [--json] | --version");
}

std::optional<ReportOptions> ReportOptions::parse(const QStringList& arguments, QString* error)
{
    const QString command = arguments.value(0);
    if (command != QLatin1String("scan") && command != QLatin1String("storage")) {
        *error = usage();
        return std::nullopt;
    }
    ReportOptions options;
    options.command = command == QLatin1String("storage") ? Command::storage : Command::scan;
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
        // The storage analysis walks the whole home: scan folders and categories don't apply.
        const bool takesValue = argument == QLatin1String("--home")
            || (options.command == Command::scan
                && (argument == QLatin1String("--root") || argument == QLatin1String("--category")));
        if (!takesValue) {
            //: Error of the report tool; %1 is the argument it did not understand
            *error = QCoreApplication::translate("ReportOptions", "Unknown argument \"%1\".").arg(argument) + QLatin1Char(' ') + usage();
            return std::nullopt;
        }
        if (i + 1 >= arguments.size()) {
            //: Error of the report tool; %1 is an option such as --home
            *error = QCoreApplication::translate("ReportOptions", "%1 needs a value.").arg(argument);
            return std::nullopt;
        }
        const QString value = arguments.at(++i);
        if (argument == QLatin1String("--home")) {
            options.home = value;
        } else if (argument == QLatin1String("--root")) {
            options.roots.append(value);
        } else if (auto category = Categories::fromRawValue(value)) {
            if (!options.categories.contains(*category))
                options.categories.append(*category);
        } else {
            //: Error of the report tool; %1 is the category name it did not know
            *error = QCoreApplication::translate("ReportOptions", "Unknown category \"%1\".").arg(value);
            return std::nullopt;
        }
    }
    return options;
}
