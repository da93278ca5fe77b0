#include "vocabulary/SharedScanFolders.h"

#include <gtest/gtest.h>

TEST(SharedScanFolders, PublishesOnlyOtherVolumesAndReplacesTheList)
{
    SharedScanFolders::publish({QStringLiteral("/Users/ada"), QStringLiteral("/Volumes/Work/code"),
                                QStringLiteral("/VolumesX/a"), QStringLiteral("/Volumes/Archive")});
    EXPECT_EQ(SharedScanFolders::current(),
              (QStringList{QStringLiteral("/Volumes/Work/code"), QStringLiteral("/Volumes/Archive")}));
    SharedScanFolders::publish({QStringLiteral("/Users/ada")});
    EXPECT_TRUE(SharedScanFolders::current().isEmpty());
}
