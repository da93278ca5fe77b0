#include "report/ReportCommand.h"
#include "vocabulary/AppLanguage.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QCoreApplication::setApplicationName(QStringLiteral("Dustlark"));
    AppLanguage::installEnglish();
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    return ReportCommand::run(arguments);
}
