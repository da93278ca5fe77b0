#include "report/ReportCommand.h"
#include "update/UpdateChecker.h"
#include "vocabulary/AppLanguage.h"

#include <QCoreApplication>
#include <QSettings>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QCoreApplication::setApplicationName(QStringLiteral("Dustlark"));
    QCoreApplication::setApplicationVersion(UpdateChecker::currentVersion());
    // The app's own preferences: the report speaks the language the person chose for the app.
    const QSettings settings;
    AppLanguage::loadAtLaunch(settings);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    return ReportCommand::run(arguments);
}
