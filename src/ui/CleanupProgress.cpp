#include "ui/CleanupProgress.h"

#include "model/AppModel.h"
#include "ui/SheetText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

CleanupProgress::CleanupProgress(AppModel* model, CleanupSession* session, QWidget* parent)
    : QWidget(parent), m_model(model), m_session(session), m_current(new QLabel(this)), m_counter(new QLabel(this)),
      m_bar(new QProgressBar(this)), m_stop(new QPushButton(this))
{
    //: Heading of the cleanup sheet while items are being removed
    auto* heading = new QLabel(tr("Cleaning…"), this);
    SheetText::makeHeading(heading);
    m_current->setTextFormat(Qt::PlainText);
    m_current->setMinimumWidth(200);
    SheetText::makeSecondary(m_counter);
    m_bar->setTextVisible(false);
    m_bar->setRange(0, std::max<int>(1, static_cast<int>(session->items().size())));
    //: Button that stops the cleanup after the item being removed
    m_stop->setText(tr("Stop"));
    connect(m_stop, &QPushButton::clicked, this, &CleanupProgress::stop);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_stop, QDialogButtonBox::RejectRole);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(heading);
    layout->addWidget(m_current);
    layout->addWidget(m_bar);
    layout->addWidget(m_counter);
    layout->addStretch(1);
    layout->addWidget(buttons);
    connect(session, &CleanupSession::changed, this, &CleanupProgress::refresh);
    refresh();
}

void CleanupProgress::refresh()
{
    if (!m_session)
        return;
    const QString current = m_session->current();
    m_current->setText(fontMetrics().elidedText(current, Qt::ElideMiddle, std::max(200, m_current->width())));
    m_bar->setValue(m_session->processed());
    //: Progress of the cleanup; %1 items handled so far, %n items in all
    m_counter->setText(tr("%1 of %n items", nullptr, int(m_session->items().size())).arg(m_session->processed()));
    if (m_session->stopRequested()) {
        //: The Stop button after it was pressed, until the current item is done
        m_stop->setText(tr("Stopping…"));
        m_stop->setEnabled(false);
    }
}

void CleanupProgress::stop()
{
    m_model->stopCleanup();
    refresh();
}
