#include "WindowFixture.h"
#include "format/ByteCount.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/OverviewPage.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace {

// The texts of the page's labels a person could see now.
QStringList visibleTexts(const QWidget& page)
{
    QStringList texts;
    for (const QLabel* label : page.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&page))
            texts.append(label->text());
    }
    return texts;
}

QStringList rowTexts(const QTreeWidgetItem* row)
{
    return {row->text(0), row->text(1), row->text(2)};
}

}  // namespace

TEST(OverviewPage, HistoryShowsItsPlaceholderUntilTheFirstCleanupThenNewestFirst)
{
    ModelFixture fixture;
    OverviewPage page(&fixture.model());
    EXPECT_TRUE(showsLabel(page, "Your first cleanup will show up here."));
    EXPECT_FALSE(page.history()->isVisibleTo(&page));

    fixture.stats().recordCleanup(3'000'000, 500'000, 4);
    fixture.stats().recordCleanup(1'000, 0, 1);

    EXPECT_FALSE(showsLabel(page, "Your first cleanup will show up here."));
    ASSERT_TRUE(page.history()->isVisibleTo(&page));
    ASSERT_EQ(page.history()->topLevelItemCount(), 2);
    EXPECT_EQ(rowTexts(page.history()->topLevelItem(0)), QStringList({"just now", "1 KB", "1 item"}));
    EXPECT_EQ(rowTexts(page.history()->topLevelItem(1)), QStringList({"just now", "3.5 MB", "4 items"}));
    const QStringList texts = visibleTexts(page);
    EXPECT_TRUE(texts.contains(ByteCount::format(3'501'000))) << "total cleaned";
    EXPECT_TRUE(texts.contains("2")) << "cleanups";
    EXPECT_TRUE(texts.contains("5")) << "items removed";
}

TEST(OverviewPage, GroupsShowWhatTheirScannedCategoriesFound)
{
    ModelFixture fixture;
    OverviewPage page(&fixture.model());
    EXPECT_EQ(visibleTexts(page).count("Not scanned yet"), 2);

    fixture.model().apply({{CategoryID::projects, found({rowAt(CategoryID::projects, "/Users/a/p/build", 2'000'000)})},
                           {CategoryID::docker, found({rowAt(CategoryID::docker, "/Users/a/d", 500'000)})},
                           {CategoryID::logs, found({rowAt(CategoryID::logs, "/Users/a/l", 7'000'000)})}},
                          false);

    const QStringList texts = visibleTexts(page);
    EXPECT_TRUE(texts.contains("2.5 MB")) << texts.join(" | ").toStdString();
    EXPECT_TRUE(texts.contains("7 MB")) << texts.join(" | ").toStdString();
    EXPECT_EQ(texts.count("Found to review"), 2);
}

TEST(OverviewPage, FullDiskAccessBannerAppearsOnlyWithoutAccessAndItsButtonAsksTheWindow)
{
    ModelFixture fixture;
    AppModel::Services services = AppModel::defaultServices();
    services.readSystemState = [](const QString&) { return AppModel::SystemState{1, 2, false}; };
    AppModel model(&fixture.settings(), &fixture.stats(), services);
    OverviewPage page(&model);
    int opened = 0;
    page.setOpenFullDiskAccess([&opened] { ++opened; });
    QPushButton* button = buttonsTitled(page, "Open Privacy Settings…").value(0);
    ASSERT_TRUE(button);
    EXPECT_FALSE(button->isVisibleTo(&page)) << "access is assumed until the system says otherwise";

    model.refreshSystemState();
    ASSERT_TRUE(waitUntil([&] { return button->isVisibleTo(&page); }));
    button->click();
    EXPECT_EQ(opened, 1);
}
