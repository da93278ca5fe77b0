#include "scan/PropertyList.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

namespace {

const QByteArray xmlInfo = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
    <key>WorkspacePath</key>
    <string>/Users/a/Projects/Shop/Shop.xcworkspace</string>
    <key>Build</key>
    <integer>7</integer>
    <key>ApplicationProperties</key>
    <dict>
        <key>CFBundleIdentifier</key>
        <string>com.example.Shop</string>
    </dict>
</dict>
</plist>
)";

const QString binaryFixture = QStringLiteral(DUSTLARK_FIXTURES "/plists/BinaryInfo.plist");

}  // namespace

TEST(PropertyListTest, ReadsTopLevelAndNestedStringsFromXml)
{
    TempTree tree;
    const auto list = PropertyList::read(tree.file(QStringLiteral("info.plist"), xmlInfo));
    ASSERT_TRUE(list.has_value());
    EXPECT_EQ(list->string(QStringLiteral("WorkspacePath")), QStringLiteral("/Users/a/Projects/Shop/Shop.xcworkspace"));
    EXPECT_EQ(list->string(QStringList{QStringLiteral("ApplicationProperties"), QStringLiteral("CFBundleIdentifier")}),
              QStringLiteral("com.example.Shop"));
    EXPECT_FALSE(list->string(QStringLiteral("Missing")).has_value());
    EXPECT_FALSE(list->string(QStringLiteral("Build")).has_value());  // an integer
    EXPECT_FALSE(list->string(QStringLiteral("ApplicationProperties")).has_value());  // a dictionary
    // A key path that runs through a string instead of a dictionary.
    EXPECT_FALSE(list->string(QStringList{QStringLiteral("WorkspacePath"), QStringLiteral("x")}).has_value());
}

TEST(PropertyListTest, ReadsBinaryListsWrittenByAnotherTool)
{
    const auto list = PropertyList::read(binaryFixture);
    ASSERT_TRUE(list.has_value());
    EXPECT_EQ(list->string(QStringLiteral("CFBundleIdentifier")), QStringLiteral("com.example.Binary"));
    EXPECT_EQ(list->string(QStringLiteral("CFBundleDisplayName")), QString::fromUtf8("Bïnary Éxample"));
    EXPECT_EQ(PropertyList::string(binaryFixture, QStringLiteral("CFBundleName")), QStringLiteral("Binary Example"));
}

TEST(PropertyListTest, UnreadableOrBrokenFilesGiveNothing)
{
    TempTree tree;
    EXPECT_FALSE(PropertyList::read(tree.path(QStringLiteral("absent.plist"))).has_value());
    EXPECT_FALSE(PropertyList::read(tree.file(QStringLiteral("text.plist"), QByteArray("not a property list"))).has_value());
    EXPECT_FALSE(PropertyList::read(tree.file(QStringLiteral("cut.plist"), xmlInfo.left(120))).has_value());
    EXPECT_FALSE(PropertyList::read(tree.dir(QStringLiteral("folder.plist"))).has_value());
    EXPECT_FALSE(PropertyList::string(tree.path(QStringLiteral("absent.plist")), QStringLiteral("WorkspacePath")).has_value());
}
