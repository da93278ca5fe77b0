#include "ui/MainWindow.h"

#include "actions/SystemAccess.h"
#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "platform/Platform.h"
#include "ui/AboutPage.h"
#include "ui/CategoryPage.h"
#include "ui/CleanupSheet.h"
#include "ui/LargeFoldersPage.h"
#include "ui/OverviewPage.h"
#include "ui/QuitRequests.h"
#include "ui/SafeListPage.h"
#include "ui/Sidebar.h"
#include "ui/StoragePage.h"
#include "ui/Toast.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

MainWindow::MainWindow(AppModel* model, QWidget* parent)
    : QMainWindow(parent), m_model(model), m_sidebar(new Sidebar(this)), m_stack(new QStackedWidget(this)),
      m_categoryPage(new CategoryPage(model, this)), m_toast(nullptr)
{
    //: Window title (the app's name)
    setWindowTitle(tr("Dustlark"));
    setUnifiedTitleAndToolBarOnMac(true);
    m_stack->addWidget(m_categoryPage);
    auto* splitter = new QSplitter(this);
    splitter->addWidget(m_sidebar);
    splitter->addWidget(m_stack);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({280, 1000});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    m_toast = new Toast(this);
    makeToolbar();
    makeMenus();
    resize(startSize());

    using Kind = SidebarDestination::Kind;
    for (Kind kind : {Kind::storage, Kind::largeFolders, Kind::safeList, Kind::about})
        m_sidebar->setScreenAvailable(SidebarDestination::screen(kind), false);
    auto* overview = new OverviewPage(m_model, this);
    overview->setOpenFullDiskAccess([] { SystemAccess::openFullDiskAccessSettings(); });
    setScreenPage(Kind::overview, overview);
    setScreenPage(Kind::safeList, new SafeListPage(m_model, this));
    setScreenPage(Kind::storage, new StoragePage(m_model, this));
    setScreenPage(Kind::largeFolders, new LargeFoldersPage(m_model, this));
    setScreenPage(Kind::about, new AboutPage(m_model, this));

    connect(m_sidebar, &Sidebar::destinationChosen, this, &MainWindow::choose);
    connect(m_model, &AppModel::resultsChanged, this, &MainWindow::updateSidebarCategory);
    connect(m_model, &AppModel::cleanupChanged, this, &MainWindow::cleanupDidChange);
    // The quit question has no more to ask once the work it is about has ended by itself.
    for (auto changed : {&AppModel::cleanupChanged, &AppModel::moveChanged, &AppModel::trashChanged})
        connect(m_model, changed, this, &MainWindow::dismissQuitQuestionWhenIdle);
    connect(m_model, &AppModel::toastChanged, m_toast, &Toast::showMessage);
    for (CategoryID category : Categories::allCases())
        updateSidebarCategory(category);
    setQuestions(AIQuestions::standard());
    new QuitRequests([this] { requestQuit(); }, [this] { return m_model->isChangingFiles(); }, this);
    showCurrentScreen();
}

MainWindow::~MainWindow() = default;

QSize MainWindow::startSize() const
{
    // On a screen of about the same size the window manager would push the bottom bar, and the
    // Clean button in it, below the screen's edge: leave room for the title bar and a panel.
    const QSize roomForFrame(0, 64);
    const QSize available = screen()->availableGeometry().size() - roomForFrame;
    return QSize(1280, 800).boundedTo(available).expandedTo(minimumSizeHint());
}

void MainWindow::setScreenPage(SidebarDestination::Kind kind, QWidget* page)
{
    if (kind == SidebarDestination::Kind::category || !page)
        return;
    if (const auto old = m_screens.find(kind); old != m_screens.end()) {
        m_stack->removeWidget(old->second);
        old->second->deleteLater();
    }
    m_screens[kind] = page;
    m_stack->addWidget(page);
    m_sidebar->setScreenAvailable(SidebarDestination::screen(kind), true);
    if (destination().kind == kind)
        showCurrentScreen();
}

void MainWindow::setSettingsPage(QWidget* page)
{
    if (m_settingsPage)
        m_settingsPage->deleteLater();
    m_settingsPage = page;
    page->setParent(this, Qt::Window);
    m_settingsAction->setVisible(true);
}

void MainWindow::setQuestions(const AIQuestions& questions)
{
    m_categoryPage->setQuestions(questions);
}

QString MainWindow::fileMenuTitle()
{
    if (Platform::desktop() == Platform::Desktop::finder)
        //: Menu of the app's commands
        return tr("File");
    // A source text of its own, so a translation can use the Linux desktops' word, not the Mac's.
    //: Menu of the app's commands on Linux, named as Linux desktops name it (German: "Datei")
    return tr("File", "Linux menu");
}

void MainWindow::makeMenus()
{
    QMenu* file = menuBar()->addMenu(fileMenuTitle());
    file->addAction(m_scanAction);
    //: Menu entry that opens the settings window
    m_settingsAction = file->addAction(tr("Settings…"), this, [this] {
        if (!m_settingsPage)
            return;
        m_settingsPage->show();
        m_settingsPage->raise();
        m_settingsPage->activateWindow();
    });
    m_settingsAction->setMenuRole(QAction::PreferencesRole);
    // Ctrl+, as on macOS (Cmd+, there): Linux desktops agree on no key of their own.
    m_settingsAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    m_settingsAction->setVisible(false);
    file->addSeparator();
    //: Menu entry that quits the app
    QAction* quit = file->addAction(tr("Quit Dustlark"), this, &MainWindow::requestQuit);
    quit->setMenuRole(QAction::QuitRole);
    quit->setShortcuts(QuitRequests::keys());
}

void MainWindow::showCurrentScreen()
{
    const SidebarDestination& shown = destination();
    m_sidebar->select(shown);
    if (shown.category) {
        m_categoryPage->showCategory(*shown.category);
        m_stack->setCurrentWidget(m_categoryPage);
        return;
    }
    if (const auto page = m_screens.find(shown.kind); page != m_screens.end())
        m_stack->setCurrentWidget(page->second);
}

void MainWindow::updateSidebarCategory(CategoryID category)
{
    const CategoryResult result = m_model->result(category);
    m_sidebar->setCategoryBusy(category, result.state == CategoryResult::State::scanning);
    const bool hasSize = result.state == CategoryResult::State::done && !result.items.isEmpty();
    m_sidebar->setCategorySize(category, hasSize ? ByteCount::format(result.totalSize()) : QString());
}

void MainWindow::bringToFront()
{
    setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
    show();
    raise();
    activateWindow();
}
