#include "report/ReportCommand.h"
#include "support/SettingsFile.h"

#include <gtest/gtest.h>

namespace {

TEST(StoredProtection, SafeFoldersStayApartFromEveryProtectedPath)
{
    SettingsFile file;
    QSettings* settings = file.settings();
    settings->setValue(QStringLiteral("scanRoots"), QStringList{QStringLiteral("/code"), QStringLiteral("/Volumes/Work")});
    settings->setValue(QStringLiteral("safeFolders"), QStringList{QStringLiteral("/code/keep")});
    settings->setValue(QStringLiteral("ignoredItems"), QStringList{QStringLiteral("/code/big.iso"), QStringLiteral("docker:buildcache")});

    const ReportCommand::Protection protection = ReportCommand::storedProtection(file.reopen());
    EXPECT_EQ(protection.scanRoots, (QStringList{QStringLiteral("/code"), QStringLiteral("/Volumes/Work")}));
    EXPECT_EQ(protection.safeFolders, QStringList{QStringLiteral("/code/keep")});
    EXPECT_EQ(protection.protectedPaths, (QStringList{QStringLiteral("/code/keep"), QStringLiteral("/code/big.iso")}));
    EXPECT_EQ(protection.safeItemIds, (QSet<QString>{QStringLiteral("/code/big.iso"), QStringLiteral("docker:buildcache")}));
}

}  // namespace
