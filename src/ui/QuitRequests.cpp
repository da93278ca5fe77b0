#include "ui/QuitRequests.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSessionManager>
#include <QTimer>

#include <algorithm>

QList<QKeySequence> QuitRequests::keys()
{
    // Cmd+Q on macOS and Ctrl+Q on Linux desktops are the same key to Qt; some keyboard schemes
    // (the one used without a desktop, for one) bind nothing to Quit, so it is named here too.
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Quit);
    const QKeySequence controlQ(Qt::CTRL | Qt::Key_Q);
    if (!keys.contains(controlQ))
        keys.append(controlQ);
    return keys;
}

bool QuitRequests::isQuitKey(const QKeyEvent& key)
{
    const QKeySequence pressed(key.keyCombination());
    const QList<QKeySequence> quitKeys = keys();
    return std::any_of(quitKeys.begin(), quitKeys.end(), [&](const QKeySequence& quit) { return quit == pressed; });
}

QuitRequests::QuitRequests(std::function<void()> request, std::function<bool()> isBusy, QObject* parent)
    : QObject(parent), m_request(std::move(request)), m_isBusy(std::move(isBusy))
{
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& manager) {
        if (!m_isBusy())
            return;
        // Log-out waits while files are being changed: the question decides, not the session.
        if (manager.allowsInteraction()) {
            manager.cancel();
            manager.release();
        }
        m_request();
    });
}

QuitRequests::~QuitRequests()
{
    qApp->removeEventFilter(this);
}

bool QuitRequests::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (!isQuitKey(*key))
        return QObject::eventFilter(watched, event);
    // The override comes first: taking it keeps any window's own Quit shortcut from firing too;
    // the key press that follows is only swallowed.
    if (type == QEvent::ShortcutOverride) {
        key->accept();
        if (!key->isAutoRepeat())
            QTimer::singleShot(0, this, [this] { m_request(); });
    }
    return true;
}
