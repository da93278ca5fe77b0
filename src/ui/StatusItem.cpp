#include "ui/StatusItem.h"

#include "format/ByteCount.h"
#include "machinery/Background.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/AppIcon.h"

#include <QDate>
#include <QMenu>
#include <QSystemTrayIcon>

StatusItem::StatusItem(AppModel* model, NoticeLog log, Notifier::Delivery delivery, QObject* parent)
    : QObject(parent), m_model(model), m_log(std::move(log)), m_delivery(std::move(delivery)),
      m_menu(std::make_unique<QMenu>()), m_icon(new QSystemTrayIcon(AppIcon::icon(), this)),
      m_freeSpace(m_menu->addAction(QString()))
{
    m_freeSpace->setEnabled(false);
    m_menu->addSeparator();
    //: Status item menu: starts a full scan and shows the window
    connect(m_menu->addAction(tr("Scan Now")), &QAction::triggered, this, [this] {
        m_model->startScan();
        emit openRequested();
    });
    //: Status item menu: shows the app's window on the Overview
    connect(m_menu->addAction(tr("Open Dustlark")), &QAction::triggered, this, &StatusItem::openRequested);
    m_menu->addSeparator();
    //: Status item menu: quits the app
    connect(m_menu->addAction(tr("Quit")), &QAction::triggered, this, &StatusItem::quitRequested);
    m_icon->setContextMenu(m_menu.get());
    connect(m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            emit openRequested();
    });
    listenForClicks();
    connect(m_model, &AppModel::systemStateChanged, this, [this] {
        refresh();
        checkFreeSpace();
    });
    connect(m_model->settings(), &SettingsStore::watchChanged, this, [this] {
        refresh();
        checkFreeSpace();
    });
    refresh();
}

StatusItem::~StatusItem() = default;

// A click on a notice opens the window on the Overview. On macOS the notice is the tray icon's
// own message, whose click the notification centre hands back to the app; on Linux the
// notification service tells the connection that showed it.
void StatusItem::listenForClicks()
{
    if (m_delivery.desktop == Platform::Desktop::finder) {
        connect(m_icon, &QSystemTrayIcon::messageClicked, this, &StatusItem::openRequested);
        return;
    }
    Platform::watchDesktopNotifications(m_delivery.busAddress, this, [this](quint32 id, Platform::NotificationAnswer answer) {
        if (!m_shown.remove(id))
            return;
        if (answer == Platform::NotificationAnswer::clicked)
            emit openRequested();
    });
}

void StatusItem::refresh()
{
    const SettingsStore* settings = m_model->settings();
    m_icon->setVisible(settings->isWatching());
    const auto free = m_model->systemState().freeBytes;
    //: Status item menu: the disk's free space, e.g. "24 GB free"; %1 is the size
    const QString text = free ? tr("%1 free").arg(ByteCount::format(*free)) : QString();
    m_freeSpace->setText(text);
    m_freeSpace->setVisible(!text.isEmpty());
    m_icon->setToolTip(text.isEmpty() ? QStringLiteral("Dustlark") : QStringLiteral("Dustlark: ") + text);
}

void StatusItem::checkFreeSpace()
{
    const AppModel::SystemState& state = m_model->systemState();
    if (!state.freeBytes || !state.totalBytes || m_telling)
        return;
    const auto notice = Notice::lowSpace(m_model->settings()->freeSpaceWarning(), DiskSpace{*state.totalBytes, *state.freeBytes});
    const QDate today = QDate::currentDate();
    if (!notice || !m_log.isDue(notice->condition, today))
        return;
    if (m_delivery.desktop == Platform::Desktop::finder) {
        // The app itself may ask the notification centre; osascript is for the report tool alone.
        m_icon->showMessage(notice->summary, notice->body);
        m_log.record(notice->condition, today);
        emit lowSpaceTold(true);
        return;
    }
    m_telling = true;  // one notice at a time; figures read meanwhile wait for the next reading
    Background::run(this, [notice = *notice, log = m_log, today, delivery = m_delivery] {
        const std::optional<quint32> shown = Notifier::send(notice, delivery);
        if (shown)
            log.record(notice.condition, today);
        return shown;
    }, [this](std::optional<quint32> shown) {
        m_telling = false;
        if (shown)
            m_shown.insert(*shown);
        emit lowSpaceTold(shown.has_value());
    });
}
