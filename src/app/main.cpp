#include "ui/MainWindow.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QApplication::setApplicationName(QStringLiteral("Dustlark"));

    QTranslator translator;
    if (translator.load(QLocale(), QStringLiteral("dustlark"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        QApplication::installTranslator(&translator);

    MainWindow window;
    window.show();
    return app.exec();
}
