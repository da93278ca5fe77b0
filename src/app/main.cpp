#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "ui/AppIcon.h"
#include "ui/FirstPaintStamp.h"
#include "ui/MainWindow.h"
#include "ui/SettingsPage.h"
#include "ui/SingleInstance.h"
#include "ui/StallMeter.h"
#include "ui/StatusItem.h"
#include "update/UpdateChecker.h"
#include "vocabulary/AppLanguage.h"
#include "vocabulary/SystemPlaces.h"

#include <QApplication>
#include <QSettings>
#include <QSystemTrayIcon>

#include <cstdio>

namespace {

// Measuring by hand (bench/app_bench.sh), never otherwise: the launching script hands over the
// moment it started the program, or asks for the longest stall of the event loop at the end.
void measureWhenAsked(QWidget* window)
{
    bool launchStamped = false;
    const qint64 launchedAt = qEnvironmentVariable("DUSTLARK_LAUNCHED_AT_MS").toLongLong(&launchStamped);
    if (launchStamped) {
        new FirstPaintStamp(window, launchedAt, [](qint64 elapsed) {
            std::fprintf(stderr, "first paint after %lld ms\n", static_cast<long long>(elapsed));
        });
    }
    if (qEnvironmentVariableIsSet("DUSTLARK_STALL_METER")) {
        auto* meter = new StallMeter(std::chrono::milliseconds(10), window);
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, meter, [meter] {
            std::fprintf(stderr, "longest stall %lld ms in %lld ms\n", static_cast<long long>(meter->longestStall()),
                         static_cast<long long>(meter->watched()));
            std::fprintf(stderr, "busiest turn %lld ms of processor time\n", static_cast<long long>(meter->busiestTurn()));
        });
    }
}

}  // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Dustlark"));
    QApplication::setApplicationName(QStringLiteral("Dustlark"));
    QApplication::setApplicationVersion(UpdateChecker::currentVersion());
    QApplication::setWindowIcon(AppIcon::icon());
    // Wayland compositors match the window to its desktop entry, and so to its icon, by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("app.dustlark.Dustlark"));

    // A second launch shows the running window instead of a second one that could clean at the
    // same time. The report tool launches the app with --overview when its notification is clicked.
    const bool toOverview = QApplication::arguments().contains(QStringLiteral("--overview"));
    SingleInstance instance;
    if (!instance.claim(std::chrono::seconds(5), toOverview ? SingleInstance::Request::showOverview : SingleInstance::Request::raise))
        return 0;

    // The native store: NSUserDefaults on macOS, an INI file under ~/.config on Linux. Only the
    // app's own domain is read: with fallbacks, macOS answers a key the app never set from the
    // global domain (an unset "AppleLanguages" read as the system's list of languages).
    // On macOS that domain is Qt's "com.dustlark.Dustlark", not the bundle identifier: QSettings
    // builds it from the organisation and cannot spell a ".app" domain, and writing the bundle
    // identifier's plist directly would race cfprefsd, which also holds that domain for AppKit's
    // own keys (the open panel's last folder) and writes its copy back over ours.
    QSettings settings;
    settings.setFallbacksEnabled(false);
    AppLanguage::loadAtLaunch(settings);

    SettingsStore settingsStore(&settings);
    StatsStore statsStore(&settings);
    AppModel model(&settingsStore, &statsStore);
    model.refreshSystemState();

    MainWindow window(&model);
    auto* settingsPage = new SettingsPage(&settingsStore, &settings);
    settingsPage->showUpdates(&model);
    window.setSettingsPage(settingsPage);
    StatusItem statusItem(&model, NoticeLog(SystemPlaces::appDataFolder()), Notifier::Delivery{});
    const auto showOverview = [&window] {
        window.choose(SidebarDestination::screen(SidebarDestination::Kind::overview));
        window.bringToFront();
    };
    QObject::connect(&statusItem, &StatusItem::openRequested, &window, showOverview);
    QObject::connect(&statusItem, &StatusItem::quitRequested, &window, &MainWindow::requestQuit);
    // Hidden, the window comes back through the status item, so that item must be showing.
    window.setKeepsRunningWhenClosed([&statusItem, &settingsStore] {
        return settingsStore.isWatching() && settingsStore.keepsWatchingWhenClosed() && statusItem.icon()->isVisible();
    });
    measureWhenAsked(&window);
    window.show();
    QObject::connect(&instance, &SingleInstance::activationRequested, &window, &MainWindow::bringToFront);
    QObject::connect(&instance, &SingleInstance::overviewRequested, &window, showOverview);
    return app.exec();
}
