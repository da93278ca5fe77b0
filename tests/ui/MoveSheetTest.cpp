// The move sheet over the real window and model, moving to /dev/shm (a second file system)
// through the real mover. Its pictures for the docs come from scripts/screenshots.sh.
#include "WindowFixture.h"
#include "support/RealMover.h"
#include "support/Wait.h"
#include "ui/CategoryListModel.h"
#include "ui/CategoryPage.h"
#include "ui/MoveDestinationPage.h"
#include "ui/MoveOutcomePage.h"
#include "ui/MoveProgressPage.h"
#include "ui/MoveSheet.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/stat.h>

namespace {

const QString menuEntry = QStringLiteral("Move to Another Disk…");

bool menuOffersMove(CategoryPage& page, const QModelIndex& index)
{
    std::unique_ptr<QMenu> menu(page.makeRowMenu(index));
    for (QAction* action : menu->actions()) {
        if (action->text() == menuEntry)
            return true;
    }
    return false;
}

bool onItsOwnDisk(const QString& folder, const QString& other)
{
    struct stat a {}, b {};
    return ::stat(qPrintable(folder), &a) == 0 && ::stat(qPrintable(other), &b) == 0 && a.st_dev != b.st_dev;
}

MoveSheet* openSheet(WindowFixture& fixture, CategoryPage& page, const QString& id)
{
    std::unique_ptr<QMenu> menu(page.makeRowMenu(fixture.rowOf(id)));
    for (QAction* action : menu->actions()) {
        if (action->text() == menuEntry)
            action->trigger();
    }
    return fixture.window().findChild<MoveSheet*>();
}

// The wrapped texts of a page that have less height than their lines need.
QStringList cutTexts(const QWidget& page)
{
    QStringList cut;
    for (QLabel* label : page.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&page) && label->wordWrap() && label->height() < label->heightForWidth(label->width()))
            cut.append(label->text());
    }
    return cut;
}

class MoveSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!disk.isValid() || !onItsOwnDisk(disk.path(), fixture.home().root()))
            GTEST_SKIP() << "these tests need /dev/shm on a file system of its own";
        WindowFixture::emptyTrashFolder();
    }

    WindowFixture fixture;
    QTemporaryDir disk{QStringLiteral("/dev/shm/Backup Disk-XXXXXX")};
};

}  // namespace

TEST_F(MoveSheetTest, ChecksTheFolderThenShowsProgressAndWhereTheItemWent)
{
    fixture.home().file(QStringLiteral("Movies/Wedding Raw/day1.mov"), 3'000'000, 'a');
    fixture.home().file(QStringLiteral("Movies/Wedding Raw/day2.mov"), 2'000'000, 'b');
    CleanupItem footage = fileRow(fixture.home(), CategoryID::largeFiles, QStringLiteral("Movies/Wedding Raw"));
    footage.size = 20'000'000;  // on disk; the files' lengths add up to a quarter of it
    // Copies the first file, then stalls the way a slow disk does until it is stopped.
    const Mover::CopyTool halfway{QStringLiteral("/bin/sh"),
                                  {QStringLiteral("-c"), QStringLiteral("mkdir \"$2\" && cp -p \"$1/day1.mov\" \"$2/\"; sleep 60"),
                                   QStringLiteral("copy")},
                                  std::chrono::minutes(1), {}};
    CategoryPage* page = fixture.open(CategoryID::largeFiles, {footage}, [&](AppModel::Services& services) {
        useCopyTool(services, halfway);
    });
    ASSERT_TRUE(page);
    fixture.window().resize(1100, 700);
    MoveSheet* sheet = openSheet(fixture, *page, footage.id);
    ASSERT_TRUE(sheet);
    MoveDestinationPage* question = sheet->destinationPage();
    EXPECT_FALSE(question->moveButton()->isEnabled()) << "no folder chosen yet";
    // As short as the window system lets it be: what the texts need beyond one line each is
    // room the sheet has to make for itself.
    sheet->resize(sheet->width(), sheet->minimumSizeHint().height());
    QApplication::processEvents();

    question->choose(fixture.home().dir(QStringLiteral("Archive")));
    ASSERT_TRUE(waitUntil([&] { return question->problem()->text().startsWith(QStringLiteral("That folder is on the same disk")); }));
    EXPECT_FALSE(question->moveButton()->isEnabled());
    const QList<QLabel*> labels = question->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) { return label->text() == "~/Archive"; }))
        << "the chosen folder is named as the person knows it";
    QApplication::processEvents();
    const QStringList cut = cutTexts(*question);
    EXPECT_TRUE(cut.isEmpty()) << "cut short: " << cut.join(" | ").toStdString();

    question->choose(disk.path());
    ASSERT_TRUE(waitUntil([&] { return question->moveButton()->isEnabled(); }));
    EXPECT_TRUE(question->problem()->isHidden());

    question->moveButton()->click();
    ASSERT_TRUE(sheet->progressPage());
    ASSERT_TRUE(waitUntil([&] { return sheet->progressPage()->bar()->value() == 600; }));
    // 3 of the 5 MB of file lengths are copied: the figures speak of the row's 20 MB on disk.
    EXPECT_EQ(sheet->progressPage()->figures()->text(), QStringLiteral("12 MB of 20 MB"));
    sheet->reject();
    EXPECT_TRUE(sheet->isVisible()) << "the sheet closed while the copy ran";

    sheet->progressPage()->stopButton()->click();
    ASSERT_TRUE(waitUntil([&] { return sheet->outcomePage(); }, 20'000));
    EXPECT_EQ(sheet->outcomePage()->text()->text(), QStringLiteral("Stopped. The original wasn't changed."));
    EXPECT_EQ(sheet->outcomePage()->showButton(), nullptr);
    EXPECT_TRUE(QDir(disk.path()).isEmpty());
    sheet->outcomePage()->doneButton()->click();
    EXPECT_EQ(fixture.model().moveSession(), nullptr);
}

// Only a row that can move offers the move; a locked one doesn't.
TEST_F(MoveSheetTest, AMovedRowLeavesTheListAndTheSheetSaysWhere)
{
    fixture.home().file(QStringLiteral("Models/llama-3-8b.gguf"), 4'000'000, 'q');
    CleanupItem model = fileRow(fixture.home(), CategoryID::largeFiles, QStringLiteral("Models/llama-3-8b.gguf"));
    CleanupItem other = fixture.addFile(CategoryID::largeFiles, QStringLiteral("Models/notes.txt"));
    other.lockedReason = QStringLiteral("Changed in the last day; a session may be running.");
    CategoryPage* page = fixture.open(CategoryID::largeFiles, {model, other});
    ASSERT_TRUE(page);
    EXPECT_FALSE(menuOffersMove(*page, fixture.rowOf(other.id)));
    fixture.window().resize(1100, 700);
    MoveSheet* sheet = openSheet(fixture, *page, model.id);
    ASSERT_TRUE(sheet);
    sheet->destinationPage()->choose(disk.path());
    ASSERT_TRUE(waitUntil([&] { return sheet->destinationPage()->moveButton()->isEnabled(); }));
    sheet->destinationPage()->moveButton()->click();

    ASSERT_TRUE(waitUntil([&] { return sheet->outcomePage(); }));
    const QString copy = disk.path() + QStringLiteral("/llama-3-8b.gguf");
    EXPECT_EQ(sheet->outcomePage()->text()->text(), QStringLiteral("It is now at %1. The original is in the Trash; its space comes back once the Trash is emptied.").arg(copy));
    ASSERT_TRUE(sheet->outcomePage()->showButton());
    const QWidget* focused = sheet->focusWidget();
    EXPECT_TRUE(focused && (focused == sheet->outcomePage() || sheet->outcomePage()->isAncestorOf(focused)))
        << "the keyboard (Return for Done) stays with the sheet after its progress step went";
    EXPECT_EQ(QFileInfo(copy).size(), 4'000'000);
    EXPECT_EQ(page->listModel()->shownItems(), QList<CleanupItem>{other});
}
