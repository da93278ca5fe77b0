#include "ui/OverviewPage.h"

#include "format/ByteCount.h"
#include "format/RelativeDate.h"
#include "model/AppModel.h"
#include "model/StatsStore.h"
#include "ui/HistoryPanel.h"
#include "ui/PageLabels.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum HistoryColumn { dateColumn, freedColumn, itemsColumn };
constexpr int historyRowsShown = 10;

QString itemCount(qint64 count)
{
    //: Number of items removed by one cleanup; %Ln is the number
    return OverviewPage::tr("%Ln items", nullptr, int(count));
}

QStringList historyHeadings()
{
    //: Column heading of the cleanup history: when a cleanup ran
    return {OverviewPage::tr("Date"),
            //: Column heading of the cleanup history: the space a cleanup freed
            OverviewPage::tr("Freed"),
            //: Column heading of the cleanup history: how many items a cleanup removed
            OverviewPage::tr("Items")};
}

QTreeWidgetItem* historyRow(const StatsStore::CleanupRecord& record, const QDateTime& now)
{
    auto* row = new QTreeWidgetItem;
    row->setText(dateColumn, RelativeDate::format(record.date, now));
    row->setToolTip(dateColumn, QLocale().toString(record.date.toLocalTime(), QLocale::LongFormat));
    row->setText(freedColumn, ByteCount::format(record.movedToTrash + record.removedByTools));
    //: Tooltip of a cleanup's freed space; %1 and %2 are sizes
    row->setToolTip(freedColumn, OverviewPage::tr("%1 moved to the Trash, %2 removed by tools")
                                     .arg(ByteCount::format(record.movedToTrash), ByteCount::format(record.removedByTools)));
    row->setText(itemsColumn, itemCount(record.items));
    row->setTextAlignment(freedColumn, Qt::AlignRight | Qt::AlignVCenter);
    row->setTextAlignment(itemsColumn, Qt::AlignRight | Qt::AlignVCenter);
    return row;
}

QFrame* box(QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

}  // namespace

OverviewPage::OverviewPage(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_cleanedBytes(PageLabels::figure({}, this)),
      m_cleanups(PageLabels::figure({}, this)), m_itemsRemoved(PageLabels::figure({}, this)),
      m_lastScan(PageLabels::note({}, this)), m_history(new QTreeWidget(this)),
      m_historyEmpty(PageLabels::note({}, this)), m_historyStack(new QStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    //: Heading of the overview screen
    layout->addWidget(PageLabels::title(tr("Overview"), this));
    //: The promise on the overview screen
    layout->addWidget(PageLabels::body(tr("A scan only reads. You choose what goes to the Trash."), this));
    layout->addWidget(makeAccessBanner());
    layout->addWidget(makeGroups());
    layout->addSpacing(8);
    //: Heading of the statistics on the overview screen
    layout->addWidget(PageLabels::heading(tr("Statistics"), this));
    layout->addWidget(makeTotals());
    layout->addWidget(m_lastScan);
    layout->addWidget(new HistoryPanel(m_model->history(), this));
    layout->addSpacing(8);
    //: Heading of the list of past cleanups on the overview screen
    layout->addWidget(PageLabels::heading(tr("Cleanup History"), this));
    layout->addWidget(makeHistory());
    layout->addStretch(1);

    // Only the changed category's group: a group holding a list of tens of thousands of rows
    // would otherwise be summed again each time any other list changes.
    connect(m_model, &AppModel::resultsChanged, this,
            [this](CategoryID category) { refreshGroup(Categories::group(category)); });
    connect(m_model, &AppModel::scanStateChanged, this, &OverviewPage::refreshGroups);
    connect(m_model, &AppModel::systemStateChanged, this, &OverviewPage::refreshAccessBanner);
    connect(m_model->stats(), &StatsStore::statsChanged, this, &OverviewPage::refreshStats);
    connect(m_model, &AppModel::clockTicked, this, &OverviewPage::refreshStats);  // "3 minutes ago" grows older
    refreshGroups();
    refreshStats();
    refreshAccessBanner();
}

void OverviewPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refreshStats();  // relative dates ("5 minutes ago") age while the page is hidden
}

QWidget* OverviewPage::makeGroups()
{
    auto* groups = new QWidget(this);
    auto* layout = new QHBoxLayout(groups);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    for (CleanerGroup group : CleanerGroups::allCases())
        layout->addWidget(makeGroupCard(group));
    return groups;
}

QWidget* OverviewPage::makeHistory()
{
    //: Shown instead of the cleanup history while there is none
    m_historyEmpty->setText(tr("Your first cleanup will show up here."));
    m_historyEmpty->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_history->setRootIsDecorated(false);
    m_history->setUniformRowHeights(true);
    m_history->setAlternatingRowColors(true);
    m_history->setSelectionMode(QAbstractItemView::NoSelection);
    m_history->setFocusPolicy(Qt::NoFocus);
    m_history->setHeaderLabels(historyHeadings());
    m_history->header()->setSectionResizeMode(dateColumn, QHeaderView::Stretch);
    m_history->header()->setStretchLastSection(false);
    m_historyStack->addWidget(m_history);
    m_historyStack->addWidget(m_historyEmpty);
    return m_historyStack;
}

QFrame* OverviewPage::makeAccessBanner()
{
    m_accessBanner = box(this);
    auto* icon = new QLabel(m_accessBanner);
    const int iconSize = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(iconSize, iconSize));
    icon->setAlignment(Qt::AlignTop);
    //: Heading of the banner shown while the app lacks Full Disk Access
    auto* heading = PageLabels::heading(tr("Full Disk Access is off"), m_accessBanner);
    //: Banner text shown while the app lacks Full Disk Access
    auto* text = PageLabels::body(tr("Without it, Dustlark can't read some folders, such as Mail, Messages and "
                                     "Safari data, so what they hold is missing from the scan."), m_accessBanner);
    //: Button of the Full Disk Access banner; opens the system's privacy settings
    auto* button = new QPushButton(tr("Open Privacy Settings…"), m_accessBanner);
    connect(button, &QPushButton::clicked, this, [this] {
        if (m_openFullDiskAccess)
            m_openFullDiskAccess();
    });

    auto* words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(heading);
    words->addWidget(text);
    words->addStretch(1);
    auto* layout = new QHBoxLayout(m_accessBanner);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->setSpacing(12);
    layout->addWidget(icon);
    layout->addLayout(words, 1);
    layout->addWidget(button, 0, Qt::AlignVCenter);
    return m_accessBanner;
}

QWidget* OverviewPage::makeGroupCard(CleanerGroup group)
{
    QFrame* card = box(this);
    GroupLabels& labels = m_groups.at(static_cast<size_t>(group));
    labels.size = PageLabels::figure({}, card);
    labels.caption = PageLabels::note({}, card);
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(14, 12, 14, 12);
    layout->setSpacing(4);
    layout->addWidget(PageLabels::heading(CleanerGroups::overviewTitle(group), card));
    layout->addWidget(labels.size);
    layout->addWidget(labels.caption);
    return card;
}

QWidget* OverviewPage::makeTotals()
{
    auto* totals = new QWidget(this);
    auto* layout = new QHBoxLayout(totals);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(32);
    // Not "freed": what went to the Trash frees its space only once the Trash is emptied.
    //: Statistics caption under the bytes all cleanups so far moved to the Trash or had Docker and Xcode remove
    QWidget* cleaned = makeFigure(m_cleanedBytes, tr("Sent to the Trash or removed"));
    //: Tooltip of the statistics figure of all cleanups so far
    cleaned->setToolTip(tr("What cleanups moved to the Trash takes its space until the Trash is emptied; what Docker and Xcode removed is gone for good."));
    layout->addWidget(cleaned);
    //: Statistics caption under the number of cleanups so far
    layout->addWidget(makeFigure(m_cleanups, tr("Cleanups")));
    //: Statistics caption under the number of items removed so far
    layout->addWidget(makeFigure(m_itemsRemoved, tr("Items removed")));
    layout->addStretch(1);
    return totals;
}

QWidget* OverviewPage::makeFigure(QLabel* value, const QString& caption)
{
    auto* figure = new QWidget(this);
    auto* layout = new QVBoxLayout(figure);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(value);
    layout->addWidget(PageLabels::note(caption, figure));
    return figure;
}

void OverviewPage::refreshGroups()
{
    for (CleanerGroup group : CleanerGroups::allCases())
        refreshGroup(group);
}

void OverviewPage::refreshGroup(CleanerGroup group)
{
    qint64 found = 0;
    bool scanned = false;
    bool scanning = false;
    for (CategoryID category : CleanerGroups::categories(group)) {
        const CategoryResult result = m_model->result(category);
        found += result.totalSize();
        scanned |= result.state == CategoryResult::State::done;
        scanning |= result.state == CategoryResult::State::scanning;
    }
    const GroupLabels& labels = m_groups.at(static_cast<size_t>(group));
    labels.size->setText(scanned || scanning ? ByteCount::format(found) : QStringLiteral("—"));
    if (scanning)
        //: Caption under a group's found size while a scan runs
        labels.caption->setText(tr("Found so far"));
    else if (scanned)
        //: Caption under a group's found size after a scan
        labels.caption->setText(tr("Found to review"));
    else
        //: Caption of a group on the overview before any scan
        labels.caption->setText(tr("Not scanned yet"));
}

void OverviewPage::refreshStats()
{
    const StatsStore::Stats& stats = m_model->stats()->stats();
    const QLocale locale;
    m_cleanedBytes->setText(ByteCount::format(stats.cleanedBytes));
    m_cleanups->setText(locale.toString(stats.cleanups));
    m_itemsRemoved->setText(locale.toString(stats.itemsRemoved));
    if (stats.lastScan)
        //: Overview statistics line; %1 is a relative date ("3 days ago"), %2 a size
        m_lastScan->setText(tr("Last scan: %1, found %2.").arg(RelativeDate::format(stats.lastScan->date, m_model->now()),
                                                            ByteCount::format(stats.lastScan->found)));
    else
        //: Overview statistics line before the first finished full scan
        m_lastScan->setText(tr("No full scan yet."));
    refreshHistory();
}

void OverviewPage::refreshHistory()
{
    const QList<StatsStore::CleanupRecord>& history = m_model->stats()->stats().history;
    m_history->clear();
    for (const StatsStore::CleanupRecord& record : history)
        m_history->addTopLevelItem(historyRow(record, m_model->now()));
    m_history->resizeColumnToContents(freedColumn);
    m_history->resizeColumnToContents(itemsColumn);
    m_historyStack->setCurrentWidget(history.isEmpty() ? static_cast<QWidget*>(m_historyEmpty) : m_history);
    fitHistoryHeight();
}

// The list is as tall as its rows, up to a screenful; the page's spare room stays below it.
void OverviewPage::fitHistoryHeight()
{
    const int rows = std::clamp(m_history->topLevelItemCount(), 1, historyRowsShown);
    const int measured = m_history->sizeHintForRow(0);
    const int rowHeight = measured > 0 ? measured : fontMetrics().height() + 6;
    const int listHeight = m_history->header()->sizeHint().height() + rows * rowHeight + 2 * m_history->frameWidth();
    m_history->setFixedHeight(listHeight);
    m_historyStack->setFixedHeight(m_history->topLevelItemCount() == 0 ? m_historyEmpty->sizeHint().height() : listHeight);
}

void OverviewPage::refreshAccessBanner()
{
    m_accessBanner->setVisible(!m_model->systemState().fullDiskAccess);
}
