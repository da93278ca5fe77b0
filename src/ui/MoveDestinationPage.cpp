#include "ui/MoveDestinationPage.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/FolderChooser.h"
#include "ui/SheetText.h"
#include "vocabulary/PathRules.h"
#include "vocabulary/ItemName.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MoveDestinationPage::MoveDestinationPage(AppModel* model, CleanupItem item, QWidget* parent)
    : QWidget(parent), m_model(model), m_item(std::move(item)), m_destinationLabel(new QLabel(this)),
      m_problem(new QLabel(this)), m_choose(new QPushButton(this)), m_move(new QPushButton(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    addIntroduction(layout);
    layout->addSpacing(6);
    layout->addLayout(makeDestinationRow());
    SheetText::makeBody(m_problem);
    m_problem->hide();
    layout->addWidget(m_problem);
    layout->addStretch(1);
    layout->addWidget(makeButtons());
    connect(m_choose, &QPushButton::clicked, this, &MoveDestinationPage::openChooser);
    connect(m_move, &QPushButton::clicked, this, [this] { emit moveConfirmed(m_destination); });
}

void MoveDestinationPage::addIntroduction(QVBoxLayout* layout)
{
    const QString home = m_model->settings()->home();
    //: Heading of the move sheet; %1 names the row, like "node_modules in ~/Projects/app"
    auto* heading = new QLabel(tr("Move “%1” to another disk?").arg(ItemName::of(m_item, home)), this);
    SheetText::makeHeading(heading);
    //: Under the move sheet's heading: what a move does, in order
    auto* explanation = new QLabel(tr("Dustlark copies it to the folder you choose, checks that the copy matches "
                                      "the original, and only then moves the original to the Trash."), this);
    SheetText::makeBody(explanation);
    auto* facts = new QLabel(ByteCount::format(m_item.size) + QStringLiteral(" · ")
                                 + PathRules::withTilde(m_item.removal.paths().value(0), home), this);
    SheetText::makeSecondary(facts);
    layout->addWidget(heading);
    layout->addWidget(explanation);
    layout->addWidget(facts);
}

QHBoxLayout* MoveDestinationPage::makeDestinationRow()
{
    //: Label before the chosen destination folder of a move
    auto* to = new QLabel(tr("To:"), this);
    SheetText::makeSubheading(to);
    //: Shown where the destination folder goes until one is chosen
    m_destinationLabel->setText(tr("No folder chosen"));
    m_destinationLabel->setTextFormat(Qt::PlainText);
    m_destinationLabel->setWordWrap(true);
    //: Button that opens the folder chooser for a move's destination
    m_choose->setText(tr("Choose Folder…"));
    auto* row = new QHBoxLayout;
    row->addWidget(to);
    row->addWidget(m_destinationLabel, 1);
    row->addWidget(m_choose);
    return row;
}

QDialogButtonBox* MoveDestinationPage::makeButtons()
{
    //: Button that starts the move to another disk
    m_move->setText(tr("Move"));
    m_move->setEnabled(false);
    m_move->setDefault(true);
    auto* buttons = new QDialogButtonBox(this);
    //: Button that closes the move sheet without moving anything
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    buttons->addButton(m_move, QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &MoveDestinationPage::cancelled);
    return buttons;
}

void MoveDestinationPage::openChooser()
{
    if (!m_chooser) {
        //: Title of the folder chooser for a move's destination
        m_chooser = FolderChooser::make(this, tr("Choose a Folder on Another Disk"));
        //: Confirming button of the folder chooser of a move
        m_chooser->setLabelText(QFileDialog::Accept, tr("Choose"));
        connect(m_chooser, &QFileDialog::fileSelected, this, &MoveDestinationPage::choose);
    }
    m_chooser->open();  // never a nested event loop
}

void MoveDestinationPage::choose(const QString& folder)
{
    m_destination = folder;
    m_destinationLabel->setText(PathRules::withTilde(folder, m_model->settings()->home()));
    m_move->setEnabled(false);
    //: Shown while a chosen destination folder is being checked
    m_problem->setText(tr("Checking the folder…"));
    m_problem->setForegroundRole(QPalette::PlaceholderText);
    m_problem->show();
    m_model->checkMoveDestination(m_item, folder, this, [this, folder](std::optional<QString> problem) {
        checked(folder, problem);
    });
}

void MoveDestinationPage::checked(const QString& folder, const std::optional<QString>& problem)
{
    if (folder != m_destination)
        return;  // an answer about a folder chosen before
    if (problem) {
        showProblem(*problem);
        return;
    }
    m_problem->hide();
    m_move->setEnabled(true);
}

void MoveDestinationPage::showProblem(const QString& sentence)
{
    m_problem->setText(sentence);
    // The refusal reads as one: the system's red for errors, not the quiet grey of "Checking".
    QPalette palette = m_problem->palette();
    palette.setColor(QPalette::WindowText, QColor(0xC6, 0x28, 0x28));
    m_problem->setPalette(palette);
    m_problem->setForegroundRole(QPalette::WindowText);
    m_problem->show();
    m_move->setEnabled(false);
}
