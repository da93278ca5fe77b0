#pragma once

#include "storage/StorageReport.h"

#include <QIcon>
#include <QWidget>

#include <optional>

class AppModel;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class SizeBarDelegate;
class StorageHeader;
class StorageFolders;
class StorageRing;
class QTabWidget;

// The Storage screen: the used disk as a ring of the buckets plus the remainder the walk can't
// see, the buckets largest first beside it, and below either the map of folders (a sunburst)
// or a drill-down: a bucket's folders largest first, then one folder's sub-folder groups and
// largest files. Shows the model's last report
// and follows its storageChanged signal; GUI thread only.
class StoragePage : public QWidget {
    Q_OBJECT

public:
    explicit StoragePage(AppModel* model, QWidget* parent = nullptr);

    // What the drill-down shows: a bucket, and within it a folder.
    void showBucket(StorageBucket bucket);
    void showFolder(const QString& path);
    void showBuckets();

    QTreeWidget* legend() const { return m_legend; }
    QTreeWidget* details() const { return m_details; }
    QLabel* place() const { return m_place; }
    StorageRing* ring() const { return m_ring; }
    StorageFolders* folders() const { return m_folders; }
    QTabWidget* views() const { return m_views; }

private:
    QWidget* makeOverview();
    QWidget* makeDrillDown();
    void refresh();
    void refreshRing();
    void refreshLegend();
    void refreshDetails();
    void fillFolders(const StorageReport& report, StorageBucket bucket);
    void fillFolder(const StorageReport::FolderUsage& folder, StorageBucket bucket);
    QTreeWidgetItem* addDetail(const QString& name, qint64 bytes, const QString& count, StorageBucket bucket);
    void showDetailMenu(const QPoint& at);
    void detailActivated(QTreeWidgetItem* item);
    void legendChosen(QTreeWidgetItem* item);
    void ringClicked(int index);
    QString shortPath(const QString& path) const;

    AppModel* m_model;
    StorageHeader* m_header;
    StorageRing* m_ring;
    QTreeWidget* m_legend;
    QLabel* m_place;
    QPushButton* m_back;
    QTreeWidget* m_details;
    // The style's icons, made once: each call of standardIcon reads and decodes its images again,
    // which a list of a thousand folders paid for once per row.
    QIcon m_folderIcon;
    QIcon m_fileIcon;
    SizeBarDelegate* m_bars;
    QTabWidget* m_views = nullptr;
    StorageFolders* m_folders = nullptr;
    QList<std::optional<StorageBucket>> m_ringBuckets;  // absent: the remainder
    std::optional<StorageBucket> m_bucket;
    std::optional<QString> m_folder;
};
