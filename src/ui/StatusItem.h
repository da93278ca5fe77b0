#pragma once

#include "actions/NoticeLog.h"
#include "actions/Notifier.h"

#include <QObject>
#include <QSet>

class AppModel;
class QAction;
class QMenu;
class QSystemTrayIcon;

// The status item (the tray on Linux, the menu bar on macOS), shown while the person wants
// Dustlark to watch (a free-space warning or a scheduled scan): the free space at a glance,
// "Scan Now", "Open Dustlark", "Quit". While the app is open it is also where the free space is
// checked: each new reading of the disk below the chosen line is told once a day. GUI thread only.
class StatusItem : public QObject {
    Q_OBJECT

public:
    StatusItem(AppModel* model, NoticeLog log, Notifier::Delivery delivery, QObject* parent = nullptr);
    ~StatusItem() override;

    QSystemTrayIcon* icon() const { return m_icon; }
    QMenu* menu() const { return m_menu.get(); }
    QAction* freeSpaceEntry() const { return m_freeSpace; }

signals:
    void openRequested();  // show the window on the Overview (also a click on a notice)
    void quitRequested();
    // A low-space notice went to the desktop (or nothing showed it: `shown` false).
    void lowSpaceTold(bool shown);

private:
    void refresh();
    void checkFreeSpace();
    void listenForClicks();

    AppModel* m_model;
    NoticeLog m_log;
    Notifier::Delivery m_delivery;
    std::unique_ptr<QMenu> m_menu;  // QMenu is a widget: no QObject parent, owned here
    QSystemTrayIcon* m_icon;
    QAction* m_freeSpace;
    bool m_telling = false;
    QSet<quint32> m_shown;  // notices on the screen now, by the notification service's id
};
