// The Overview with a history of cleanups, a filled Safe List, and About after an update check.
#include "Scenes.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "model/StatsStore.h"
#include "support/HttpsTestServer.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/AboutPage.h"
#include "ui/OverviewPage.h"
#include "ui/SafeListPage.h"
#include "ui/WindowFixture.h"

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

namespace {

QImage settled(QWidget& page)
{
    page.resize(1000, 720);
    page.show();
    QCoreApplication::processEvents();  // lets the layouts settle before the picture
    return page.grab().toImage();
}

QImage overview()
{
    QTemporaryDir dir;
    QSettings preferences(dir.filePath("prefs.ini"), QSettings::IniFormat);
    QDateTime now = QDateTime::currentDateTime().addDays(-40);
    SettingsStore settings(&preferences, "/Users/a");
    StatsStore stats(&preferences, [&now] { return now; });
    AppModel model(&settings, &stats);
    struct Past {
        int daysAgo;
        qint64 bytes;
        int items;
    };
    for (const Past& past : {Past{26, 12'400'000'000, 41}, Past{9, 860'000'000, 3}, Past{0, 4'200'000'000, 12}}) {
        now = QDateTime::currentDateTime().addDays(-past.daysAgo);
        stats.recordCleanup(past.bytes, past.bytes / 10, past.items);
    }
    model.apply({{CategoryID::projects, found({rowAt(CategoryID::projects, "/Users/a/p/node_modules", 3'800'000'000)})},
                 {CategoryID::docker, found({rowAt(CategoryID::docker, "/Users/a/d", 2'100'000'000)})},
                 {CategoryID::browserCaches, found({rowAt(CategoryID::browserCaches, "/Users/a/c", 940'000'000)})}},
                false);
    std::map<CategoryID, CategoryResult> results;
    for (CategoryID category : Categories::allCases())
        results[category] = model.result(category);
    now = QDateTime::currentDateTime().addSecs(-3 * 3600);
    stats.recordScan(now.addSecs(-95), results);
    OverviewPage page(&model);
    return settled(page);
}

QImage safeList()
{
    ModelFixture fixture;
    QDateTime added = QDateTime::currentDateTime();
    fixture.settings().setClock([&added] { return added; });
    CleanupItem build = rowAt(CategoryID::projects, "/Users/a/code/shop/node_modules", 1'240'000'000);
    build.detail = "shop · npm · changed 3 weeks ago";
    CleanupItem model = rowAt(CategoryID::aiModels, "/Users/a/.ollama/models/llama3", 4'700'000'000);
    model.title = "llama3:8b";
    model.detail = "Ollama · used 2 months ago";
    CleanupItem logs = rowAt(CategoryID::logs, "/Users/a/Library/Logs/Xcode", 86'000'000);
    logs.detail = "Xcode · 412 files";
    for (const CleanupItem& item : {build, model, logs}) {
        added = added.addDays(-9);
        fixture.settings().addSafeItem(item);
    }
    fixture.settings().addSafeFolder("/Users/a/Clients/Archive");
    fixture.settings().addSafeFolder("/Users/a/Movies/Raw Footage");
    SafeListPage page(&fixture.model());
    return settled(page);
}

// The answer comes from a local HTTPS server, as in the tests, so the picture shows a real check.
QImage about()
{
    HttpsTestServer server;
    server.serve(QStringLiteral("/dustlark-mac/version.json"),
                 HttpsTestServer::Response(200, R"({"version":"0.2.0","build":2})"));
    ModelFixture fixture({}, QStringLiteral("/Users/a"), [&](AppModel::Services& services) {
        services.updateSite.origin = QUrl(server.origin());
        services.updateSite.extraCertificates = server.certificatePem();
    });
    AboutPage page(&fixture.model());
    fixture.model().checkForUpdates();
    if (!waitUntil([&] { return fixture.model().updateState().result.has_value(); }, 15'000))
        return {};
    return settled(page);
}

}  // namespace

QList<Scene> pageScenes()
{
    return {
        {QStringLiteral("overview.png"), overview},
        {QStringLiteral("safe-list.png"), safeList},
        {QStringLiteral("about.png"), about},
    };
}
