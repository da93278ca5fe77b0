#pragma once

#include <QObject>

class AppModel;
class QWidget;

// Empties the Trash the way every screen does: asks first, since it can't be undone, then
// lets the model empty it and reports a failure with the system's own message.
class TrashEmptier : public QObject {
    Q_OBJECT

public:
    // Questions open as sheets of `window`.
    TrashEmptier(AppModel* model, QWidget* window);

    // Opens the confirmation; nothing is emptied until the person agrees.
    void ask();

private:
    void confirmed();
    void trashDidChange();

    AppModel* m_model;
    QWidget* m_window;
    bool m_waiting = false;
};
