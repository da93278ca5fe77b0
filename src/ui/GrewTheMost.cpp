#include "ui/GrewTheMost.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "model/HistoryDigest.h"
#include "model/HistoryRecorder.h"
#include "ui/PageLabels.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

GrewTheMost::GrewTheMost(HistoryRecorder* history, QWidget* parent)
    : QWidget(parent), m_history(history), m_earlier(new QComboBox(this)), m_folders(new QTreeWidget(this))
{
    auto* top = new QHBoxLayout;
    //: Heading of the list of folders that grew most since an earlier storage analysis
    top->addWidget(PageLabels::heading(tr("Grew the most"), this), 1);
    //: Before the choice of the earlier storage analysis to compare with
    top->addWidget(PageLabels::note(tr("since"), this));
    top->addWidget(m_earlier);
    //: Column header of the "Grew the most" list: the folder
    const QString folder = tr("Folder");
    //: Column header of the "Grew the most" list: the kind of data the folder holds
    const QString kind = tr("Kind");
    //: Column header of the "Grew the most" list: how much it grew, such as "+1.2 GB"
    const QString change = tr("Change");
    m_folders->setHeaderLabels({folder, kind, change});
    m_folders->setRootIsDecorated(false);
    m_folders->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_folders->setMaximumHeight(220);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_folders);
    connect(m_history, &HistoryRecorder::changed, this, &GrewTheMost::refresh);
    connect(m_earlier, &QComboBox::activated, this, [this](int index) {
        m_history->compareStorageWith(m_earlier->itemData(index).toLongLong());
    });
    refresh();
}

void GrewTheMost::refresh()
{
    const auto& comparison = m_history->storageComparison();
    setVisible(comparison.has_value());
    refreshChoices();
    m_folders->clear();
    if (!comparison)
        return;
    int shown = 0;
    for (const HistoryGrowth::Change& change : HistoryGrowth::folders(comparison->before.folders, comparison->after.folders)) {
        if (change.growth() <= 0 || shown++ == foldersShown)
            break;
        auto* row = new QTreeWidgetItem(m_folders, {change.path, HistoryDigest::bucketTitle(change.name), ByteCount::formatChange(change.growth())});
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        row->setToolTip(0, change.path);
    }
    if (shown == 0)
        //: The "Grew the most" list when no folder grew since the chosen analysis
        new QTreeWidgetItem(m_folders, {tr("No folder grew since then.")});
}

// Every kept storage analysis but the newest, newest first, the compared one chosen.
void GrewTheMost::refreshChoices()
{
    const QSignalBlocker blocker(m_earlier);
    m_earlier->clear();
    const auto& comparison = m_history->storageComparison();
    if (!comparison)
        return;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const HistoryRecord& record : m_history->records()) {
        if (record.kind != HistoryRecord::Kind::storage || record.id == comparison->after.id)
            continue;
        //: A choice of earlier storage analysis; %1 how long ago ("3 days ago"), %2 its date and time
        m_earlier->addItem(tr("%1 (%2)").arg(RelativeDate::format(record.date, now),
                                             QLocale().toString(record.date.toLocalTime(), QLocale::ShortFormat)),
                           record.id);
        if (record.id == comparison->before.id)
            m_earlier->setCurrentIndex(m_earlier->count() - 1);
    }
}
