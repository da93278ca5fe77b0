#include "ui/TrashEmptier.h"

#include "model/AppModel.h"
#include "ui/TrashProgress.h"

#include <QMessageBox>
#include <QPushButton>

TrashEmptier::TrashEmptier(AppModel* model, QWidget* window) : QObject(window), m_model(model), m_window(window)
{
    connect(m_model, &AppModel::trashChanged, this, &TrashEmptier::trashDidChange);
}

void TrashEmptier::ask()
{
    //: Question before the Trash is emptied
    const QString question = tr("Empty the Trash?");
    auto* box = new QMessageBox(QMessageBox::Warning, question, question, QMessageBox::NoButton, m_window);
    //: Text of the question before the Trash is emptied
    box->setInformativeText(tr("Everything in the Trash is deleted for good, including files you put there yourself. This can't be undone."));
    //: Button that empties the Trash for good
    QPushButton* empty = box->addButton(tr("Empty Trash"), QMessageBox::DestructiveRole);
    //: Button that closes a question without doing anything
    box->setDefaultButton(box->addButton(tr("Cancel"), QMessageBox::RejectRole));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QMessageBox::buttonClicked, this, [this, empty](QAbstractButton* clicked) {
        if (clicked == empty)
            confirmed();
    });
    box->open();
}

void TrashEmptier::confirmed()
{
    m_waiting = true;
    m_model->emptyTrash();
    if (!m_model->trashState().isEmptying)
        return;
    auto* progress = new TrashProgress(m_model, m_window);
    progress->setWindowModality(Qt::WindowModal);
    progress->setAttribute(Qt::WA_DeleteOnClose);
    progress->open();
}

void TrashEmptier::trashDidChange()
{
    if (!m_waiting || m_model->trashState().isEmptying)
        return;
    m_waiting = false;
    // A stop the person asked for needs no message; they saw the count.
    if (m_model->trashState().message.isEmpty() || m_model->trashState().stopRequested)
        return;
    //: Title of the message when the Trash could not be emptied; the system's reason follows
    const QString title = tr("Couldn't empty the Trash");
    auto* box = new QMessageBox(QMessageBox::Warning, title, title, QMessageBox::NoButton, m_window);
    //: Button that closes the message that the Trash could not be emptied
    box->addButton(tr("OK"), QMessageBox::AcceptRole);
    box->setInformativeText(m_model->trashState().message);
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
