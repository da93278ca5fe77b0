#include "actions/ToolStandIn.h"
#include "support/HttpsTestServer.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "update/Updater.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

void writeBeside(const ToolStandIn& tool, const char* name, const QByteArray& content)
{
    QFile file(QFileInfo(tool.path()).dir().filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray infoPlist(const char* build)
{
    return QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)"
                      "<key>CFBundleVersion</key><string>") + build + "</string></dict></plist>";
}

// The whole install from the model: a release on a real local HTTPS server whose disk image the
// model downloads, checks against its digest and hands to stand-ins of hdiutil, ditto, codesign.
class AppModelInstallTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.isListening()) << qPrintable(server.error());
        tree.file(QStringLiteral("Applications/Dustlark.app/Contents/Info.plist"), infoPlist("1"));
        tree.file(QStringLiteral("Applications/Dustlark.app/Contents/MacOS/Dustlark"), QByteArray("old"));
        tree.file(QStringLiteral("image/Dustlark.app/Contents/Info.plist"), infoPlist("999999"));
        tree.file(QStringLiteral("image/Dustlark.app/Contents/MacOS/Dustlark"), QByteArray("new"));
        writeBeside(hdiutil, "content", tree.path(QStringLiteral("image")).toUtf8());
        writeBeside(codesign, "team", "AB12CD34EF");
        server.serve(QStringLiteral("/files/Dustlark.dmg"), HttpsTestServer::Response(200, imageBytes));
        fixture = std::make_unique<ModelFixture>(std::vector<std::shared_ptr<const Scanner>>{}, QStringLiteral("/Users/a"),
                                                 [this](AppModel::Services& services) {
            services.updateSite.origin = QUrl(server.origin());
            services.updateSite.extraCertificates = server.certificatePem();
            services.runningApp = appPath();
            services.updateTools.hdiutil = hdiutil.path();
            services.updateTools.ditto = ditto.path();
            services.updateTools.codesign = codesign.path();
            services.relaunch = [this](const QString& path) { relaunched.append(path); return true; };
        });
    }

    void offer(const QString& sha256)
    {
        const QString file = QStringLiteral(R"({"version":"9.0","build":999999,"dmg":"%1/files/Dustlark.dmg","sha256":"%2"})")
                                 .arg(server.origin(), sha256);
        server.serve(QStringLiteral("/dustlark-mac/version.json"), HttpsTestServer::Response(200, file.toUtf8()));
        model().checkForUpdates();
        ASSERT_TRUE(waitUntil([this] { return !model().updateState().isChecking; }, 15'000));
    }
    QString install()
    {
        model().installUpdate();
        EXPECT_TRUE(waitUntil([this] { return !model().updateState().isInstalling; }, 30'000));
        return model().updateState().installError;
    }
    AppModel& model() { return fixture->model(); }
    QString appPath() const { return tree.path(QStringLiteral("Applications/Dustlark.app")); }
    QByteArray runningBinary() const
    {
        QFile file(appPath() + QStringLiteral("/Contents/MacOS/Dustlark"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString digest() const { return QString::fromLatin1(QCryptographicHash::hash(imageBytes, QCryptographicHash::Sha256).toHex()); }

    HttpsTestServer server;
    TempTree tree;
    QByteArray imageBytes = QByteArray(200'000, 'i');
    ToolStandIn hdiutil{QStringLiteral("hdiutil-standin"), QStringLiteral("hdiutil")};
    ToolStandIn ditto{QStringLiteral("ditto-standin"), QStringLiteral("ditto")};
    ToolStandIn codesign{QStringLiteral("codesign-verify-standin"), QStringLiteral("codesign")};
    QStringList relaunched;
    std::unique_ptr<ModelFixture> fixture;
};

}  // namespace

TEST_F(AppModelInstallTest, AVerifiedReleaseIsInstalledAndRelaunched)
{
    ASSERT_TRUE(model().canInstallUpdate());
    offer(digest());
    EXPECT_EQ(install(), QString());
    EXPECT_EQ(runningBinary(), QByteArray("new"));
    EXPECT_EQ(relaunched, QStringList{appPath()});
    EXPECT_TRUE(codesign.calls().join(QLatin1Char('\n')).contains(QStringLiteral("leaf[subject.OU] = \"AB12CD34EF\"")));
}

TEST_F(AppModelInstallTest, ADownloadCutShortChangesNothing)
{
    HttpsTestServer::Response cut(200, imageBytes.left(50'000));
    cut.announcedLength = imageBytes.size();
    server.serve(QStringLiteral("/files/Dustlark.dmg"), cut);
    offer(digest());
    const QString error = install();
    EXPECT_TRUE(error.startsWith(QStringLiteral("Couldn't install the update ("))) << qPrintable(error);
    EXPECT_TRUE(error.endsWith(QStringLiteral("This copy wasn't changed.")));
    EXPECT_EQ(runningBinary(), QByteArray("old"));
    EXPECT_TRUE(hdiutil.calls().isEmpty());
}

TEST(AppModelInstall, ACopyOutsideABundleOffersNoInstall)
{
    ModelFixture fixture;  // the test program runs from no ".app", like the Linux build
    EXPECT_EQ(AppModel::runningAppBundle(), QString());
    EXPECT_FALSE(fixture.model().canInstallUpdate());
    fixture.model().installUpdate();
    EXPECT_FALSE(fixture.model().updateState().isInstalling);
}
