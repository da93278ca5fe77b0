// Emptying the Trash from its category over the real window: the question before, the progress
// sheet, Stop, and the quit question, which waits for the emptying as it waits for a cleanup.
#include "WindowFixture.h"
#include "actions/FreedesktopTrash.h"
#include "support/Wait.h"
#include "ui/CategoryPage.h"
#include "ui/TrashProgress.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>

#include <atomic>
#include <gtest/gtest.h>

namespace {

// An emptying of three items that removes one, then holds until released or stopped.
struct HeldEmptying {
    std::shared_ptr<std::atomic<bool>> release = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<std::atomic<int>> runs = std::make_shared<std::atomic<int>>(0);

    void install(AppModel::Services& services) const
    {
        services.emptyTrash = [release = release, runs = runs](const FreedesktopTrash::EmptyProgress& progress,
                                                               const CancellationToken& stop) -> std::optional<QString> {
            ++*runs;
            progress(0, 3);
            progress(1, 3);
            while (!*release && !stop.isCancelled())
                QThread::msleep(2);
            if (stop.isCancelled())
                return FreedesktopTrash::stoppedSentence();
            progress(3, 3);
            return std::nullopt;
        };
    }
};

CleanupItem trashRow()
{
    CleanupItem row;
    row.id = "trash";
    row.category = CategoryID::trash;
    row.title = "Trash";
    row.size = 4'000;
    row.removal = Removal{Removal::EmptyTrash{}};
    return row;
}

TrashProgress* progressSheet()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* sheet = qobject_cast<TrashProgress*>(widget); sheet && sheet->isVisible())
            return sheet;
    }
    return nullptr;
}

// Clicks Empty Trash, agrees, and waits until the first item is reported gone.
TrashProgress* startEmptying(WindowFixture& fixture, CategoryPage& page)
{
    page.emptyTrashButton()->click();
    WindowFixture::answer(fixture.question(), "Empty Trash");
    if (!waitUntil([] { return progressSheet() && progressSheet()->counter()->text() == "1 of 3 items"; }))
        return nullptr;
    return progressSheet();
}

bool isQuitQuestion(const QMessageBox* box)
{
    return box && box->text() == "Quit while Dustlark is working?";
}

}  // namespace

TEST(EmptyTrash, AsksThenEmptiesOrReportsWhy)
{
    WindowFixture fixture;
    std::atomic<int> emptied{0};
    CategoryPage* page = fixture.open(CategoryID::trash, {trashRow()}, [&](AppModel::Services& services) {
        services.emptyTrash = [&emptied](const FreedesktopTrash::EmptyProgress&, const CancellationToken&) -> std::optional<QString> {
            if (++emptied == 1)
                return std::nullopt;
            return QStringLiteral("Finder isn't allowed to empty the Trash.");
        };
    });
    ASSERT_TRUE(page && page->emptyTrashButton()->isVisible());
    EXPECT_FALSE(page->selectAll()->isEnabled());

    page->emptyTrashButton()->click();
    ASSERT_TRUE(fixture.question());
    EXPECT_EQ(fixture.question()->informativeText(), "Everything in the Trash is deleted for good, including files you put there yourself. This can't be undone.");
    WindowFixture::answer(fixture.question(), "Cancel");
    EXPECT_EQ(emptied, 0);

    page->emptyTrashButton()->click();
    WindowFixture::answer(fixture.question(), "Empty Trash");
    ASSERT_TRUE(waitUntil([&] { return emptied == 1 && !fixture.model().trashState().isEmptying; }));
    EXPECT_EQ(fixture.question(), nullptr);

    // The Trash is looked at again after emptying; the button asks once that is done.
    ASSERT_TRUE(waitUntil([&] { return page->emptyTrashButton()->isVisible() && page->emptyTrashButton()->isEnabled(); }));
    page->emptyTrashButton()->click();
    ASSERT_TRUE(fixture.question());
    WindowFixture::answer(fixture.question(), "Empty Trash");
    ASSERT_TRUE(waitUntil([&] { return fixture.question() != nullptr; }));
    EXPECT_EQ(fixture.question()->text(), "Couldn't empty the Trash");
    EXPECT_EQ(fixture.question()->informativeText(), "Finder isn't allowed to empty the Trash.");
}

TEST(EmptyTrash, ShowsItemsRemovedAndStopsBetweenThem)
{
    WindowFixture fixture;
    HeldEmptying emptying;
    CategoryPage* page = fixture.open(CategoryID::trash, {trashRow()}, [&](AppModel::Services& services) {
        emptying.install(services);
    });
    ASSERT_TRUE(page);
    TrashProgress* sheet = startEmptying(fixture, *page);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->bar()->maximum(), 3);
    EXPECT_EQ(sheet->bar()->value(), 1);
    EXPECT_FALSE(page->emptyTrashButton()->isEnabled()) << "a second emptying while one runs";
    sheet->reject();
    EXPECT_TRUE(sheet->isVisible()) << "Escape hid work that goes on";

    sheet->stopButton()->click();
    ASSERT_TRUE(waitUntil([] { return !progressSheet(); }));
    EXPECT_TRUE(fixture.model().trashState().stopRequested);
    EXPECT_FALSE(fixture.model().trashState().isEmptying);
    EXPECT_EQ(fixture.question(), nullptr) << "a stop the person asked for is no failure to report";
    EXPECT_EQ(*emptying.runs, 1);
}

// The question appears as during a cleanup, goes by itself when the emptying ends while it is
// open, and "Stop and Quit" quits once the emptying has stopped.
TEST(EmptyTrash, TheQuitQuestionWaitsForTheEmptyingAndGoesWhenItEnds)
{
    WindowFixture fixture;
    HeldEmptying emptying;
    CategoryPage* page = fixture.open(CategoryID::trash, {trashRow()}, [&](AppModel::Services& services) {
        emptying.install(services);
    });
    ASSERT_TRUE(page);
    ASSERT_TRUE(startEmptying(fixture, *page));
    fixture.window().requestQuit();
    ASSERT_TRUE(waitUntil([&] { return isQuitQuestion(fixture.question()); }));
    EXPECT_TRUE(fixture.window().isVisible());

    *emptying.release = true;
    ASSERT_TRUE(waitUntil([&] { return !fixture.model().trashState().isEmptying; }));
    EXPECT_TRUE(waitUntil([&] { return fixture.question() == nullptr; })) << "the question outlived the work";
    EXPECT_EQ(progressSheet(), nullptr);
    EXPECT_TRUE(fixture.window().isVisible()) << "nobody answered, so nothing quits";

    *emptying.release = false;
    ASSERT_TRUE(startEmptying(fixture, *page));
    fixture.window().requestQuit();
    ASSERT_TRUE(waitUntil([&] { return isQuitQuestion(fixture.question()); }));
    WindowFixture::answer(fixture.question(), "Stop and Quit");
    ASSERT_TRUE(waitUntil([&] { return !fixture.window().isVisible(); }));
    EXPECT_TRUE(fixture.model().trashState().stopRequested);
    EXPECT_FALSE(fixture.model().trashState().isEmptying) << "quit before the emptying had stopped";
}
