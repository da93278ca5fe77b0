// The cleanup sheet and quitting while files are being changed.
#include "model/AppModel.h"
#include "platform/Platform.h"
#include "ui/CleanupSheet.h"
#include "ui/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>

void MainWindow::cleanupDidChange()
{
    CleanupSession* session = m_model->cleanup();
    if (!session || (m_sheet && m_sheet->session() == session))
        return;
    if (m_sheet)
        m_sheet->deleteLater();
    m_sheet = new CleanupSheet(m_model, session, this);
    m_sheet->setAttribute(Qt::WA_DeleteOnClose);
    presentSheet(m_sheet);
}

// On macOS a window-modal dialog is a real sheet, and Cmd+Q still reaches the menu bar while it
// is open. Elsewhere a window-modal dialog makes Qt drop the window manager's close request for
// the window it blocks, so a close during a cleanup would vanish: there the sheet is not modal,
// and the window's content is disabled for as long as it is open.
void MainWindow::presentSheet(QDialog* sheet)
{
    if (Platform::desktop() == Platform::Desktop::finder) {
        sheet->setWindowModality(Qt::WindowModal);
        sheet->open();
        return;
    }
    sheet->setWindowModality(Qt::NonModal);
    setContentEnabled(false);
    connect(sheet, &QDialog::finished, this, [this] { setContentEnabled(true); });
    sheet->show();
}

void MainWindow::setContentEnabled(bool enabled)
{
    centralWidget()->setEnabled(enabled);
    for (QToolBar* toolbar : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly))
        toolbar->setEnabled(enabled);
}

void MainWindow::requestQuit()
{
    if (m_quitApproved || !m_model->isChangingFiles()) {
        quitNow();
        return;
    }
    askBeforeQuitting();
}

void MainWindow::quitNow()
{
    m_quitApproved = true;
    close();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_quitApproved && m_keepsRunningWhenClosed && m_keepsRunningWhenClosed()) {
        event->ignore();
        hide();
        return;
    }
    if (!m_quitApproved && m_model->isChangingFiles()) {
        event->ignore();
        askBeforeQuitting();
        return;
    }
    // The sheet, a question and the settings window go with the window, so no leftover window
    // keeps the app alive.
    if (m_question)
        m_question->close();
    if (m_sheet)
        m_sheet->hide();
    if (m_settingsPage)
        m_settingsPage->close();
    QMainWindow::closeEvent(event);
}

void MainWindow::askBeforeQuitting()
{
    if (m_quitQuestion && m_quitQuestion->isVisible())
        return;  // asked already; a second Ctrl+Q must not stack questions
    if (m_question)
        m_question->close();
    //: Question when the app is asked to quit while a cleanup, a move or emptying the Trash changes files
    const QString title = tr("Quit while Dustlark is working?");
    // Over the sheet that shows the work (a cleanup's, or the Trash's progress), so the question
    // is seen where the work shows.
    QWidget* over = m_sheet ? static_cast<QWidget*>(m_sheet) : this;
    if (QWidget* modal = QApplication::activeModalWidget(); modal && modal != this)
        over = modal;
    // The question is the box's text; a title bar is narrower than the box and would cut it.
    //: Window title (the app's name)
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Dustlark"), title, QMessageBox::NoButton, over);
    //: Under "Quit while Dustlark is working?"
    box->setInformativeText(tr("Dustlark stops after the current item and removes an unfinished copy, then quits."));
    //: Answer to "Quit while Dustlark is working?": don't quit
    QPushButton* keep = box->addButton(tr("Keep Working"), QMessageBox::RejectRole);
    //: Answer to "Quit while Dustlark is working?": stop after the current item, then quit
    QPushButton* stop = box->addButton(tr("Stop and Quit"), QMessageBox::DestructiveRole);
    box->setDefaultButton(keep);
    box->setEscapeButton(keep);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this, [this, stop](QAbstractButton* clicked) {
        if (clicked != stop)
            return;
        QPointer<MainWindow> self(this);
        m_model->stopForQuit([self] {
            if (self)
                self->quitNow();
        });
    });
    m_question = box;
    m_quitQuestion = box;
    box->open();
}

void MainWindow::dismissQuitQuestionWhenIdle()
{
    if (m_quitQuestion && !m_model->isChangingFiles())
        m_quitQuestion->close();
}

CleanupSheet* MainWindow::cleanupSheet() const
{
    return m_sheet;
}
