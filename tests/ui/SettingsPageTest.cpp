#include "WindowFixture.h"
#include "model/SettingsStore.h"
#include "support/ModelFixture.h"
#include "ui/SettingsPage.h"
#include "ui/UpdateBox.h"

#include <QComboBox>
#include <QLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct SettingsFixture {
    QTemporaryDir dir;
    QSettings preferences{dir.filePath("prefs.ini"), QSettings::IniFormat};
    SettingsStore settings{&preferences, "/Users/a"};
    QList<AppLanguage::Option> languages{{"", "System Language"}, {"de", "Deutsch"}, {"en", "English"}};
};

}  // namespace

TEST(SettingsPage, ScanFoldersAreAddedThroughThePickerAndTheLastOneRemovedLeavesHome)
{
    SettingsFixture fixture;
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    page.setFolderPicker([](QWidget*) { return QStringLiteral("/Volumes/Work/code"); });
    EXPECT_EQ(page.scanFolders()->folders(), QStringList({"/Users/a"}));

    page.scanFolders()->addFolder();
    EXPECT_EQ(fixture.settings.scanRoots(), QStringList({"/Users/a", "/Volumes/Work/code"}));
    EXPECT_EQ(page.scanFolders()->folders(), fixture.settings.scanRoots());

    QPushButton* remove = buttonsTitled(page, "Remove").value(0);
    ASSERT_TRUE(remove);
    EXPECT_FALSE(remove->isEnabled()) << "nothing is selected";
    for (const QString& folder : QStringList{"/Users/a", "/Volumes/Work/code"}) {
        page.scanFolders()->list()->setCurrentRow(int(page.scanFolders()->folders().indexOf(folder)));
        remove->click();
    }
    EXPECT_EQ(fixture.settings.scanRoots(), QStringList({"/Users/a"}));
}

TEST(SettingsPage, ChoosingALanguageStoresItAndOffersARelaunch)
{
    SettingsFixture fixture;
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    page.setRelaunch([] { return false; });
    EXPECT_EQ(page.languagePicker()->currentText(), "System Language");
    EXPECT_FALSE(page.relaunchButton()->isVisibleTo(&page)) << "the language in force is the chosen one";

    page.languagePicker()->setCurrentIndex(1);
    emit page.languagePicker()->activated(1);
    EXPECT_EQ(AppLanguage::chosen(fixture.preferences), "de");
    ASSERT_TRUE(page.relaunchButton()->isVisibleTo(&page));

    page.relaunchButton()->click();
    EXPECT_TRUE(showsLabel(page, "Dustlark couldn't relaunch. Quit it and open it again."));

    page.chooseLanguage("");
    EXPECT_FALSE(fixture.preferences.contains("AppleLanguages"));
    EXPECT_FALSE(page.relaunchButton()->isVisibleTo(&page));
}

TEST(SettingsPage, AStoredLanguageWithoutTranslationStaysSelected)
{
    SettingsFixture fixture;
    AppLanguage::choose(fixture.preferences, "fr");
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    EXPECT_EQ(page.languagePicker()->currentData().toString(), "fr");
    EXPECT_EQ(page.languagePicker()->count(), 4);
}

TEST(SettingsPage, OffersTheUpdateCheckAboveTheFreeSpace)
{
    SettingsFixture fixture;
    ModelFixture model;
    SettingsPage page(&fixture.settings, &fixture.preferences, fixture.languages);
    page.showUpdates(&model.model());
    const QList<UpdateBox*> boxes = page.findChildren<UpdateBox*>();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0]->checkButton()->text(), QStringLiteral("Check for Updates"));
    EXPECT_TRUE(page.layout()->itemAt(page.layout()->count() - 1)->spacerItem()) << "the stretch stays last";
}
