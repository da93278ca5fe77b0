// scripts/package-mac.sh runs only on a Mac; its dry run prints the command lines it would run,
// and these are checked here.
#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

struct DryRun {
    int status = -1;
    QStringList lines;
    QString error;
};

DryRun dryRun(const QStringList& settings)
{
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DUSTLARK_SIGN_IDENTITY", "DUSTLARK_NOTARY_PROFILE", "APPLE_ID", "APPLE_TEAM_ID", "APPLE_APP_PASSWORD"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("BUILD_DIR"), QStringLiteral("out"));
    environment.insert(QStringLiteral("MACDEPLOYQT"), QStringLiteral("/opt/qt/bin/macdeployqt"));
    for (const QString& setting : settings)
        environment.insert(setting.section(QLatin1Char('='), 0, 0), setting.section(QLatin1Char('='), 1));
    script.setProcessEnvironment(environment);
    script.start(QStringLiteral(DUSTLARK_SOURCE_DIR "/scripts/package-mac.sh"), {QStringLiteral("--dry-run")});
    if (!script.waitForFinished(30'000))
        return {};
    return {script.exitCode(), QString::fromUtf8(script.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts),
            QString::fromUtf8(script.readAllStandardError())};
}

const QString version = QStringLiteral(DUSTLARK_EXPECTED_VERSION);
const QString developerId = QStringLiteral("Developer ID Application: Dustlark (AB12CD34EF)");
const QString shownId = QStringLiteral("Developer\\ ID\\ Application:\\ Dustlark\\ \\(AB12CD34EF\\)");

QStringList imageLines()
{
    return {QStringLiteral("rm -rf out/dmg-stage out/Dustlark-%1.dmg").arg(version),
            QStringLiteral("mkdir -p out/dmg-stage"),
            QStringLiteral("cp -R out/bin/Dustlark.app out/dmg-stage/"),
            QStringLiteral("ln -s /Applications out/dmg-stage/Applications"),
            QStringLiteral("hdiutil create -volname Dustlark -srcfolder out/dmg-stage -format UDZO -ov out/Dustlark-%1.dmg").arg(version),
            QStringLiteral("rm -rf out/dmg-stage")};
}

// Ad hoc by default, without the hardened runtime or notarization; a Developer ID signs hardened
// with a timestamp and notarizes the image.
TEST(PackageMac, SigningDecidesTheRuntimeTheTimestampAndNotarization)
{
    const QString deploy = QStringLiteral("/opt/qt/bin/macdeployqt out/bin/Dustlark.app -always-overwrite");
    const QString sign = QStringLiteral("codesign --force --sign %1 --entitlements resources/macos/Dustlark.entitlements %2--deep out/bin/Dustlark.app");
    const QString verify = QStringLiteral("codesign --verify --deep --strict --verbose=2 out/bin/Dustlark.app");

    const DryRun adHoc = dryRun({});
    ASSERT_EQ(adHoc.status, 0) << qPrintable(adHoc.error);
    EXPECT_EQ(adHoc.lines, QStringList({deploy, sign.arg(QStringLiteral("-"), QString()), verify}) + imageLines());

    const DryRun developer = dryRun({QStringLiteral("DUSTLARK_SIGN_IDENTITY=") + developerId, QStringLiteral("DUSTLARK_NOTARY_PROFILE=dustlark-notary")});
    ASSERT_EQ(developer.status, 0) << qPrintable(developer.error);
    EXPECT_EQ(developer.lines, (QStringList({deploy, sign.arg(shownId, QStringLiteral("--options runtime --timestamp ")), verify}) + imageLines()
                                + QStringList{QStringLiteral("codesign --force --sign %1 --timestamp out/Dustlark-%2.dmg").arg(shownId, version),
                                              QStringLiteral("xcrun notarytool submit out/Dustlark-%1.dmg --keychain-profile dustlark-notary --wait").arg(version),
                                              QStringLiteral("xcrun stapler staple out/Dustlark-%1.dmg").arg(version)}));
}

TEST(PackageMac, AppleIdCredentialsNotarizeWithoutShowingThePassword)
{
    const DryRun run = dryRun({QStringLiteral("DUSTLARK_SIGN_IDENTITY=") + developerId, QStringLiteral("APPLE_ID=dev@example.com"),
                               QStringLiteral("APPLE_TEAM_ID=AB12CD34EF"), QStringLiteral("APPLE_APP_PASSWORD=abcd-efgh-ijkl-mnop")});
    ASSERT_EQ(run.status, 0) << qPrintable(run.error);
    EXPECT_EQ(run.lines.value(run.lines.size() - 2),
              QStringLiteral("xcrun notarytool submit out/Dustlark-%1.dmg --apple-id dev@example.com --team-id AB12CD34EF --password \\<password\\> --wait").arg(version));
    EXPECT_FALSE(run.lines.join(QLatin1Char('\n')).contains(QStringLiteral("abcd-efgh")));

    const DryRun adHoc = dryRun({QStringLiteral("DUSTLARK_NOTARY_PROFILE=dustlark-notary")});
    EXPECT_NE(adHoc.status, 0);
    EXPECT_TRUE(adHoc.error.contains(QStringLiteral("notarization needs DUSTLARK_SIGN_IDENTITY"))) << qPrintable(adHoc.error);
    EXPECT_FALSE(adHoc.lines.join(QLatin1Char('\n')).contains(QStringLiteral("notarytool")));
}

}  // namespace
