#include "scan/AppFixture.h"
#include "scan/AppNames.h"
#include "support/TempTree.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

// Two application folders as a Mac has them: apps directly inside, apps grouped in a vendor
// folder, an app with a binary Info.plist, and bundles that tell nothing.
class AppNamesTest : public ::testing::Test {
protected:
    AppNamesTest()
    {
        tree.file(QStringLiteral("Applications/Visual Studio Code.app/Contents/Info.plist"),
                  plistXml({"CFBundleIdentifier", "com.microsoft.VSCode", "CFBundleName", "Code", "CFBundleDisplayName", "Visual Studio Code"}));
        tree.file(QStringLiteral("Applications/Arc.app/Contents/Info.plist"),
                  plistXml({"CFBundleIdentifier", "company.thebrowser.Browser", "CFBundleName", "Arc"}));
        tree.file(QStringLiteral("Applications/Nameless.app/Contents/Info.plist"), plistXml({"CFBundleIdentifier", "com.example.nameless"}));
        tree.file(QStringLiteral("Applications/Microsoft Office/Microsoft Word.app/Contents/Info.plist"),
                  plistXml({"CFBundleIdentifier", "com.microsoft.Word", "CFBundleName", "Microsoft Word"}));
        tree.file(QStringLiteral("Applications/Broken.app/Contents/Info.plist"), QByteArray("garbage"));
        tree.dir(QStringLiteral("Applications/Empty.app/Contents"));
        QFile::copy(QStringLiteral(DUSTLARK_FIXTURES "/plists/BinaryInfo.plist"),
                    tree.dir(QStringLiteral("home/Applications/Binary.app/Contents")) + QStringLiteral("/Info.plist"));
        directory = AppNames::read({tree.path(QStringLiteral("Applications")), tree.path(QStringLiteral("home/Applications")),
                                    tree.path(QStringLiteral("missing"))});
    }

    TempTree tree;
    AppNames::Directory directory;
};

}  // namespace

TEST_F(AppNamesTest, FoldersAreNamedAfterTheirApp)
{
    EXPECT_EQ(directory.size(), 5) << "every bundle that names itself";
    const struct {
        const char* folder;
        const char* expected;
    } cases[] = {
        {"com.microsoft.VSCode", "Visual Studio Code"},          // display name beats bundle name
        {"com.microsoft.vscode", "Visual Studio Code"},          // identifiers ignore case
        {"com.microsoft.VSCode.ShipIt", "Visual Studio Code"},   // an app's helper
        {"company.thebrowser.Browser", "Arc"},
        {"com.microsoft", "microsoft"},                          // a vendor is not an app
        {"com.unknown.SomeTool", "SomeTool"},                    // not installed
        {"Homebrew", "Homebrew"},                                // plain names stay
        {"Yandex.Disk", "Yandex.Disk"},
        {"fsck_hfs.log", "fsck_hfs.log"},
        {"com.microsoft.Word", "Microsoft Word"},                // in a vendor folder
        {"com.example.binary", "Bïnary Éxample"},                // a binary Info.plist
        {"com.example.nameless", "Nameless"},                    // no name given: the bundle's
        {"com..broken", "com..broken"},
        {"com.example App.x", "com.example App.x"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(AppNames::name(QString::fromUtf8(c.folder), directory).toStdString(), c.expected) << c.folder;
}
