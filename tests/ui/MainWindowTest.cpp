#include "ui/CategoryPage.h"
#include "ui/MainWindow.h"
#include "ui/Sidebar.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace {

QStringList childTitles(QTreeWidgetItem* heading)
{
    QStringList titles;
    for (int i = 0; i < heading->childCount(); ++i)
        titles.append(heading->child(i)->text(0));
    return titles;
}

QTreeWidgetItem* heading(Sidebar* sidebar, const QString& title)
{
    const auto found = sidebar->findItems(title, Qt::MatchExactly, 0);
    return found.isEmpty() ? nullptr : found.first();
}

}  // namespace

TEST(MainWindow, SidebarListsBothGroupsWithEveryCategoryInOrder)
{
    MainWindow window;
    QTreeWidgetItem* developer = heading(window.sidebar(), "Developer");
    QTreeWidgetItem* everyday = heading(window.sidebar(), "Everyday");
    ASSERT_TRUE(developer && everyday);

    QStringList expected;
    for (CategoryID category : Categories::allCases())
        expected.append(Categories::title(category));
    EXPECT_EQ(childTitles(developer) + childTitles(everyday), expected);
    EXPECT_EQ(window.sidebar()->indexOfTopLevelItem(developer) + 1, window.sidebar()->indexOfTopLevelItem(everyday));
}

TEST(MainWindow, ChoosingACategoryShowsItsEmptyState)
{
    MainWindow window;
    EXPECT_EQ(window.destination().kind, SidebarDestination::Kind::overview);

    QTreeWidgetItem* everyday = heading(window.sidebar(), "Everyday");
    ASSERT_TRUE(everyday);
    window.sidebar()->setCurrentItem(everyday->child(everyday->childCount() - 1));

    EXPECT_EQ(window.destination(), SidebarDestination::of(CategoryID::trash));
    const QList<QLabel*> labels = window.categoryPage()->findChildren<QLabel*>();
    QStringList texts;
    for (QLabel* label : labels)
        texts.append(label->text());
    EXPECT_TRUE(texts.contains("Trash"));
    EXPECT_TRUE(texts.contains("Scan to see what's here."));
    EXPECT_TRUE(texts.contains(Categories::explanation(CategoryID::trash)));
}
