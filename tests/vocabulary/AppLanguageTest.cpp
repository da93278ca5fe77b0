#include "support/SettingsFile.h"
#include "vocabulary/AppLanguage.h"

#include <QFile>
#include <QLocale>
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

TEST(AppLanguage, TheChoiceElseTheFirstPreferredLanguageWithATextDecides)
{
    const QStringList catalogued{QStringLiteral("de")};
    const auto inForce = [&](const QString& choice, const QStringList& preferred) {
        return AppLanguage::inForce(choice, preferred, catalogued).name();
    };
    EXPECT_EQ(inForce("de", {"pl-PL"}), "de_DE") << "a choice wins over the system";
    EXPECT_EQ(inForce("en", {"de-DE"}), "en_US");
    EXPECT_EQ(inForce("", {"fr-FR", "de-CH", "en-US"}), "de_CH") << "the first with a catalogue, territory kept";
    EXPECT_EQ(inForce("", {"en-GB", "de-DE"}), "en_GB") << "English, the source, needs no catalogue";
    EXPECT_EQ(inForce("", {"pl-PL", "fr-FR"}), "pl_PL") << "none carried: the first, its texts English";
    EXPECT_EQ(inForce("", {}), "C");
}

// fixtures/i18n/dustlark_de.qm is lrelease's output for dustlark_de.ts beside it: one German
// message, enough to see the translator at work.
TEST(AppLanguage, LaunchInstallsTheChosenTranslationAndMakesItTheDefaultLocale)
{
    const QString fixtures = QStringLiteral(DUSTLARK_FIXTURES "/i18n");
    SettingsFile file;
    // The test runner's own English catalogue stays; only what this test installs goes again.
    const QList<QTranslator*> before = QCoreApplication::instance()->findChildren<QTranslator*>();
    const auto undo = [&] {
        QList<QTranslator*> now = QCoreApplication::instance()->findChildren<QTranslator*>();
        now.removeIf([&](QTranslator* translator) { return before.contains(translator); });
        for (QTranslator* translator : now) {
            QCoreApplication::removeTranslator(translator);
            delete translator;
        }
        QLocale::setDefault(QLocale::c());
    };
    AppLanguage::choose(*file.settings(), QStringLiteral("de"));
    const AppLanguage::Launch german = AppLanguage::loadAtLaunch(*file.reopen(), fixtures);
    EXPECT_TRUE(german.translated);
    EXPECT_EQ(german.choice, QStringLiteral("de"));
    EXPECT_EQ(QLocale().language(), QLocale::German) << "sizes and dates follow the language in force";
    EXPECT_EQ(AppLanguage::offered(fixtures).first().title, QStringLiteral("Systemsprache"));
    undo();
    EXPECT_EQ(AppLanguage::offered(fixtures).first().title, QStringLiteral("System Language"));

    // Without a translation for the choice only English is there, yet the choice is what launched.
    AppLanguage::choose(*file.settings(), QStringLiteral("fr"));
    const AppLanguage::Launch french = AppLanguage::loadAtLaunch(*file.reopen(), fixtures);
    EXPECT_FALSE(french.translated);
    EXPECT_EQ(french.choice, QStringLiteral("fr"));
    EXPECT_EQ(AppLanguage::offered(fixtures).first().title, QStringLiteral("System Language"));
    undo();
}

}  // namespace
