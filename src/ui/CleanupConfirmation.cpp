#include "ui/CleanupConfirmation.h"

#include "format/ByteCount.h"
#include "model/CleanupSession.h"
#include "ui/SelectionBar.h"
#include "ui/SheetText.h"
#include "vocabulary/ItemName.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace {

qint64 totalSize(const QList<CleanupItem>& items)
{
    qint64 total = 0;
    for (const CleanupItem& item : items)
        total += item.size;
    return total;
}

QString trashOnlyTitle(const QList<CleanupItem>& items, const QString& home)
{
    if (items.size() == 1)
        //: Title of the cleanup confirmation for one item that goes to the Trash; %1 is its name, like "node_modules in ~/Projects/app"
        return CleanupConfirmation::tr("Move “%1” to the Trash?").arg(ItemName::of(items.first(), home));
    //: Title of the cleanup confirmation when every item goes to the Trash; %n is their number
    return CleanupConfirmation::tr("Move %n items to the Trash?", nullptr, int(items.size()));
}

// One line per category: its title and what of it is selected, in sidebar order.
QGridLayout* makeBreakdown(const QList<CleanupItem>& items, QWidget* parent)
{
    auto* grid = new QGridLayout;
    grid->setContentsMargins(14, 4, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(2);
    int row = 0;
    for (CategoryID category : Categories::allCases()) {
        QList<CleanupItem> ofCategory;
        for (const CleanupItem& item : items) {
            if (item.category == category)
                ofCategory.append(item);
        }
        if (ofCategory.isEmpty())
            continue;
        auto* name = new QLabel(Categories::title(category), parent);
        auto* amount = new QLabel(SelectionBar::describe(totalSize(ofCategory), ofCategory.size()), parent);
        amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(name, row, 0);
        grid->addWidget(amount, row, 1);
        ++row;
    }
    grid->setColumnStretch(0, 1);
    return grid;
}

}  // namespace

CleanupConfirmation::CleanupConfirmation(const CleanupSession* session, const QString& home, QWidget* parent)
    : QWidget(parent), m_session(session), m_home(home), m_layout(new QVBoxLayout(this)), m_title(new QLabel(this)),
      m_confirm(new QPushButton(this)), m_cancel(new QPushButton(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(12);
    const QList<CleanupItem> permanent = session->permanentItems();
    const QList<CleanupItem> trash = session->trashItems();
    SheetText::makeHeading(m_title);
    m_title->setText(permanent.isEmpty() ? trashOnlyTitle(trash, home) : session->permanentTitle());
    m_layout->addWidget(m_title);
    if (!permanent.isEmpty()) {
        auto* warning = new QLabel(CleanupSession::permanentWarning(), this);
        SheetText::makeBody(warning);
        m_layout->addWidget(warning);
    }
    if (const QString risky = session->riskyLine(home); !risky.isEmpty())
        addWarning(risky);
    if (!trash.isEmpty())
        addPart(CleanupSession::trashHeading(), trash, CleanupSession::trashText());
    if (!permanent.isEmpty())
        //: Heading of the part of the cleanup confirmation about items Docker and Xcode remove for good
        addPart(tr("Removed for good"), permanent, session->permanentText());
    m_layout->addStretch(1);
    addButtons();
}

void CleanupConfirmation::addWarning(const QString& text)
{
    auto* banner = new QFrame(this);
    banner->setFrameShape(QFrame::StyledPanel);
    auto* icon = new QLabel(banner);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(24, 24));
    icon->setAlignment(Qt::AlignTop);
    auto* label = new QLabel(text, banner);
    label->setObjectName(QStringLiteral("riskyLine"));
    SheetText::makeBody(label);
    auto* row = new QHBoxLayout(banner);
    row->setContentsMargins(10, 8, 10, 8);
    row->setSpacing(10);
    row->addWidget(icon);
    row->addWidget(label, 1);
    m_layout->addWidget(banner);
}

void CleanupConfirmation::addPart(const QString& heading, const QList<CleanupItem>& items, const QString& text)
{
    auto* title = new QLabel(heading, this);
    SheetText::makeSubheading(title);
    auto* amount = new QLabel(SelectionBar::describe(totalSize(items), items.size()), this);
    amount->setTextFormat(Qt::PlainText);
    amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* line = new QHBoxLayout;
    line->addWidget(title, 1);
    line->addWidget(amount);
    auto* body = new QLabel(text, this);
    SheetText::makeSecondary(body);
    auto* part = new QVBoxLayout;
    part->setSpacing(3);
    part->addLayout(line);
    part->addWidget(body);
    part->addLayout(makeBreakdown(items, this));
    m_layout->addLayout(part);
}

void CleanupConfirmation::addButtons()
{
    if (!m_session->permanentItems().isEmpty())
        //: Confirming button of the cleanup when some items are removed for good
        m_confirm->setText(tr("Remove for Good and Clean"));
    else
        //: Confirming button of the cleanup when every item goes to the Trash
        m_confirm->setText(tr("Move to Trash"));
    //: Button that closes the cleanup sheet without removing anything
    m_cancel->setText(tr("Cancel"));
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_cancel, QDialogButtonBox::RejectRole);
    buttons->addButton(m_confirm, QDialogButtonBox::AcceptRole);
    // Return must never confirm a removal of what may exist nowhere else: then Cancel is the default.
    const bool risky = !m_session->riskyLine(m_home).isEmpty();
    m_confirm->setAutoDefault(!risky);
    m_confirm->setDefault(!risky);
    m_cancel->setDefault(risky);
    if (risky)
        m_cancel->setFocus();
    connect(m_confirm, &QPushButton::clicked, this, &CleanupConfirmation::confirmed);
    connect(m_cancel, &QPushButton::clicked, this, &CleanupConfirmation::cancelled);
    m_layout->addWidget(buttons);
}

QStringList CleanupConfirmation::texts() const
{
    QStringList texts;
    for (const QLabel* label : findChildren<QLabel*>()) {
        if (!label->text().isEmpty())
            texts.append(label->text());
    }
    return texts;
}
