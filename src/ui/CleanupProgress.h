#pragma once

#include <QPointer>
#include <QWidget>

class AppModel;
class CleanupSession;
class QLabel;
class QProgressBar;
class QPushButton;

// The cleanup sheet while the session runs: the item being removed, how many are done, and
// Stop, which ends the run after the current item.
class CleanupProgress : public QWidget {
    Q_OBJECT

public:
    CleanupProgress(AppModel* model, CleanupSession* session, QWidget* parent = nullptr);

    QPushButton* stopButton() const { return m_stop; }
    QLabel* counter() const { return m_counter; }

private:
    void refresh();
    void stop();

    AppModel* m_model;
    QPointer<CleanupSession> m_session;
    QLabel* m_current;
    QLabel* m_counter;
    QProgressBar* m_bar;
    QPushButton* m_stop;
};
