#include "ui/CleanupResults.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "platform/Platform.h"
#include "ui/SheetText.h"
#include "ui/TrashEmptier.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTreeView>

#include <algorithm>

namespace {

QString sizeOrDash(std::optional<qint64> bytes)
{
    return bytes ? ByteCount::format(*bytes) : QStringLiteral("—");
}

}  // namespace

CleanupResults::CleanupResults(AppModel* model, CleanupSession* session, QWidget* parent)
    : QWidget(parent), m_model(model), m_session(session), m_title(new QLabel(this)), m_figures(new QFormLayout),
      m_failuresHeading(new QLabel(this)), m_failures(new QTreeView(this)), m_trashNote(new QLabel(this)),
      m_emptyTrash(new QPushButton(this)), m_done(new QPushButton(this)), m_trash(new TrashEmptier(model, this))
{
    SheetText::makeHeading(m_title);
    m_title->setText(session->resultTitle());
    m_figures->setLabelAlignment(Qt::AlignLeft);
    m_figures->setHorizontalSpacing(24);
    m_figures->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fillFigures();
    fillFailures();
    //: Button that closes the results of a cleanup
    m_done->setText(tr("Done"));
    m_done->setDefault(true);
    connect(m_done, &QPushButton::clicked, this, &CleanupResults::done);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(m_done, QDialogButtonBox::AcceptRole);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_title);
    layout->addLayout(m_figures);
    layout->addWidget(m_failuresHeading);
    layout->addWidget(m_failures, 1);
    layout->addLayout(makeTrashNote());
    if (m_failures->isHidden())
        layout->addStretch(1);
    layout->addWidget(buttons);
    connect(session, &CleanupSession::changed, this, &CleanupResults::refreshTrash);
    connect(model, &AppModel::trashChanged, this, &CleanupResults::refreshTrash);
    refreshTrash();
}

void CleanupResults::fillFigures()
{
    //: Results of a cleanup: the size of what went to the Trash
    m_figures->addRow(tr("Moved to the Trash"), new QLabel(ByteCount::format(m_session->movedToTrash()), this));
    if (m_session->removedByTools() > 0 || !m_session->permanentItems().isEmpty())
        //: Results of a cleanup: the size of what Docker and the simulator tool removed for good
        m_figures->addRow(tr("Removed by Docker and Xcode"), new QLabel(ByteCount::format(m_session->removedByTools()), this));
    //: Results of a cleanup: free disk space before it ran
    m_figures->addRow(tr("Free space before"), new QLabel(sizeOrDash(m_session->freeBefore()), this));
    m_freeAfter = new QLabel(this);
    //: Results of a cleanup: free disk space after it ran (and after the Trash was emptied, once it is)
    m_figures->addRow(tr("Free space after"), m_freeAfter);
    m_freed = new QLabel(this);
    m_freed->setWordWrap(true);
    //: Results of a cleanup: the free space it gained, measured; what went to the Trash counts only once the Trash is emptied
    m_figures->addRow(tr("Freed"), m_freed);
}

// Measured, not summed: moving to the Trash frees nothing until the Trash is emptied.
std::optional<qint64> CleanupResults::freed() const
{
    if (!m_session->freeBefore() || !m_session->freeAfter())
        return std::nullopt;
    return std::max<qint64>(0, *m_session->freeAfter() - *m_session->freeBefore());
}

QString CleanupResults::figure(const QString& label) const
{
    for (int row = 0; row < m_figures->rowCount(); ++row) {
        const auto* name = qobject_cast<QLabel*>(m_figures->itemAt(row, QFormLayout::LabelRole)->widget());
        const auto* value = qobject_cast<QLabel*>(m_figures->itemAt(row, QFormLayout::FieldRole)->widget());
        if (name && value && name->text() == label)
            return value->text();
    }
    return {};
}

void CleanupResults::fillFailures()
{
    const QList<CleanupSession::Failure>& failures = m_session->failures();
    m_failuresHeading->setVisible(!failures.isEmpty());
    m_failures->setVisible(!failures.isEmpty());
    if (failures.isEmpty())
        return;
    SheetText::makeSubheading(m_failuresHeading);
    //: Heading of the failures in the results of a cleanup; %n is their number
    m_failuresHeading->setText(tr("%n items couldn't be removed", nullptr, int(failures.size())));
    auto* rows = new QStandardItemModel(0, 2, m_failures);
    for (const CleanupSession::Failure& failure : failures) {
        auto* reason = new QStandardItem(failure.reason);
        reason->setToolTip(failure.reason);
        rows->appendRow({new QStandardItem(failure.title), reason});
    }
    m_failures->setModel(rows);
    m_failures->setHeaderHidden(true);
    m_failures->setRootIsDecorated(false);
    m_failures->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_failures->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_failures->header()->setStretchLastSection(true);
}

QLayout* CleanupResults::makeTrashNote()
{
    SheetText::makeSecondary(m_trashNote);
    //: Button in the results of a cleanup; a confirmation follows
    m_emptyTrash->setText(tr("Empty Trash…"));
    m_emptyTrash->setAutoDefault(false);
    connect(m_emptyTrash, &QPushButton::clicked, m_trash, &TrashEmptier::ask);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_trashNote, 1);
    row->addWidget(m_emptyTrash, 0, Qt::AlignVCenter);
    return row;
}

void CleanupResults::refreshTrash()
{
    if (!m_session)
        return;
    m_freeAfter->setText(sizeOrDash(m_session->freeAfter()));
    const bool wentToTrash = m_session->movedToTrash() > 0;
    if (wentToTrash && !m_session->trashEmptied() && freed().value_or(0) == 0)
        //: Results of a cleanup, the freed space when everything went to the Trash on the same disk
        m_freed->setText(tr("None yet: the space comes back when the Trash is emptied"));
    else
        m_freed->setText(sizeOrDash(freed()));
    m_trashNote->setVisible(wentToTrash);
    m_emptyTrash->setVisible(wentToTrash && !m_session->trashEmptied());
    m_emptyTrash->setEnabled(!m_model->trashState().isEmptying);
    if (m_session->trashEmptied())
        //: Results of a cleanup, after the Trash was emptied
        m_trashNote->setText(tr("The Trash is empty."));
    else if (Platform::desktop() == Platform::Desktop::finder)
        //: Results of a cleanup when files went to the Trash
        m_trashNote->setText(tr("Files in the Trash still take space. Empty the Trash to get it back, or check them in Finder first."));
    else
        //: Results of a cleanup when files went to the Trash (Linux: the desktop's file manager)
        m_trashNote->setText(tr("Files in the Trash still take space. Empty the Trash to get it back, or check them in your file manager first."));
}
