#include "report/ReportCommand.h"
#include "update/UpdateChecker.h"
#include "vocabulary/AppLanguage.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QCoreApplication::setApplicationName(QStringLiteral("Dustlark"));
    QCoreApplication::setApplicationVersion(UpdateChecker::currentVersion());
    AppLanguage::installEnglish();
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    return ReportCommand::run(arguments);
}
