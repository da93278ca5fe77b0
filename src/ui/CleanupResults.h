#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>

class AppModel;
class CleanupSession;
class QFormLayout;
class QLabel;
class QPushButton;
class QTreeView;
class TrashEmptier;

// The cleanup sheet after the run: what went to the Trash and what the tools removed, free
// space before and after, what failed and why, and the way to empty the Trash.
class CleanupResults : public QWidget {
    Q_OBJECT

public:
    CleanupResults(AppModel* model, CleanupSession* session, QWidget* parent = nullptr);

    QLabel* title() const { return m_title; }
    QLabel* trashNote() const { return m_trashNote; }
    QPushButton* emptyTrashButton() const { return m_emptyTrash; }
    QPushButton* doneButton() const { return m_done; }
    QTreeView* failures() const { return m_failures; }
    // The value shown beside a figure's label; empty when the figure is not shown.
    QString figure(const QString& label) const;

signals:
    void done();

private:
    QLayout* makeTrashNote();
    void fillFigures();
    void fillFailures();
    void refreshTrash();
    std::optional<qint64> freed() const;

    AppModel* m_model;
    QPointer<CleanupSession> m_session;
    QLabel* m_title;
    QFormLayout* m_figures;
    QLabel* m_freeAfter = nullptr;
    QLabel* m_freed = nullptr;
    QLabel* m_failuresHeading;
    QTreeView* m_failures;
    QLabel* m_trashNote;
    QPushButton* m_emptyTrash;
    QPushButton* m_done;
    TrashEmptier* m_trash;
};
