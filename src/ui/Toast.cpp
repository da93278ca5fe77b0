#include "ui/Toast.h"

#include <QEvent>

namespace {

constexpr int shownMs = 3500;

}  // namespace

Toast::Toast(QWidget* window) : QLabel(window)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setMargin(10);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_hideTimer.setSingleShot(true);
    m_hideTimer.setInterval(shownMs);
    connect(&m_hideTimer, &QTimer::timeout, this, &QWidget::hide);
    window->installEventFilter(this);
}

void Toast::showMessage(const QString& text)
{
    setText(text);
    adjustSize();
    place();
    show();
    raise();
    m_hideTimer.start();
}

bool Toast::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        place();
    return QLabel::eventFilter(watched, event);
}

void Toast::place()
{
    const QWidget* window = parentWidget();
    const int width = std::min(sizeHint().width(), window->width() - 40);
    resize(width, sizeHint().height());
    move((window->width() - width) / 2, window->height() - height() - 56);
}
