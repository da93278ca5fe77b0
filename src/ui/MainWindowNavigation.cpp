// Changing screens: a selection is never dropped by choosing another screen; the person is
// asked to clean it or to clear it first.
#include "model/AppModel.h"
#include "ui/MainWindow.h"
#include "ui/SelectionBar.h"
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

void MainWindow::askBeforeSwitching()
{
    if (m_question)
        m_question->close();
    //: Question when another screen is chosen while items are selected
    const QString title = tr("Clean the selected items?");
    auto* box = new QMessageBox(QMessageBox::Question, title, title, QMessageBox::NoButton, this);
    const QString selection = SelectionBar::describe(m_model->selectedSize(), m_model->selection().ids().size());
    //: Under "Clean the selected items?"; %1 names the selection, e.g. "1.2 GB in 3 items"
    box->setInformativeText(tr("%1 is selected here. Clean it now, or clear the selection and go on.").arg(selection));
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
