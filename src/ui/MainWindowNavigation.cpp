// Changing screens: a selection is never dropped by choosing another screen; the person is
// asked to clean it or to clear it first.
#include "format/ByteCount.h"
#include "format/WholeNumber.h"
#include "model/AppModel.h"
#include "ui/MainWindow.h"
#include "ui/Sidebar.h"

#include <QMessageBox>
#include <QPushButton>

namespace {

enum Answer { clean, clearSelection, cancel };

}  // namespace

void MainWindow::choose(const SidebarDestination& wanted)
{
    switch (m_navigation.choose(wanted, !m_model->selection().ids().isEmpty())) {
    case Navigation::Step::stay:
        m_sidebar->select(destination());
        return;
    case Navigation::Step::go:
        showCurrentScreen();
        return;
    case Navigation::Step::ask:
        // The highlight stays on the shown screen until the person has answered.
        m_sidebar->select(destination());
        askBeforeSwitching();
        return;
    }
}

QString MainWindow::selectionLeftBehind() const
{
    const qsizetype count = m_model->selection().ids().size();
    const QString size = ByteCount::format(m_model->selectedSize());
    if (count == 1)
        //: Under "Clean the selected items?" with one item selected; %1 is its size, e.g. "43 MB"
        return tr("You selected 1 item here (%1). Clean it now, or clear the selection and go on.").arg(size);
    //: Under "Clean the selected items?"; %1 is the number of items, %2 their size, e.g. "43 MB"
    return tr("You selected %1 items here (%2). Clean them now, or clear the selection and go on.")
        .arg(WholeNumber::format(count), size);
}

void MainWindow::askBeforeSwitching()
{
    if (m_question)
        m_question->close();
    //: Question when another screen is chosen while items are selected
    const QString title = tr("Clean the selected items?");
    auto* box = new QMessageBox(QMessageBox::Question, title, title, QMessageBox::NoButton, this);
    box->setInformativeText(selectionLeftBehind());
    //: Answer to "Clean the selected items?": open the cleanup of the selection
    QPushButton* cleanButton = box->addButton(tr("Clean…"), QMessageBox::AcceptRole);
    cleanButton->setEnabled(!m_model->isBusyScanning());
    //: Answer to "Clean the selected items?": empty the selection and show the chosen screen
    QPushButton* clearButton = box->addButton(tr("Clear Selection"), QMessageBox::DestructiveRole);
    //: Answer to "Clean the selected items?": stay on this screen
    QPushButton* cancelButton = box->addButton(tr("Cancel"), QMessageBox::RejectRole);
    box->setDefaultButton(cancelButton);
    box->setEscapeButton(cancelButton);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this, [this, cleanButton, clearButton](QAbstractButton* clicked) {
        switchAnswered(clicked == cleanButton ? clean : clicked == clearButton ? clearSelection : cancel);
    });
    m_question = box;
    box->open();
}

void MainWindow::switchAnswered(int answer)
{
    switch (answer) {
    case clean:
        m_navigation.dropPending();
        m_model->prepareCleanup();
        return;
    case clearSelection:
        m_model->clearSelection();
        if (m_navigation.goToPending())
            showCurrentScreen();
        return;
    default:
        m_navigation.dropPending();
        return;
    }
}
