#include "TestEnvironment.h"
#include "vocabulary/AppLanguage.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    TestEnvironment environment;
    QCoreApplication app(argc, argv);
    AppLanguage::installEnglish();  // singular and plural of counted texts, as the app has them
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
