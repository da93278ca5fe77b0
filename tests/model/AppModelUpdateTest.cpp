#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "support/HttpsTestServer.h"

#include <gtest/gtest.h>

using UpdateChecker::Result;

TEST(AppModelUpdate, OneCheckAtATimeAndItsAnswerStays)
{
    HttpsTestServer server;
    ASSERT_TRUE(server.isListening()) << qPrintable(server.error());
    HttpsTestServer::Response slow;
    slow.body = R"({"version":"9.0","build":999999,"url":"http://elsewhere.example/"})";
    slow.delayMs = 200;
    server.serve(QStringLiteral("/dustlark-mac/version.json"), slow);
    ModelFixture fixture({}, QStringLiteral("/Users/a"), [&](AppModel::Services& services) {
        services.updateSite.origin = QUrl(server.origin());
        services.updateSite.extraCertificates = server.certificatePem();
    });
    AppModel& model = fixture.model();
    int changes = 0;
    QObject::connect(&model, &AppModel::updateStateChanged, [&] { ++changes; });

    model.checkForUpdates();
    model.checkForUpdates();
    EXPECT_TRUE(model.updateState().isChecking);
    EXPECT_FALSE(model.updateState().result);
    ASSERT_TRUE(waitUntil([&] { return !model.updateState().isChecking; }, 15'000));
    EXPECT_EQ(server.requests().size(), 1);
    EXPECT_EQ(changes, 2);
    ASSERT_TRUE(model.updateState().result && model.updateState().result->as<Result::Available>());
    const auto& release = model.updateState().result->as<Result::Available>()->release;
    EXPECT_EQ(release.version, QStringLiteral("9.0"));
    EXPECT_EQ(model.releasePage(release), QUrl(server.origin() + QStringLiteral("/dustlark-mac/")));
}
