#pragma once

#include <QWidget>

class AppModel;
class MoveSession;
class QLabel;
class QPushButton;

// The move sheet once the move has ended: the new location with Show in Finder, or the sentence
// that says what went wrong and that the original stayed.
class MoveOutcomePage : public QWidget {
    Q_OBJECT

public:
    MoveOutcomePage(AppModel* model, const MoveSession& session, QWidget* parent = nullptr);

    QLabel* title() const { return m_title; }
    QLabel* text() const { return m_text; }
    QPushButton* showButton() const { return m_show; }
    QPushButton* doneButton() const { return m_done; }

signals:
    void done();

private:
    QLabel* m_title;
    QLabel* m_text;
    QPushButton* m_show = nullptr;
    QPushButton* m_done;
};
