#include "ui/TrashProgress.h"

#include "model/AppModel.h"
#include "ui/SheetText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

TrashProgress::TrashProgress(AppModel* model, QWidget* parent)
    : QDialog(parent, Qt::Sheet), m_model(model), m_bar(new QProgressBar(this)), m_counter(new QLabel(this)),
      m_stop(new QPushButton(this))
{
    //: Window title of the sheet shown while the Trash is being emptied (where sheets have a title bar)
    setWindowTitle(tr("Empty Trash"));
    setMinimumWidth(420);
    //: Heading of the sheet shown while the Trash is being emptied
    auto* heading = new QLabel(tr("Emptying the Trash…"), this);
    SheetText::makeHeading(heading);
    m_bar->setTextVisible(false);
    SheetText::makeSecondary(m_counter);
    //: Button that stops emptying the Trash after the item being removed
    m_stop->setText(tr("Stop"));
    m_stop->setAutoDefault(false);
    connect(m_stop, &QPushButton::clicked, m_model, &AppModel::stopEmptyingTrash);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_stop, QDialogButtonBox::RejectRole);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 18);
    layout->setSpacing(10);
    layout->addWidget(heading);
    layout->addWidget(m_bar);
    layout->addWidget(m_counter);
    layout->addStretch(1);
    layout->addWidget(buttons);
    connect(m_model, &AppModel::trashChanged, this, &TrashProgress::refresh);
    refresh();
}

void TrashProgress::refresh()
{
    const TrashState& trash = m_model->trashState();
    if (!trash.isEmptying) {
        accept();
        return;
    }
    // Finder never says how far it is: then the bar only shows that it works, and nothing stops it.
    m_bar->setRange(0, trash.total ? std::max(1, *trash.total) : 0);
    m_bar->setValue(trash.removed);
    m_counter->setVisible(trash.total.has_value());
    if (trash.total)
        //: Progress of emptying the Trash; %1 items removed so far, %n items in all
        m_counter->setText(tr("%1 of %n items", nullptr, *trash.total).arg(trash.removed));
    m_stop->setVisible(trash.total.has_value());
    if (trash.stopRequested) {
        //: The Stop button after it was pressed, until the item being removed is gone
        m_stop->setText(tr("Stopping…"));
        m_stop->setEnabled(false);
    }
}

void TrashProgress::reject()
{
    if (!m_model->trashState().isEmptying)
        QDialog::reject();
}
