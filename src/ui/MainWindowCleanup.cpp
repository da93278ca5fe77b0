// The cleanup sheet and quitting while files are being changed.
#include "model/AppModel.h"
#include "ui/CleanupSheet.h"
#include "ui/MainWindow.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>

void MainWindow::cleanupDidChange()
{
    CleanupSession* session = m_model->cleanup();
    if (!session || (m_sheet && m_sheet->session() == session))
        return;
    if (m_sheet)
        m_sheet->deleteLater();
    m_sheet = new CleanupSheet(m_model, session, this);
    m_sheet->setAttribute(Qt::WA_DeleteOnClose);
    m_sheet->open();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_quitApproved || !m_model->isChangingFiles()) {
        QMainWindow::closeEvent(event);
        return;
    }
    event->ignore();
    askBeforeQuitting();
}

void MainWindow::askBeforeQuitting()
{
    if (m_question)
        m_question->close();
    //: Question when the app is asked to quit while a cleanup or a move changes files
    const QString title = tr("Quit while Dustlark is working?");
    // Over the cleanup sheet when one is open, so the question is seen where the work shows.
    QWidget* over = m_sheet ? static_cast<QWidget*>(m_sheet) : this;
    auto* box = new QMessageBox(QMessageBox::Warning, title, title, QMessageBox::NoButton, over);
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
            if (!self)
                return;
            self->m_quitApproved = true;
            self->close();
        });
    });
    m_question = box;
    box->open();
}

CleanupSheet* MainWindow::cleanupSheet() const
{
    return m_sheet;
}
