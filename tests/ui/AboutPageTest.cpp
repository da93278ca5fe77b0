#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "ui/AboutPage.h"
#include "ui/UpdateBox.h"
#include "support/HttpsTestServer.h"

#include <QFileInfo>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

TEST(AboutPage, ShowsTheBuildAndEveryShippedLicenceInFull)
{
    ModelFixture fixture;
    AboutPage page(&fixture.model());
    EXPECT_EQ(page.versionLabel()->text(), QStringLiteral("Version " DUSTLARK_EXPECTED_VERSION " (" DUSTLARK_EXPECTED_BUILD ")"));
    const QList<AboutPage::Library> libraries = AboutPage::libraries();
    ASSERT_EQ(libraries.size(), 3);
    for (const AboutPage::Library& library : libraries) {
        ASSERT_FALSE(library.texts.isEmpty()) << qPrintable(library.name);
        for (const QString& resource : library.texts)
            EXPECT_GT(AboutPage::licenceText(resource).size(), 5000) << qPrintable(resource);
    }
    EXPECT_TRUE(AboutPage::licenceText(libraries[1].texts[0]).contains(QStringLiteral("Apache License")));
    EXPECT_TRUE(AboutPage::licenceText(libraries[2].texts[0]).contains(QStringLiteral("Version 2.1")));
}

TEST(AboutPage, ChecksForUpdatesAndOpensOnlyTheMakersPage)
{
    HttpsTestServer server;
    ASSERT_TRUE(server.isListening()) << qPrintable(server.error());
    HttpsTestServer::Response newer;
    newer.body = R"({"version":"9.0","build":999999,"url":"https://elsewhere.example/fake-update"})";
    server.serve(QStringLiteral("/dustlark-mac/version.json"), newer);
    ModelFixture fixture({}, QStringLiteral("/Users/a"), [&](AppModel::Services& services) {
        services.updateSite.origin = QUrl(server.origin());
        services.updateSite.extraCertificates = server.certificatePem();
    });
    AboutPage page(&fixture.model());
    QList<QUrl> opened;
    page.updates()->setOpenURL([&](const QUrl& url) { opened.append(url); });
    EXPECT_TRUE(page.updates()->releasePageButton()->isHidden());

    page.updates()->checkButton()->click();
    EXPECT_FALSE(page.updates()->checkButton()->isEnabled());
    EXPECT_EQ(page.updates()->status()->text(), QStringLiteral("Checking for updates…"));
    ASSERT_TRUE(waitUntil([&] { return page.updates()->checkButton()->isEnabled(); }, 15'000));
    EXPECT_EQ(page.updates()->status()->text(), QStringLiteral("Dustlark 9.0 is available."));
    EXPECT_FALSE(page.updates()->releasePageButton()->isHidden());
    EXPECT_TRUE(page.updates()->installButton()->isHidden()) << "a copy outside a bundle can't replace itself";
    page.updates()->releasePageButton()->click();
    EXPECT_EQ(opened, QList<QUrl>{QUrl(server.origin() + QStringLiteral("/dustlark-mac/"))});

    server.serve(QStringLiteral("/dustlark-mac/version.json"), HttpsTestServer::Response(404, "gone"));
    page.updates()->checkButton()->click();
    ASSERT_TRUE(waitUntil([&] { return page.updates()->checkButton()->isEnabled(); }, 15'000));
    EXPECT_EQ(page.updates()->status()->text(),
              QStringLiteral("The update information isn't available right now. Try again later."));
    EXPECT_TRUE(page.updates()->releasePageButton()->isHidden());
}

TEST(AboutPage, InstallIsOfferedWhereTheCopyMayReplaceItselfAndSaysWhyItFailed)
{
    HttpsTestServer server;
    ASSERT_TRUE(server.isListening()) << qPrintable(server.error());
    server.serve(QStringLiteral("/files/Dustlark.dmg"), HttpsTestServer::Response(200, "not the image"));
    server.serve(QStringLiteral("/dustlark-mac/version.json"),
                 HttpsTestServer::Response(200, QStringLiteral(R"({"version":"9.0","build":999999,"dmg":"%1/files/Dustlark.dmg","sha256":"%2"})")
                                                    .arg(server.origin(), QString(64, QLatin1Char('0'))).toUtf8()));
    TempTree tree;
    ModelFixture fixture({}, QStringLiteral("/Users/a"), [&](AppModel::Services& services) {
        services.updateSite.origin = QUrl(server.origin());
        services.updateSite.extraCertificates = server.certificatePem();
        services.runningApp = tree.dir(QStringLiteral("Applications/Dustlark.app"));
        services.relaunch = [](const QString&) { return true; };
    });
    AboutPage page(&fixture.model());
    UpdateBox* box = page.updates();
    box->checkButton()->click();
    ASSERT_TRUE(waitUntil([&] { return box->checkButton()->isEnabled(); }, 15'000));
    ASSERT_FALSE(box->installButton()->isHidden());

    box->installButton()->click();
    EXPECT_FALSE(box->installButton()->isEnabled());
    ASSERT_TRUE(waitUntil([&] { return box->installButton()->isEnabled(); }, 15'000));
    EXPECT_EQ(box->status()->text(), QStringLiteral("The downloaded update didn't pass the check. This copy wasn't changed."));
    EXPECT_TRUE(QFileInfo::exists(tree.path(QStringLiteral("Applications/Dustlark.app"))));
}
