#pragma once

#include "model/CleanupSession.h"

#include <QDialog>
#include <QPointer>

class AppModel;
class CleanupConfirmation;
class CleanupProgress;
class CleanupResults;
class QStackedWidget;

// The sheet over the window for one cleanup session: confirmation, then progress, then
// results, following the session's phase. It closes itself when the model closes the session.
class CleanupSheet : public QDialog {
    Q_OBJECT

public:
    CleanupSheet(AppModel* model, CleanupSession* session, QWidget* parent = nullptr);

    CleanupSession* session() const { return m_session; }
    CleanupConfirmation* confirmation() const { return m_confirmation; }
    CleanupProgress* progress() const { return m_progress; }
    CleanupResults* results() const { return m_results; }

    // Escape and the window's close button: discards an unconfirmed session, closes a
    // finished one; a running cleanup stops only through its Stop button.
    void reject() override;

private:
    void followPhase();
    void modelDidChange();

    AppModel* m_model;
    QPointer<CleanupSession> m_session;
    QStackedWidget* m_pages;
    CleanupConfirmation* m_confirmation;
    CleanupProgress* m_progress = nullptr;
    CleanupResults* m_results = nullptr;
};
