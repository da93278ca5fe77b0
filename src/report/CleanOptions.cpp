#include "report/CleanOptions.h"

#include <QCoreApplication>

#include <utility>

namespace {

const QStringList valueOptions = {QStringLiteral("--id"), QStringLiteral("--older-than"), QStringLiteral("--min-size"),
                                  QStringLiteral("--safety")};

std::optional<qint64> wholeNumber(const QString& text)
{
    bool ok = false;
    const qint64 value = text.toLongLong(&ok);
    return ok && value >= 0 ? std::optional<qint64>(value) : std::nullopt;
}

std::optional<Safety> safetyNamed(const QString& raw)
{
    for (Safety safety : {Safety::safe, Safety::askAI, Safety::risky}) {
        if (Safeties::rawValue(safety) == raw)
            return safety;
    }
    return std::nullopt;
}

}  // namespace

CleanOptions::Taken CleanOptions::take(const QStringList& arguments, int* index, QString* error)
{
    const QString& argument = arguments.at(*index);
    const std::pair<const char*, bool*> switches[] = {{"--dry-run", &dryRun}, {"--yes", &yes}, {"--permanent", &permanent}, {"--wait", &wait}};
    for (const auto& [name, flag] : switches) {
        if (argument == QLatin1String(name)) {
            *flag = true;
            return Taken::yes;
        }
    }
    if (!valueOptions.contains(argument))
        return Taken::no;
    if (*index + 1 >= arguments.size()) {
        //: Error of the report tool; %1 is an option such as --home
        *error = QCoreApplication::translate("ReportOptions", "%1 needs a value.").arg(argument);
        return Taken::failed;
    }
    const QString value = arguments.at(++*index);
    if (argument == QLatin1String("--id")) {
        ids.append(value);
        return Taken::yes;
    }
    if (argument == QLatin1String("--safety")) {
        const auto safety = safetyNamed(value);
        if (!safety) {
            //: Error of the report tool; %1 is what was given after --safety. Keep the three names as they are
            *error = QCoreApplication::translate("ReportOptions", "Unknown safety label \"%1\". Use safe, askAI or risky.").arg(value);
            return Taken::failed;
        }
        safeties.append(*safety);
        return Taken::yes;
    }
    const auto number = wholeNumber(value);
    if (!number) {
        //: Error of the report tool; %1 is an option such as --older-than, %2 the value given
        *error = QCoreApplication::translate("ReportOptions", "%1 needs a whole number of 0 or more, not \"%2\".").arg(argument, value);
        return Taken::failed;
    }
    (argument == QLatin1String("--older-than") ? olderThanDays : minSize) = number;
    return Taken::yes;
}

bool CleanOptions::isComplete(QString* error) const
{
    if (dryRun && yes) {
        //: Error of the report tool's clean command; keep the options as they are
        *error = QCoreApplication::translate("ReportOptions", "Give either --dry-run or --yes, not both.");
        return false;
    }
    if (!dryRun && !yes) {
        //: Error of the report tool's clean command; keep the options as they are
        *error = QCoreApplication::translate("ReportOptions", "clean needs --dry-run to list what would go, or --yes to remove it.");
        return false;
    }
    return true;
}
