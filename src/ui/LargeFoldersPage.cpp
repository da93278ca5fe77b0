#include "ui/LargeFoldersPage.h"

#include "format/ByteCount.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/FolderActions.h"
#include "ui/RowMenuKeys.h"
#include "ui/SizeBarDelegate.h"
#include "ui/StorageBucketStyle.h"
#include "ui/StorageHeader.h"
#include "vocabulary/PathRules.h"

#include <QHeaderView>
#include <QMenu>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { folderColumn, sizeColumn, filesColumn, smallColumn, kindColumn };
constexpr int pathRole = Qt::UserRole;

QStringList headings()
{
    //: Column heading of the large folders: the folder
    return {LargeFoldersPage::tr("Folder"),
            //: Column heading of the large folders: its size
            LargeFoldersPage::tr("Size"),
            //: Column heading of the large folders: how many files it holds
            LargeFoldersPage::tr("Files"),
            //: Column heading of the large folders: the share of its bytes in small files
            LargeFoldersPage::tr("Small Files"),
            //: Column heading of the large folders: the kind of data
            LargeFoldersPage::tr("Kind")};
}

}  // namespace

LargeFoldersPage::LargeFoldersPage(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_list(new QTreeWidget(this)), m_bars(new SizeBarDelegate(this))
{
    m_folderIcon = style()->standardIcon(QStyle::SP_DirIcon);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    //: Heading of the large folders screen
    layout->addWidget(new StorageHeader(model, tr("Large Folders"),
        //: Explanation on the large folders screen
        tr("Folders that are big because they hold thousands of small files (each under 1 MB), such as "
           "package folders and caches. A folder inside a listed one is counted only once."), this));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setHeaderLabels(headings());
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    RowMenuKeys::install(m_list);
    m_list->setItemDelegateForColumn(sizeColumn, m_bars);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(folderColumn, QHeaderView::Stretch);
    for (int column : {filesColumn, smallColumn, kindColumn})
        m_list->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    m_list->header()->resizeSection(sizeColumn, 140);
    layout->addWidget(m_list, 1);
    connect(m_list, &QWidget::customContextMenuRequested, this, &LargeFoldersPage::showMenu);
    connect(m_model, &AppModel::storageChanged, this, &LargeFoldersPage::refresh);
    refresh();
}

void LargeFoldersPage::refresh()
{
    m_list->clear();
    const auto& report = m_model->storageReport();
    if (!report)
        return;
    m_bars->setMaximum(report->largeFolders.isEmpty() ? 0 : report->largeFolders.first().bytes);
    const QString home = m_model->settings()->home();
    const QLocale locale;
    for (const StorageReport::LargeFolder& folder : report->largeFolders) {
        const int smallShare = folder.bytes > 0 ? qRound(100.0 * double(folder.smallBytes) / double(folder.bytes)) : 0;
        auto* row = new QTreeWidgetItem(m_list, {PathRules::withTilde(folder.path, home), ByteCount::format(folder.bytes),
                                                 locale.toString(folder.fileCount), QStringLiteral("%1%").arg(smallShare),
                                                 StorageBuckets::title(folder.kind)});
        row->setData(folderColumn, pathRole, folder.path);
        row->setToolTip(folderColumn, folder.path);
        row->setIcon(folderColumn, m_folderIcon);
        row->setIcon(kindColumn, StorageBucketStyle::swatch(StorageBucketStyle::colour(folder.kind)));
        row->setData(sizeColumn, SizeBarDelegate::bytesRole, folder.bytes);
        row->setData(sizeColumn, SizeBarDelegate::colourRole, StorageBucketStyle::colour(folder.kind));
        row->setSizeHint(folderColumn, QSize(0, fontMetrics().height() + 14));
        for (int column : {sizeColumn, filesColumn, smallColumn})
            row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        row->setToolTip(sizeColumn, sizeNote(*report, folder, home));
    }
    FolderActions::markGone(m_list, pathRole, m_model);
}

// Storage shows a folder whole; this list leaves out the listed folders inside it. Where the two
// differ, the row says which is which.
QString LargeFoldersPage::sizeNote(const StorageReport& report, const StorageReport::LargeFolder& folder, const QString& home)
{
    if (!folder.path.startsWith(home + QLatin1Char('/')))
        return {};
    const FolderNode* whole = report.tree.find(folder.path.mid(home.size() + 1).split(QLatin1Char('/')));
    if (!whole || whole->bytes == folder.bytes)
        return {};
    //: Tooltip of a large folder's size when the whole folder is larger; %1 is the size shown here, %2 the whole folder's size
    return tr("%1 without the large folders listed inside it; the whole folder holds %2, as Storage shows.")
        .arg(ByteCount::format(folder.bytes), ByteCount::format(whole->bytes));
}

void LargeFoldersPage::showMenu(const QPoint& at)
{
    QTreeWidgetItem* item = m_list->itemAt(at);
    if (!item)
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FolderActions::addTo(menu, m_model, item->data(folderColumn, pathRole).toString(),
                         item->data(sizeColumn, SizeBarDelegate::bytesRole).toLongLong(), window());
    menu->popup(m_list->viewport()->mapToGlobal(at));
}
