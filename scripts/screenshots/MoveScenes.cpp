// The move sheet's steps over the real window, moving to a folder on /dev/shm (a file system of
// its own here) through the real mover.
#include "Scenes.h"
#include "support/RealMover.h"
#include "support/Wait.h"
#include "ui/CategoryPage.h"
#include "ui/MoveDestinationPage.h"
#include "ui/MoveOutcomePage.h"
#include "ui/MoveProgressPage.h"
#include "ui/MoveSheet.h"
#include "ui/WindowFixture.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

#include <memory>

namespace {

// A window over one folder of footage, with the move sheet open for it.
class MoveWindow {
public:
    explicit MoveWindow(std::optional<Mover::CopyTool> copyTool = {})
    {
        m_fixture.home().file(QStringLiteral("Movies/Wedding Raw/day1.mov"), 3'000'000, 'a');
        m_fixture.home().file(QStringLiteral("Movies/Wedding Raw/day2.mov"), 2'000'000, 'b');
        CleanupItem footage = fileRow(m_fixture.home(), CategoryID::largeFiles, QStringLiteral("Movies/Wedding Raw"));
        footage.size = 5'000'000;
        CategoryPage* page = m_fixture.open(CategoryID::largeFiles, {footage}, [&](AppModel::Services& services) {
            if (copyTool)
                useCopyTool(services, *copyTool);
        });
        if (!page || !m_disk.isValid())
            return;
        m_fixture.window().resize(1100, 700);
        std::unique_ptr<QMenu> menu(page->makeRowMenu(m_fixture.rowOf(footage.id)));
        for (QAction* action : menu->actions()) {
            if (action->text() == QCoreApplication::translate("CategoryPage", "Move to Another Disk…"))
                action->trigger();
        }
        m_sheet = m_fixture.window().findChild<MoveSheet*>();
    }

    MoveSheet* sheet() const { return m_sheet; }
    MainWindow& mainWindow() { return m_fixture.window(); }
    QString disk() const { return m_disk.path(); }
    QString sameDisk() { return m_fixture.home().dir(QStringLiteral("Archive")); }
    QImage picture()
    {
        QCoreApplication::processEvents();
        return withSheet(m_fixture.window(), *m_sheet);
    }

    // Chooses `folder` and waits until the checks let Move start.
    bool choose(const QString& folder)
    {
        m_sheet->destinationPage()->choose(folder);
        return waitUntil([&] { return m_sheet->destinationPage()->moveButton()->isEnabled(); });
    }

    // Chooses `folder` and waits until the checks refuse it.
    bool chooseRefused(const QString& folder)
    {
        m_sheet->destinationPage()->choose(folder);
        return waitUntil([&] { return m_sheet->destinationPage()->problem()->isVisible(); });
    }

private:
    WindowFixture m_fixture;
    QTemporaryDir m_disk{QStringLiteral("/dev/shm/Backup Disk-XXXXXX")};
    MoveSheet* m_sheet = nullptr;
};

QImage refused()
{
    MoveWindow window;
    if (!window.sheet() || !window.chooseRefused(window.sameDisk()))
        return {};
    return window.picture();
}

QImage destination()
{
    MoveWindow window;
    if (!window.sheet() || !window.choose(window.disk()))
        return {};
    return window.picture();
}

QImage progress()
{
    // Copies the first file, then stalls the way a slow disk does until it is stopped.
    const Mover::CopyTool halfway{QStringLiteral("/bin/sh"),
                                  {QStringLiteral("-c"), QStringLiteral("mkdir \"$2\" && cp -p \"$1/day1.mov\" \"$2/\"; sleep 60"),
                                   QStringLiteral("copy")},
                                  std::chrono::minutes(1), {}};
    MoveWindow window(halfway);
    if (!window.sheet() || !window.choose(window.disk()))
        return {};
    window.sheet()->destinationPage()->moveButton()->click();
    MoveProgressPage* page = window.sheet()->progressPage();
    if (!page || !waitUntil([&] { return page->bar()->value() > 0; }))
        return {};
    const QImage image = window.picture();
    page->stopButton()->click();
    waitUntil([&] { return window.sheet()->outcomePage() != nullptr; }, 20'000);
    return image;
}

// Quitting while the copy runs asks first; the question is drawn over the window like a sheet.
QImage quitQuestion()
{
    const Mover::CopyTool stalling{QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("sleep 60"), QStringLiteral("copy")},
                                   std::chrono::minutes(1), {}};
    MoveWindow window(stalling);
    if (!window.sheet() || !window.choose(window.disk()))
        return {};
    window.sheet()->destinationPage()->moveButton()->click();
    MainWindow& main = window.mainWindow();
    main.requestQuit();
    QCoreApplication::processEvents();
    auto* question = main.findChild<QMessageBox*>();
    if (!question)
        return {};
    const QImage image = withSheet(main, *question);
    question->close();
    if (MoveProgressPage* page = window.sheet()->progressPage())
        page->stopButton()->click();
    waitUntil([&] { return window.sheet()->outcomePage() != nullptr; }, 20'000);
    return image;
}

QImage outcome()
{
    MoveWindow window;
    if (!window.sheet() || !window.choose(window.disk()))
        return {};
    window.sheet()->destinationPage()->moveButton()->click();
    if (!waitUntil([&] { return window.sheet()->outcomePage() != nullptr; }))
        return {};
    return window.picture();
}

}  // namespace

QList<Scene> moveScenes()
{
    return {
        {QStringLiteral("move-destination-refused.png"), refused},
        {QStringLiteral("move-destination.png"), destination},
        {QStringLiteral("move-progress.png"), progress},
        {QStringLiteral("move-outcome.png"), outcome},
        {QStringLiteral("quit-question.png"), quitQuestion},
    };
}
