#pragma once

#include "model/SidebarDestination.h"
#include "ui/AIQuestions.h"
#include "ui/Navigation.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <map>

class AppModel;
class CategoryPage;
class CleanupSheet;
class QAction;
class QDialog;
class QLabel;
class QMessageBox;
class QStackedWidget;
class Sidebar;
class Toast;

// The one window: the sidebar on the left, the chosen screen on the right, the scan toolbar on
// top, and the sheets of a cleanup. It drives the AppModel it is given and never blocks on the
// file system: every long step runs in the model's background work.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    // `model` must outlive the window.
    explicit MainWindow(AppModel* model, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Shows `page` for a fixed screen (Overview, Storage, Safe List, ...) and makes its sidebar
    // entry choosable; a page set before for the same screen is deleted. The window owns it.
    void setScreenPage(SidebarDestination::Kind kind, QWidget* page);
    // A settings page opens in its own window from the "Settings…" menu entry.
    void setSettingsPage(QWidget* page);
    // Replaces the writer of AI questions (AIQuestions::standard() by default).
    void setQuestions(const AIQuestions& questions);
    // Asked when the window is closed: true hides it and keeps the app running (the person chose
    // to keep watching and a status item can bring it back). By default closing quits.
    void setKeepsRunningWhenClosed(std::function<bool()> keepsRunning) { m_keepsRunningWhenClosed = std::move(keepsRunning); }

    // What choosing a sidebar entry does: nothing for the shown screen, a question while
    // something is selected, otherwise the switch.
    void choose(const SidebarDestination& destination);
    const SidebarDestination& destination() const { return m_navigation.destination(); }
    const Navigation& navigation() const { return m_navigation; }

    Sidebar* sidebar() const { return m_sidebar; }
    CategoryPage* categoryPage() const { return m_categoryPage; }
    CleanupSheet* cleanupSheet() const;
    QAction* scanAction() const { return m_scanAction; }
    QLabel* scanProgressLabel() const { return m_progressLabel; }
    QLabel* freeSpaceLabel() const { return m_freeSpace; }
    Toast* toast() const { return m_toast; }

    // Quit unless files are being changed; then ask "Quit while Dustlark is working?" first.
    // Every quit request ends here: the Quit menu entry and key in any window, the window's
    // close button, and log-out.
    void requestQuit();
    // Shows the window above the others, restored if it was minimized: a second launch asked.
    void bringToFront();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    // MainWindow.cpp: the screens
    QSize startSize() const;
    void makeMenus();
    static QString fileMenuTitle();
    void showCurrentScreen();
    void updateSidebarCategory(CategoryID category);
    // MainWindowToolbar.cpp
    void makeToolbar();
    void scanTriggered();
    void scanStateDidChange();
    void pollProgress();
    void systemStateDidChange();
    // MainWindowNavigation.cpp
    void askBeforeSwitching();
    QString selectionLeftBehind() const;
    void switchAnswered(int answer);
    // MainWindowCleanup.cpp
    void cleanupDidChange();
    void presentSheet(QDialog* sheet);
    void setContentEnabled(bool enabled);
    void askBeforeQuitting();
    void dismissQuitQuestionWhenIdle();
    void quitNow();

    AppModel* m_model;
    Navigation m_navigation;
    Sidebar* m_sidebar;
    QStackedWidget* m_stack;
    CategoryPage* m_categoryPage;
    std::map<SidebarDestination::Kind, QWidget*> m_screens;
    QPointer<QWidget> m_settingsPage;
    QAction* m_settingsAction = nullptr;
    QAction* m_scanAction = nullptr;
    QLabel* m_progressLabel = nullptr;
    QLabel* m_freeSpace = nullptr;
    QTimer m_progressTimer;
    Toast* m_toast;
    QPointer<CleanupSheet> m_sheet;
    QPointer<QMessageBox> m_question;
    QPointer<QMessageBox> m_quitQuestion;
    bool m_quitApproved = false;
    std::function<bool()> m_keepsRunningWhenClosed;
};
