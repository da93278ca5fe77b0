#include "WindowFixture.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/SafeListPage.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(SafeListPage, RemovingAnItemTakesItOffTheListAndScansItsCategoryAgain)
{
    const CleanupItem kept = rowAt(CategoryID::projects, "/Users/a/p/build", 2'000'000);
    const CleanupItem other = rowAt(CategoryID::logs, "/Users/a/Library/Logs/x", 1'000);
    auto scanner = std::make_shared<FakeScanner>(QList{CategoryID::projects}, ScanOutputs{{CategoryID::projects, found({kept})}});
    ModelFixture fixture({scanner});
    fixture.model().apply({{CategoryID::projects, found({kept})}}, false);
    SafeListPage page(&fixture.model());
    EXPECT_TRUE(showsLabel(page, "No items are on the list."));

    fixture.model().addToSafeList(kept);
    fixture.model().addToSafeList(other);
    EXPECT_EQ(page.shownItemIds(), QStringList({other.id, kept.id})) << "newest first";
    EXPECT_TRUE(showsLabel(page, "Project Builds"));
    EXPECT_TRUE(fixture.model().result(CategoryID::projects).items.isEmpty());

    const QList<QPushButton*> removeButtons = buttonsTitled(page, "Remove from List");
    ASSERT_EQ(removeButtons.size(), 2);
    removeButtons.last()->click();  // the row of `kept`

    EXPECT_EQ(page.shownItemIds(), QStringList({other.id}));
    EXPECT_EQ(fixture.settings().safeItems(), QStringList({other.id}));
    ASSERT_TRUE(waitUntil([&] { return fixture.model().result(CategoryID::projects).items.size() == 1; }))
        << "the category was scanned again";
    EXPECT_EQ(scanner->runs(), 1);
}

TEST(SafeListPage, AFolderAddedThroughThePickerIsListedAndHidesWhatItHolds)
{
    ModelFixture fixture;
    fixture.model().apply({{CategoryID::largeFiles, found({rowAt(CategoryID::largeFiles, "/Users/a/Movies/raw/take1.mov"),
                                                      rowAt(CategoryID::largeFiles, "/Users/a/Movies/rawcut.mov")})}},
                          false);
    SafeListPage page(&fixture.model());
    EXPECT_TRUE(showsLabel(page, "No folders are on the list."));
    QString answer = "/Users/a/Movies/raw/";
    page.setFolderPicker([&answer](QWidget*) { return answer; });

    page.folderEditor()->addFolder();
    answer.clear();  // the person cancels the second time
    page.folderEditor()->addFolder();

    EXPECT_EQ(page.folderEditor()->folders(), QStringList({"/Users/a/Movies/raw"}));
    EXPECT_EQ(fixture.settings().safeFolders(), page.folderEditor()->folders());
    const QList<CleanupItem> left = fixture.model().result(CategoryID::largeFiles).items;
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left.first().id, "/Users/a/Movies/rawcut.mov") << "a sibling with a longer name is not inside";

    page.folderEditor()->list()->setCurrentRow(0);
    buttonsTitled(page, "Remove").first()->click();
    EXPECT_TRUE(fixture.settings().safeFolders().isEmpty());
}

TEST(SafeListPage, AnItemWhoseStoredDetailsAreLostStillShowsByItsId)
{
    QTemporaryDir dir;
    QSettings preferences(dir.filePath("prefs.ini"), QSettings::IniFormat);
    preferences.setValue("ignoredItems", QStringList({"docker:buildcache", "/Users/a/p/dist"}));
    SettingsStore settings(&preferences, "/Users/a");
    StatsStore stats(&preferences);
    AppModel model(&settings, &stats);
    SafeListPage page(&model);
    EXPECT_EQ(page.shownItemIds(), QStringList({"/Users/a/p/dist", "docker:buildcache"}));
    EXPECT_TRUE(showsLabel(page, "docker:buildcache"));

    buttonsTitled(page, "Remove from List").first()->click();
    EXPECT_EQ(settings.safeItems(), QStringList({"docker:buildcache"}));
}
