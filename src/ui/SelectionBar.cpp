#include "ui/SelectionBar.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

SelectionBar::SelectionBar(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_summary(new QLabel(this)), m_clean(new QPushButton(this))
{
    //: Button that opens the cleanup of the selected items
    m_clean->setText(tr("Clean…"));
    m_clean->setDefault(true);
    m_summary->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary, 1);
    layout->addWidget(m_clean);

    connect(m_clean, &QPushButton::clicked, m_model, &AppModel::prepareCleanup);
    for (auto signal : {&AppModel::selectionChanged, &AppModel::scanStateChanged, &AppModel::cleanupChanged})
        connect(m_model, signal, this, &SelectionBar::refresh);
    refresh();
}

QString SelectionBar::describe(qint64 bytes, qsizetype count)
{
    //: Names a selection; %1 is the total size, %n the number of items
    return tr("%1 in %n items", nullptr, int(count)).arg(ByteCount::format(bytes));
}

void SelectionBar::refresh()
{
    const qsizetype count = m_model->selection().ids().size();
    if (count == 0) {
        //: Line under a list while nothing is selected
        m_summary->setText(tr("Labels show how safe it is to delete each item. Nothing is selected for you."));
        m_summary->setForegroundRole(QPalette::PlaceholderText);
    } else {
        //: Line under a list; %1 names the selection, e.g. "1.2 GB in 3 items"
        m_summary->setText(tr("%1 selected").arg(describe(m_model->selectedSize(), count)));
        m_summary->setForegroundRole(QPalette::WindowText);
    }
    m_clean->setEnabled(count > 0 && !m_model->isBusyScanning() && !m_model->cleanup());
}
