#include "scan/AppNames.h"
#include "support/TempTree.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

QByteArray infoPlist(const QString& identifier, const QString& name, const QString& displayName = {})
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n";
    xml += "<key>CFBundleIdentifier</key><string>" + identifier.toUtf8() + "</string>\n";
    if (!name.isEmpty())
        xml += "<key>CFBundleName</key><string>" + name.toUtf8() + "</string>\n";
    if (!displayName.isEmpty())
        xml += "<key>CFBundleDisplayName</key><string>" + displayName.toUtf8() + "</string>\n";
    return xml + "</dict>\n</plist>\n";
}

// Two application folders as a Mac has them: apps directly inside, apps grouped in a vendor
// folder, an app with a binary Info.plist, and bundles that tell nothing.
class AppNamesTest : public ::testing::Test {
protected:
    AppNamesTest()
    {
        tree.file(QStringLiteral("Applications/Visual Studio Code.app/Contents/Info.plist"),
                  infoPlist(QStringLiteral("com.microsoft.VSCode"), QStringLiteral("Code"), QStringLiteral("Visual Studio Code")));
        tree.file(QStringLiteral("Applications/Arc.app/Contents/Info.plist"),
                  infoPlist(QStringLiteral("company.thebrowser.Browser"), QStringLiteral("Arc")));
        tree.file(QStringLiteral("Applications/Nameless.app/Contents/Info.plist"),
                  infoPlist(QStringLiteral("com.example.nameless"), QString()));
        tree.file(QStringLiteral("Applications/Microsoft Office/Microsoft Word.app/Contents/Info.plist"),
                  infoPlist(QStringLiteral("com.microsoft.Word"), QStringLiteral("Microsoft Word")));
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
