#include "ui/MainWindow.h"

#include "ui/CategoryPage.h"
#include "ui/Sidebar.h"

#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_sidebar(new Sidebar(this)), m_stack(new QStackedWidget(this)),
      m_categoryPage(new CategoryPage(this))
{
    //: Window title (the app's name)
    setWindowTitle(tr("Dustlark"));
    //: Heading of the overview screen
    m_overviewPage = makeScreenPage(tr("Overview"),
        //: The promise on the overview screen
        tr("A scan only reads. You choose what goes to the Trash."));
    m_stack->addWidget(m_overviewPage);
    m_stack->addWidget(m_categoryPage);

    auto* splitter = new QSplitter(this);
    splitter->addWidget(m_sidebar);
    splitter->addWidget(m_stack);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 760});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    resize(1280, 800);

    using Kind = SidebarDestination::Kind;
    for (Kind kind : {Kind::storage, Kind::largeFolders, Kind::safeList, Kind::about})
        m_sidebar->setScreenAvailable(SidebarDestination::screen(kind), false);

    connect(m_sidebar, &Sidebar::destinationChosen, this, &MainWindow::showDestination);
    showDestination(SidebarDestination::screen(SidebarDestination::Kind::overview));
}

void MainWindow::showDestination(const SidebarDestination& destination)
{
    m_destination = destination;
    m_sidebar->select(destination);
    if (destination.category) {
        m_categoryPage->showCategory(*destination.category);
        m_stack->setCurrentWidget(m_categoryPage);
        return;
    }
    m_stack->setCurrentWidget(m_overviewPage);
}

QWidget* MainWindow::makeScreenPage(const QString& title, const QString& text)
{
    auto* page = new QWidget(this);
    auto* heading = new QLabel(title, page);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    heading->setFont(font);
    auto* body = new QLabel(text, page);
    body->setWordWrap(true);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->addWidget(heading);
    layout->addWidget(body);
    layout->addStretch(1);
    return page;
}
