#pragma once

#include "vocabulary/CleanupItem.h"

#include <QDialog>
#include <QPointer>

class AppModel;
class MoveDestinationPage;
class MoveOutcomePage;
class MoveProgressPage;
class MoveSession;
class QStackedWidget;

// The sheet of one move to another disk: the destination question, then the progress of the
// copy, then the outcome, following the model's move session. Closing it after the move ended
// closes the session.
class MoveSheet : public QDialog {
    Q_OBJECT

public:
    MoveSheet(AppModel* model, const CleanupItem& item, QWidget* parent = nullptr);

    // Opens a sheet for `item` over `window`; it deletes itself when closed.
    static MoveSheet* open(AppModel* model, const CleanupItem& item, QWidget* window);

    MoveDestinationPage* destinationPage() const { return m_destination; }
    MoveProgressPage* progressPage() const { return m_progress; }
    MoveOutcomePage* outcomePage() const { return m_outcome; }

    // Escape and the close button: nothing while the copy runs (Stop is the way), otherwise
    // closes the sheet and an ended session.
    void reject() override;

protected:
    bool event(QEvent* event) override;

private:
    void start(const QString& destination);
    void follow();
    void showPage(QWidget* page);

    AppModel* m_model;
    CleanupItem m_item;
    QPointer<MoveSession> m_session;
    QStackedWidget* m_pages;
    MoveDestinationPage* m_destination;
    MoveProgressPage* m_progress = nullptr;
    MoveOutcomePage* m_outcome = nullptr;
};
