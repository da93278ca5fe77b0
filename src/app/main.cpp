#include "model/AppLanguage.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QSettings>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QApplication::setApplicationName(QStringLiteral("Dustlark"));

    AppLanguage::loadAtLaunch(QSettings());

    MainWindow window;
    window.show();
    return app.exec();
}
