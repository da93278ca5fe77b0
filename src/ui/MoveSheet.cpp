#include "ui/MoveSheet.h"

#include "model/AppModel.h"
#include "ui/MoveDestinationPage.h"
#include "ui/MoveOutcomePage.h"
#include "ui/MoveProgressPage.h"
#include "ui/WindowRoom.h"

#include <QEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

MoveSheet::MoveSheet(AppModel* model, const CleanupItem& item, QWidget* parent)
    : QDialog(parent, Qt::Sheet), m_model(model), m_item(item), m_pages(new QStackedWidget(this)),
      m_destination(new MoveDestinationPage(model, item, this))
{
    //: Window title of the move sheet (shown where sheets have a title bar)
    setWindowTitle(tr("Move to Another Disk"));
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(520);
    m_pages->addWidget(m_destination);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 18);
    layout->addWidget(m_pages);
    connect(m_destination, &MoveDestinationPage::moveConfirmed, this, &MoveSheet::start);
    connect(m_destination, &MoveDestinationPage::cancelled, this, &MoveSheet::reject);
    connect(m_model, &AppModel::moveChanged, this, &MoveSheet::follow);
}

MoveSheet* MoveSheet::open(AppModel* model, const CleanupItem& item, QWidget* window)
{
    auto* sheet = new MoveSheet(model, item, window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->QDialog::open();
    return sheet;
}

void MoveSheet::start(const QString& destination)
{
    if (!m_model->startMove(m_item, destination)) {
        //: Why a move could not start: the app is scanning, cleaning or moving something else
        m_destination->showProblem(tr("Dustlark is busy with a scan, a cleanup or another move. Try again when it has finished."));
        return;
    }
    m_session = m_model->moveSession();
    follow();
}

void MoveSheet::follow()
{
    if (!m_session)
        return;
    if (m_session->isRunning() && !m_progress) {
        m_progress = new MoveProgressPage(m_model, m_session, this);
        showPage(m_progress);
    }
    if (!m_session->isRunning() && !m_outcome) {
        m_outcome = new MoveOutcomePage(m_model, *m_session, this);
        connect(m_outcome, &MoveOutcomePage::done, this, &MoveSheet::reject);
        showPage(m_outcome);
    }
}

void MoveSheet::showPage(QWidget* page)
{
    // The step left behind goes, so the sheet takes the new step's own size.
    if (QWidget* previous = m_pages->currentWidget()) {
        m_pages->removeWidget(previous);
        previous->hide();
    }
    m_pages->addWidget(page);
    m_pages->setCurrentWidget(page);
    // The step left behind took the keyboard focus with it (the progress step's Stop button);
    // without a focus the sheet's window lost the keyboard, and Return never reached Done.
    page->setFocus();
    adjustSize();
}

// A refusal that appears needs more lines than the sheet had; it makes room once its layout
// has taken the new text in.
bool MoveSheet::event(QEvent* event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest)
        WindowRoom::makeRoom(this);
    return handled;
}

void MoveSheet::reject()
{
    if (m_session && m_session->isRunning())
        return;
    if (m_session && m_model->moveSession() == m_session)
        m_model->closeMove();
    QDialog::reject();
}
