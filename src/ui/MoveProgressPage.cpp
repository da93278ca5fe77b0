#include "ui/MoveProgressPage.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/SheetText.h"
#include "vocabulary/ItemName.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int barSteps = 1000;  // bytes overflow a bar's int range; it shows per mille

}  // namespace

MoveProgressPage::MoveProgressPage(AppModel* model, MoveSession* session, QWidget* parent)
    : QWidget(parent), m_model(model), m_session(session), m_bar(new QProgressBar(this)),
      m_figures(new QLabel(this)), m_stop(new QPushButton(this))
{
    //: Heading of the move sheet while the copy runs; %1 names the row, like "node_modules in ~/Projects/app"
    auto* heading = new QLabel(tr("Moving “%1”…").arg(ItemName::of(session->item(), model->settings()->home())), this);
    SheetText::makeHeading(heading);
    //: Under the heading while a move runs; %1 is the destination folder
    auto* where = new QLabel(tr("To %1").arg(session->destination()), this);
    SheetText::makeBody(where);
    m_bar->setTextVisible(false);
    m_bar->setRange(0, barSteps);
    SheetText::makeSecondary(m_figures);
    //: Button that stops a move: the copy ends and is removed, the original stays
    m_stop->setText(tr("Stop"));
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_stop, QDialogButtonBox::RejectRole);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(heading);
    layout->addWidget(where);
    layout->addWidget(m_bar);
    layout->addWidget(m_figures);
    layout->addStretch(1);
    layout->addWidget(buttons);
    connect(m_stop, &QPushButton::clicked, this, &MoveProgressPage::stop);
    connect(session, &MoveSession::changed, this, &MoveProgressPage::refresh);
    refresh();
}

void MoveProgressPage::refresh()
{
    if (!m_session)
        return;
    const qint64 total = m_session->total();
    const qint64 copied = m_session->copied();
    m_bar->setValue(total > 0 ? int(copied * barSteps / total) : 0);
    if (m_session->stopRequested())
        //: Shown after Stop while the copy ends and is removed
        m_figures->setText(tr("Stopping and removing the copy…"));
    else if (total > 0)
        showFigures(copied, total);
    else
        //: Progress of a move before the first bytes arrived (the original is being read first)
        m_figures->setText(tr("Reading the original…"));
}

// The copy counts file lengths; the row shows space on disk, which for a folder of many small
// files is many times more. The figures speak the row's units: its size, and that share of it.
void MoveProgressPage::showFigures(qint64 copied, qint64 total)
{
    const qint64 rowSize = m_session->item().size;
    const qint64 whole = rowSize > 0 ? rowSize : total;
    const qint64 done = qint64(double(std::min(copied, total)) / double(total) * double(whole));
    //: Progress of a move; %1 is how much of the item is copied, %2 its size, e.g. "1.2 GB of 4.5 GB"
    m_figures->setText(tr("%1 of %2").arg(ByteCount::format(done), ByteCount::format(whole)));
}

void MoveProgressPage::stop()
{
    m_stop->setEnabled(false);
    m_model->stopMove();
    refresh();
}
