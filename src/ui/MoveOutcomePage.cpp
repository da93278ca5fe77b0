#include "ui/MoveOutcomePage.h"

#include "model/AppModel.h"
#include "model/MoveSession.h"
#include "model/SettingsStore.h"
#include "ui/Reveal.h"
#include "ui/SheetText.h"
#include "vocabulary/ItemName.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

MoveOutcomePage::MoveOutcomePage(AppModel* model, const MoveSession& session, QWidget* parent)
    : QWidget(parent), m_title(new QLabel(this)), m_text(new QLabel(this)), m_done(new QPushButton(this))
{
    const Mover::Outcome outcome = session.outcome().value_or(Mover::Outcome{});
    const QString name = ItemName::of(session.item(), model->settings()->home());
    SheetText::makeHeading(m_title);
    SheetText::makeBody(m_text);
    auto* buttons = new QDialogButtonBox(this);
    if (outcome.succeeded()) {
        //: Heading of the move sheet after a move; %1 names the row, like "node_modules in ~/Projects/app"
        m_title->setText(tr("“%1” was moved").arg(name));
        //: After a move: %1 is the new location; the original went to the Trash, which still holds its space
        m_text->setText(tr("It is now at %1. The original is in the Trash; its space comes back once the Trash is emptied.")
                            .arg(outcome.destination));
        m_show = buttons->addButton(Reveal::title(), QDialogButtonBox::ActionRole);
        connect(m_show, &QPushButton::clicked, this, [model, moved = outcome.destination] { Reveal::show(model, moved); });
    } else {
        // Not "wasn't moved": when only the Trash step failed, the verified copy is in place.
        //: Heading of the move sheet when a move failed or was stopped; the text below says how far it came
        m_title->setText(tr("The move didn't finish"));
        m_text->setText(outcome.reason);
    }
    //: Button that closes the move sheet
    m_done->setText(tr("Done"));
    m_done->setDefault(true);
    buttons->addButton(m_done, QDialogButtonBox::AcceptRole);
    connect(m_done, &QPushButton::clicked, this, &MoveOutcomePage::done);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    layout->addStretch(1);
    layout->addWidget(buttons);
}
