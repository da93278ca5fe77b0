#include "actions/ToolStandIn.h"
#include "support/TempTree.h"
#include "update/ImageInstall.h"
#include "update/Updater.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

QByteArray infoPlist(const char* build)
{
    return QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>CFBundleIdentifier</key><string>app.dustlark.Dustlark</string>
<key>CFBundleVersion</key><string>)") + build + "</string></dict></plist>";
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A running copy in Applications, a downloaded image whose content the hdiutil stand-in mounts,
// and stand-ins for the three tools that record their calls and fail on demand.
class ImageInstallTest : public ::testing::Test {
protected:
    ImageInstallTest()
    {
        tree.file(QStringLiteral("Applications/Dustlark.app/Contents/Info.plist"), infoPlist("1"));
        tree.file(QStringLiteral("Applications/Dustlark.app/Contents/MacOS/Dustlark"), QByteArray("old"));
        image = tree.file(QStringLiteral("dl/Dustlark-update-aupdate.dmg"), QByteArray("image"));
        tree.dir(QStringLiteral("dl/Dustlark-update-aupdate.dmg.content"));
        tools.hdiutil = hdiutil.path();
        tools.ditto = ditto.path();
        tools.codesign = codesign.path();
    }

    void imageHolds(const QString& appName, const char* build = "2")
    {
        const QString app = QStringLiteral("dl/Dustlark-update-aupdate.dmg.content/") + appName;
        if (build)
            tree.file(app + QStringLiteral("/Contents/Info.plist"), infoPlist(build));
        tree.file(app + QStringLiteral("/Contents/MacOS/Dustlark"), QByteArray("new"));
    }
    static void failWith(const ToolStandIn& tool, const char* file, int status)
    {
        QFile out(QFileInfo(tool.path()).dir().filePath(QString::fromLatin1(file)));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(QByteArray::number(status));
    }
    std::optional<QString> install() { return ImageInstall::install(image, appPath(), own, tools); }
    QString appPath() const { return tree.path(QStringLiteral("Applications/Dustlark.app")); }
    QByteArray runningBinary() const { return readAll(appPath() + QStringLiteral("/Contents/MacOS/Dustlark")); }
    QStringList applicationsFolder() const
    {
        return QDir(tree.path(QStringLiteral("Applications"))).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QStringList verbs() const
    {
        QStringList result;
        for (const QString& call : hdiutil.calls())
            result.append(call.section(QLatin1Char(' '), 0, 0));
        return result;
    }

    TempTree tree;
    QString image;
    ToolStandIn hdiutil{QStringLiteral("hdiutil-standin"), QStringLiteral("hdiutil")};
    ToolStandIn ditto{QStringLiteral("ditto-standin"), QStringLiteral("ditto")};
    ToolStandIn codesign{QStringLiteral("codesign-verify-standin"), QStringLiteral("codesign")};
    ImageInstall::Tools tools;
    ImageInstall::Identity own{QStringLiteral("app.dustlark.Dustlark"), QStringLiteral("AB12CD34EF")};
};

}  // namespace

TEST_F(ImageInstallTest, AVerifiedCopyTakesThePlaceOfTheRunningOne)
{
    imageHolds(QStringLiteral("Dustlark.app"));
    EXPECT_EQ(install(), std::nullopt);
    EXPECT_EQ(runningBinary(), QByteArray("new"));
    EXPECT_EQ(ImageInstall::build(appPath()), 2);
    EXPECT_EQ(applicationsFolder(), QStringList{QStringLiteral("Dustlark.app")}) << "nothing hidden left behind";

    const QStringList calls = hdiutil.calls();
    ASSERT_EQ(calls.size(), 3);
    EXPECT_EQ(calls[0], QStringLiteral("imageinfo -plist %1").arg(image));
    const QString mountPoint = calls[1].section(QLatin1Char(' '), -1);
    EXPECT_EQ(calls[1], QStringLiteral("attach %1 -nobrowse -readonly -noautoopen -mountpoint %2").arg(image, mountPoint));
    EXPECT_EQ(calls[2], QStringLiteral("detach %1 -force").arg(mountPoint));
    EXPECT_FALSE(QFileInfo::exists(mountPoint));
    EXPECT_EQ(codesign.calls().value(0), QStringLiteral("--verify -R=%1 ").arg(Updater::requirement(own.bundleIdentifier, own.team))
                                             + ditto.calls().value(0).section(QLatin1Char(' '), 1));
}

TEST_F(ImageInstallTest, TakesTheFirstAppWhenTheImageHasNoDustlarkApp)
{
    imageHolds(QStringLiteral("Zeta.app"));
    imageHolds(QStringLiteral("Beta.app"));
    EXPECT_EQ(install(), std::nullopt);
    EXPECT_TRUE(ditto.calls().value(0).contains(QStringLiteral("/Beta.app ")));
}

TEST_F(ImageInstallTest, EveryFailureBeforeTheSwapLeavesTheRunningCopyAlone)
{
    const auto untouched = [this](const char* what) {
        EXPECT_EQ(runningBinary(), QByteArray("old")) << what;
        EXPECT_EQ(applicationsFolder(), QStringList{QStringLiteral("Dustlark.app")}) << what;
    };
    EXPECT_EQ(install(), Updater::couldNotInstall(QStringLiteral("the disk image holds no app")));
    EXPECT_EQ(verbs(), (QStringList{"imageinfo", "attach", "detach"})) << "detached after the attach";
    untouched("no app");

    imageHolds(QStringLiteral("Dustlark.app"), nullptr);
    EXPECT_EQ(install(), Updater::didNotPassCheck());
    untouched("a copy whose build can't be read");

    imageHolds(QStringLiteral("Dustlark.app"));
    failWith(codesign, "verify.status", 3);
    EXPECT_EQ(install(), Updater::didNotPassCheck());
    untouched("signature");

    failWith(ditto, "ditto.status", 1);
    const auto copyFailed = install();
    EXPECT_TRUE(copyFailed && copyFailed->contains(QStringLiteral("No space left on device")));
    untouched("copy");

    failWith(hdiutil, "attach.status", 1);
    const QStringList before = verbs();
    EXPECT_EQ(install(), Updater::couldNotInstall(QStringLiteral("hdiutil: attach failed - image not recognized")));
    EXPECT_EQ(verbs().mid(before.size()), (QStringList{"imageinfo", "attach"})) << "nothing to detach";
    untouched("attach");

    failWith(hdiutil, "licence", 1);
    const QStringList attached = verbs();
    EXPECT_EQ(install(), Updater::couldNotInstall(QStringLiteral("its disk image asks to accept a licence agreement; download it from the website instead")));
    EXPECT_EQ(verbs().mid(attached.size()), QStringList{"imageinfo"}) << "never attached";
    untouched("licence");
}

TEST_F(ImageInstallTest, AnImageLeftAttachedIsReportedButTheSwapNeverStarts)
{
    imageHolds(QStringLiteral("Dustlark.app"));
    failWith(hdiutil, "detach.status", 16);
    const auto result = install();
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->contains(QStringLiteral("Resource busy")));
    EXPECT_EQ(runningBinary(), QByteArray("old"));
    EXPECT_EQ(applicationsFolder(), QStringList{QStringLiteral("Dustlark.app")});
}

TEST_F(ImageInstallTest, AnAttachThatRanOutOfTimeIsDetached)
{
    imageHolds(QStringLiteral("Dustlark.app"));
    failWith(hdiutil, "attach.hang", 1);
    tools.attachTimeLimit = std::chrono::milliseconds(3000);
    const auto result = install();
    EXPECT_EQ(result, Updater::couldNotInstall(QStringLiteral("The tool didn't answer in time.")));
    EXPECT_EQ(verbs(), (QStringList{"imageinfo", "attach", "detach"}));
    const QString mountPoint = hdiutil.calls().value(1).section(QLatin1Char(' '), -1);
    EXPECT_EQ(hdiutil.calls().value(2), QStringLiteral("detach %1 -force").arg(mountPoint));
    EXPECT_EQ(runningBinary(), QByteArray("old"));
}

TEST_F(ImageInstallTest, ARunningCopyThatCannotBeMovedAsideStaysAndTheCopyGoes)
{
    imageHolds(QStringLiteral("Dustlark.app"));
    QDir(appPath()).removeRecursively();  // moved away by someone else meanwhile
    const auto result = install();
    EXPECT_EQ(result, Updater::couldNotInstall(QStringLiteral("No such file or directory")));
    EXPECT_TRUE(applicationsFolder().isEmpty()) << "the staged copy was removed";
}

TEST_F(ImageInstallTest, ReadsTheOwnSigningTeam)
{
    EXPECT_EQ(ImageInstall::ownTeam(appPath(), tools), std::nullopt) << "unsigned: TeamIdentifier=not set";
    QFile team(QFileInfo(codesign.path()).dir().filePath(QStringLiteral("team")));
    ASSERT_TRUE(team.open(QIODevice::WriteOnly));
    team.write("AB12CD34EF\n");
    team.close();
    EXPECT_EQ(ImageInstall::ownTeam(appPath(), tools), QStringLiteral("AB12CD34EF"));
}
