#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "ui/MainWindow.h"
#include "ui/SettingsPage.h"
#include "vocabulary/AppLanguage.h"

#include <QApplication>
#include <QSettings>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QApplication::setApplicationName(QStringLiteral("Dustlark"));

    // The native store: NSUserDefaults on macOS, an INI file under ~/.config on Linux.
    QSettings settings;
    AppLanguage::loadAtLaunch(settings);

    SettingsStore settingsStore(&settings);
    StatsStore statsStore(&settings);
    AppModel model(&settingsStore, &statsStore);
    model.refreshSystemState();

    MainWindow window(&model);
    window.setSettingsPage(new SettingsPage(&settingsStore, &settings));
    window.show();
    return app.exec();
}
