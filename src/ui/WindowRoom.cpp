#include "ui/WindowRoom.h"

#include <QLayout>
#include <QWidget>

namespace WindowRoom {

void makeRoom(QWidget* window)
{
    QLayout* layout = window->layout();
    if (!layout)
        return;
    layout->activate();
    const int needed = layout->hasHeightForWidth() ? layout->totalHeightForWidth(window->width())
                                                   : window->minimumSizeHint().height();
    if (window->height() < needed)
        window->resize(window->width(), needed);
}

}  // namespace WindowRoom
