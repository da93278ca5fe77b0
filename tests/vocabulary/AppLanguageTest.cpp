#include "support/SettingsFile.h"
#include "vocabulary/AppLanguage.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

const QString languagesKey = QStringLiteral("AppleLanguages");

void touch(const QString& path)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

TEST(AppLanguage, ChoiceIsStoredAsAOneElementListAndRemovedForTheSystem)
{
    SettingsFile file;
    AppLanguage::choose(*file.settings(), QStringLiteral("de"));
    EXPECT_EQ(file.settings()->value(languagesKey).toStringList(), QStringList{QStringLiteral("de")});
    EXPECT_EQ(AppLanguage::chosen(*file.reopen()), QStringLiteral("de"));

    AppLanguage::choose(*file.settings(), QString());
    EXPECT_FALSE(file.settings()->contains(languagesKey));
    EXPECT_EQ(AppLanguage::chosen(*file.reopen()), QString());

    file.settings()->setValue(languagesKey, 7);
    EXPECT_EQ(AppLanguage::chosen(*file.settings()), QString());
}

TEST(AppLanguage, OffersTheSystemThenEveryTranslation)
{
    QTemporaryDir folder;
    touch(folder.filePath(QStringLiteral("dustlark_en.qm")));
    touch(folder.filePath(QStringLiteral("dustlark_de.qm")));
    touch(folder.filePath(QStringLiteral("qtbase_fr.qm")));
    const QList<AppLanguage::Option> expected = {
        {QString(), QStringLiteral("System Language")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("en"), QStringLiteral("English")},
    };
    EXPECT_EQ(AppLanguage::offered(folder.path()), expected);
}

// fixtures/i18n/dustlark_de.qm is lrelease's output for dustlark_de.ts beside it: one German
// message, enough to see the translator at work.
TEST(AppLanguage, LaunchInstallsTheChosenTranslationAndRemembersTheChoice)
{
    const QString fixtures = QStringLiteral(DUSTLARK_FIXTURES "/i18n");
    SettingsFile file;
    // The test runner's own English catalogue stays; only what this test installs goes again.
    const QList<QTranslator*> before = QCoreApplication::instance()->findChildren<QTranslator*>();
    const auto added = [&] {
        QList<QTranslator*> now = QCoreApplication::instance()->findChildren<QTranslator*>();
        now.removeIf([&](QTranslator* translator) { return before.contains(translator); });
        return now;
    };
    AppLanguage::choose(*file.settings(), QStringLiteral("de"));
    ASSERT_TRUE(AppLanguage::loadAtLaunch(*file.reopen(), fixtures));
    EXPECT_EQ(AppLanguage::launchChoice(), QStringLiteral("de"));
    EXPECT_EQ(AppLanguage::offered(fixtures).first().title, QStringLiteral("Systemsprache"));
    for (QTranslator* translator : added()) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
    EXPECT_EQ(AppLanguage::offered(fixtures).first().title, QStringLiteral("System Language"));

    // Without a translation for the choice nothing is installed, yet the choice is what launched.
    AppLanguage::choose(*file.settings(), QStringLiteral("fr"));
    EXPECT_FALSE(AppLanguage::loadAtLaunch(*file.reopen(), fixtures));
    EXPECT_EQ(AppLanguage::launchChoice(), QStringLiteral("fr"));
    EXPECT_TRUE(added().isEmpty());
}

}  // namespace
