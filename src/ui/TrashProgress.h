#pragma once

#include <QDialog>

class AppModel;
class QLabel;
class QProgressBar;
class QPushButton;

// The sheet shown while the Trash is being emptied: how many items are gone of how many, and
// Stop, which ends it after the item being removed. It closes itself when the emptying ends.
class TrashProgress : public QDialog {
    Q_OBJECT

public:
    TrashProgress(AppModel* model, QWidget* parent);

    QProgressBar* bar() const { return m_bar; }
    QLabel* counter() const { return m_counter; }
    QPushButton* stopButton() const { return m_stop; }

    // Escape and the window's close button don't hide work that goes on: only its end closes this.
    void reject() override;

private:
    void refresh();

    AppModel* m_model;
    QProgressBar* m_bar;
    QLabel* m_counter;
    QPushButton* m_stop;
};
