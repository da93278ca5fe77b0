// German words are long: at the smallest size the window takes, the sidebar still shows every
// title whole, and the buttons of the category screen show their whole text.
#include "WindowFixture.h"
#include "support/InterfaceLanguage.h"
#include "ui/CategoryPage.h"
#include "ui/Sidebar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QSplitter>
#include <QStyledItemDelegate>

#include <gtest/gtest.h>

namespace {

// The titles the sidebar cuts short: where the style puts a row's text in the room the first
// column leaves it is narrower than the text.
QStringList cutTitles(Sidebar& sidebar)
{
    QStringList cut;
    QStyleOptionViewItem option;
    option.initFrom(&sidebar);
    option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
    option.decorationSize = sidebar.iconSize();
    for (QTreeWidgetItemIterator it(&sidebar); *it; ++it) {
        option.rect = sidebar.visualRect(sidebar.indexFromItem(*it, 0));
        option.text = (*it)->text(0);
        option.icon = (*it)->icon(0);
        option.font = (*it)->font(0);
        option.fontMetrics = QFontMetrics(option.font);
        const QRect text = sidebar.style()->subElementRect(QStyle::SE_ItemViewItemText, &option, &sidebar);
        if (text.width() < option.fontMetrics.horizontalAdvance(option.text))
            cut.append(option.text);
    }
    return cut;
}

QStringList cutButtons(const QWidget& page)
{
    QStringList cut;
    for (QAbstractButton* button : page.findChildren<QAbstractButton*>()) {
        if (button->isVisibleTo(&page) && !button->text().isEmpty() && button->width() < button->sizeHint().width())
            cut.append(button->text());
    }
    return cut;
}

}  // namespace

TEST(GermanLayout, TheSmallestWindowShowsEverySidebarTitleAndButtonWhole)
{
    InterfaceLanguage german(QStringLiteral("de"));
    ASSERT_TRUE(german.installed());
    WindowFixture fixture;
    const CleanupItem row = fixture.addFile(CategoryID::leftovers, "Library/Caches/com.example.gone", 5'000);
    CategoryPage* page = fixture.open(CategoryID::leftovers, {row});
    ASSERT_TRUE(page);
    MainWindow& window = fixture.window();
    window.resize(window.minimumSizeHint());
    QApplication::processEvents();

    auto* sidebar = window.findChild<Sidebar*>();
    ASSERT_TRUE(sidebar);
    // The person may drag the divider as far as it goes: the sidebar at its own smallest width.
    auto* splitter = qobject_cast<QSplitter*>(sidebar->parentWidget());
    ASSERT_TRUE(splitter);
    splitter->setSizes({1, window.width()});
    QApplication::processEvents();
    ASSERT_EQ(sidebar->width(), sidebar->minimumSizeHint().width());
    ASSERT_TRUE(sidebar->itemFor(SidebarDestination::of(CategoryID::leftovers)));
    EXPECT_EQ(sidebar->itemFor(SidebarDestination::of(CategoryID::leftovers))->text(0), "Reste entfernter Apps");
    QStringList titles = cutTitles(*sidebar);
    EXPECT_TRUE(titles.isEmpty()) << "cut short: " << titles.join(", ").toStdString();
    // During a scan the size column holds a size beside the busy glyph, and the titles stay whole.
    sidebar->setCategorySize(CategoryID::packageCaches, QStringLiteral("999,99 GB"));
    sidebar->setCategoryBusy(CategoryID::packageCaches, true);
    QApplication::processEvents();
    titles = cutTitles(*sidebar);
    EXPECT_TRUE(titles.isEmpty()) << "cut short while scanning: " << titles.join(", ").toStdString();
    sidebar->setCategoryBusy(CategoryID::packageCaches, false);
    const QStringList buttons = cutButtons(*page);
    EXPECT_TRUE(buttons.isEmpty()) << "cut short: " << buttons.join(", ").toStdString();
}
