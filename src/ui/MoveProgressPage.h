#pragma once

#include <QPointer>
#include <QWidget>

class AppModel;
class MoveSession;
class QLabel;
class QProgressBar;
class QPushButton;

// The move sheet while the copy runs: the item's name, a bar of the bytes copied against the
// total, and Stop, which ends the copy and removes it.
class MoveProgressPage : public QWidget {
    Q_OBJECT

public:
    MoveProgressPage(AppModel* model, MoveSession* session, QWidget* parent = nullptr);

    QProgressBar* bar() const { return m_bar; }
    QLabel* figures() const { return m_figures; }
    QPushButton* stopButton() const { return m_stop; }

private:
    void refresh();
    void showFigures(qint64 copied, qint64 total);
    void stop();

    AppModel* m_model;
    QPointer<MoveSession> m_session;
    QProgressBar* m_bar;
    QLabel* m_figures;
    QPushButton* m_stop;
};
