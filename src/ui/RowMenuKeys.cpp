#include "ui/RowMenuKeys.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace RowMenuKeys {

namespace {

class KeyFilter : public QObject {
public:
    explicit KeyFilter(QAbstractItemView* view) : QObject(view), m_view(view) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != m_view || event->type() != QEvent::KeyPress || !isMenuKey(static_cast<QKeyEvent*>(event)))
            return false;
        const QModelIndex current = m_view->currentIndex();
        if (!current.isValid())
            return false;
        m_view->scrollTo(current);
        emit m_view->customContextMenuRequested(m_view->visualRect(current).center());
        return true;
    }

private:
    QAbstractItemView* m_view;
};

}  // namespace

bool isMenuKey(const QKeyEvent* key)
{
    return key->key() == Qt::Key_Menu || (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier);
}

void install(QAbstractItemView* view)
{
    view->installEventFilter(new KeyFilter(view));
}

}  // namespace RowMenuKeys
