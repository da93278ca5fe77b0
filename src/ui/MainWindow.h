#pragma once

#include "model/SidebarDestination.h"

#include <QMainWindow>

class CategoryPage;
class QStackedWidget;
class Sidebar;

// The one window: the sidebar on the left, the chosen screen on the right.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);

    void showDestination(const SidebarDestination& destination);
    const SidebarDestination& destination() const { return m_destination; }
    Sidebar* sidebar() const { return m_sidebar; }
    CategoryPage* categoryPage() const { return m_categoryPage; }

private:
    QWidget* makeScreenPage(const QString& title, const QString& text);

    SidebarDestination m_destination;
    Sidebar* m_sidebar;
    QStackedWidget* m_stack;
    CategoryPage* m_categoryPage;
    QWidget* m_overviewPage;
};
