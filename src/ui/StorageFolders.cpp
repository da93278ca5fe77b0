#include "ui/StorageFolders.h"

#include "format/ByteCount.h"
#include "format/WholeNumber.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/FolderActions.h"
#include "ui/RowMenuKeys.h"
#include "ui/SizeBarDelegate.h"
#include "ui/StorageBucketStyle.h"
#include "ui/Sunburst.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

enum Column { nameColumn, sizeColumn, filesColumn };
constexpr int pathRole = Qt::UserRole;
constexpr int folderRole = Qt::UserRole + 1;
constexpr qsizetype filesShown = 30;

}  // namespace

QString StorageFolders::fileCount(qint64 count)
{
    if (count == 1)
        //: Number of files below a folder in the storage lists, singular
        return tr("1 file");
    //: Number of files below a folder in the storage lists; %1 is the number
    return tr("%1 files").arg(WholeNumber::format(count));
}

StorageFolders::StorageFolders(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_breadcrumb(new QLabel(this)),
      m_remeasure(new QPushButton(FolderActions::remeasureTitle(), this)), m_sunburst(new Sunburst(this)),
      m_contents(new QTreeWidget(this)), m_bars(new SizeBarDelegate(this))
{
    m_folderIcon = style()->standardIcon(QStyle::SP_DirIcon);
    m_fileIcon = style()->standardIcon(QStyle::SP_FileIcon);
    m_breadcrumb->setTextFormat(Qt::RichText);
    m_breadcrumb->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    m_contents->setRootIsDecorated(false);
    m_contents->setUniformRowHeights(true);
    m_contents->setAlternatingRowColors(true);
    //: Column heading of the storage map's list: a folder's or file's name
    const QString name = tr("Name");
    //: Column heading of the storage map's list: its size on disk
    const QString size = tr("Size");
    //: Column heading of the storage map's list: how many files a folder holds
    const QString files = tr("Files");
    m_contents->setHeaderLabels({name, size, files});
    m_contents->setItemDelegateForColumn(sizeColumn, m_bars);
    m_contents->setContextMenuPolicy(Qt::CustomContextMenu);
    RowMenuKeys::install(m_contents);
    m_contents->header()->setStretchLastSection(false);
    m_contents->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    m_contents->header()->setSectionResizeMode(filesColumn, QHeaderView::ResizeToContents);
    m_contents->header()->resizeSection(sizeColumn, 130);
    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    body->addWidget(m_sunburst, 1);
    body->addWidget(m_contents, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    top->addWidget(m_breadcrumb, 1);
    top->addWidget(m_remeasure);
    layout->addLayout(top);
    layout->addLayout(body, 1);
    connect(m_remeasure, &QPushButton::clicked, this, [this] { m_model->remeasureFolder(currentPath()); });
    connect(m_breadcrumb, &QLabel::linkActivated, this, [this](const QString& link) {
        m_sunburst->zoomTo(m_sunburst->zoom().mid(0, link.toInt()));
    });
    connect(m_sunburst, &Sunburst::zoomChanged, this, &StorageFolders::showZoom);
    connect(m_contents, &QTreeWidget::itemActivated, this, &StorageFolders::rowChosen);
    connect(m_contents, &QTreeWidget::itemDoubleClicked, this, &StorageFolders::rowChosen);
    connect(m_contents, &QWidget::customContextMenuRequested, this, &StorageFolders::showMenu);
    m_sunburst->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_sunburst, &QWidget::customContextMenuRequested, this, &StorageFolders::showSegmentMenu);
    connect(m_model, &AppModel::storageChanged, this, &StorageFolders::refresh);
    refresh();
}

QString StorageFolders::currentPath() const
{
    return pathOf(m_sunburst->zoom());
}

QString StorageFolders::pathOf(const QStringList& names) const
{
    return names.isEmpty() ? m_model->settings()->home() : m_model->settings()->home() + QLatin1Char('/') + names.join(QLatin1Char('/'));
}

void StorageFolders::refresh()
{
    const auto& report = m_model->storageReport();
    m_sunburst->setTree(report ? report->tree : FolderNode{});
    showZoom(m_sunburst->zoom());
}

void StorageFolders::showZoom(const QStringList& names)
{
    m_remeasure->setVisible(!names.isEmpty());
    m_remeasure->setEnabled(m_model->canRemeasureFolder(currentPath()));
    refreshBreadcrumb(names);
    refreshContents();
}

void StorageFolders::refreshBreadcrumb(const QStringList& names)
{
    const QString top = m_sunburst->tree().name;
    if (top.isEmpty()) {
        m_breadcrumb->clear();
        return;
    }
    QStringList parts;
    for (qsizetype depth = 0; depth <= names.size(); ++depth) {
        const QString name = (depth == 0 ? top : names.at(depth - 1)).toHtmlEscaped();
        parts.append(depth == names.size() ? QStringLiteral("<b>%1</b>").arg(name)
                                           : QStringLiteral("<a href=\"%1\">%2</a>").arg(depth).arg(name));
    }
    m_breadcrumb->setText(parts.join(QStringLiteral("  ›  ")));
}

void StorageFolders::refreshContents()
{
    m_contents->clear();
    const FolderNode* folder = m_sunburst->tree().find(m_sunburst->zoom());
    if (!folder || folder->bytes <= 0)
        return;
    m_bars->setMaximum(folder->children.empty() ? folder->ownBytes : std::max(folder->children.front().bytes, folder->ownBytes));
    const QString path = currentPath();
    for (const FolderNode& child : folder->children) {
        QTreeWidgetItem* row = addRow(child.name + QLatin1Char('/'), child.bytes, fileCount(child.fileCount),
                                      path + QLatin1Char('/') + child.name, true);
        row->setData(sizeColumn, SizeBarDelegate::colourRole, StorageBucketStyle::colour(child.kind));
    }
    if (folder->foldedBytes > 0) {
        //: Row of the storage map's list: the sub-folders too small to show one by one
        addRow(tr("Smaller folders"), folder->foldedBytes, {}, {}, false);
    }
    addFileRows(path);
    FolderActions::markGone(m_contents, pathRole, m_model);
}

// The largest files below the folder that the analysis kept (each kind keeps the largest of
// every folder it lists), largest first.
void StorageFolders::addFileRows(const QString& folder)
{
    const auto& report = m_model->storageReport();
    QList<StorageReport::FileUsage> files;
    const QString prefix = folder + QLatin1Char('/');
    for (const auto& usages : report->folders) {
        for (const StorageReport::FolderUsage& usage : usages) {
            for (const StorageReport::FileUsage& file : usage.files) {
                if (file.path.startsWith(prefix))
                    files.append(file);
            }
        }
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.bytes > b.bytes; });
    files.erase(std::unique(files.begin(), files.end()), files.end());
    for (const StorageReport::FileUsage& file : files.first(std::min(filesShown, files.size())))
        addRow(file.path.mid(prefix.size()), file.bytes, {}, file.path, false)
            ->setIcon(nameColumn, m_fileIcon);
}

QTreeWidgetItem* StorageFolders::addRow(const QString& name, qint64 bytes, const QString& files, const QString& path, bool folder)
{
    auto* row = new QTreeWidgetItem(m_contents, {name, ByteCount::format(bytes), files});
    row->setData(nameColumn, pathRole, path);
    row->setData(nameColumn, folderRole, folder);
    row->setToolTip(nameColumn, path);
    if (folder)
        row->setIcon(nameColumn, m_folderIcon);
    row->setData(sizeColumn, SizeBarDelegate::bytesRole, bytes);
    row->setData(sizeColumn, SizeBarDelegate::colourRole, StorageBucketStyle::remainderColour());
    row->setTextAlignment(sizeColumn, Qt::AlignRight | Qt::AlignVCenter);
    row->setTextAlignment(filesColumn, Qt::AlignRight | Qt::AlignVCenter);
    return row;
}

void StorageFolders::rowChosen(QTreeWidgetItem* item)
{
    if (item->data(nameColumn, folderRole).toBool())
        m_sunburst->zoomTo(m_sunburst->zoom() << item->text(nameColumn).chopped(1));
}

void StorageFolders::showMenu(const QPoint& at)
{
    QTreeWidgetItem* item = m_contents->itemAt(at);
    const QString path = item ? item->data(nameColumn, pathRole).toString() : QString();
    if (path.isEmpty())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FolderActions::addTo(menu, m_model, path, item->data(sizeColumn, SizeBarDelegate::bytesRole).toLongLong(), window());
    menu->popup(m_contents->viewport()->mapToGlobal(at));
}

// A folder's segment has the row menu of the folder; its files and smaller items have none.
void StorageFolders::showSegmentMenu(const QPoint& at)
{
    const int index = m_sunburst->segmentAt(at);
    if (index < 0 || m_sunburst->layout().segments().at(size_t(index)).part != SunburstLayout::Part::folder)
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FolderActions::addTo(menu, m_model, pathOf(m_sunburst->folderOf(index)), m_sunburst->layout().segments().at(size_t(index)).bytes, window());
    menu->popup(m_sunburst->mapToGlobal(at));
}
