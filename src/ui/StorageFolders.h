#pragma once

#include <QStringList>
#include <QIcon>
#include <QWidget>

class AppModel;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class SizeBarDelegate;
class Sunburst;

// The Storage screen's map of folders: a breadcrumb of where the person is, the sunburst of the
// measured folders, and beside it what the folder in the middle holds: its sub-folders largest
// first, then the largest files found below it. Each row has the storage row menu; choosing a
// sub-folder zooms into it. Zoomed in, a button measures the folder in the middle again. Follows the model's storage report; GUI thread only.
class StorageFolders : public QWidget {
    Q_OBJECT

public:
    // "1 file", "1,234 files": how many files a folder holds, in Storage's lists.
    static QString fileCount(qint64 count);

    explicit StorageFolders(AppModel* model, QWidget* parent = nullptr);

    Sunburst* sunburst() const { return m_sunburst; }
    QLabel* breadcrumb() const { return m_breadcrumb; }
    // Measures the folder in the middle again; shown once zoomed in.
    QPushButton* remeasure() const { return m_remeasure; }
    QTreeWidget* contents() const { return m_contents; }
    // The full path of the folder in the middle.
    QString currentPath() const;

private:
    void refresh();
    void showZoom(const QStringList& names);
    void refreshBreadcrumb(const QStringList& names);
    void refreshContents();
    void addFileRows(const QString& folder);
    QTreeWidgetItem* addRow(const QString& name, qint64 bytes, const QString& files, const QString& path, bool folder);
    void rowChosen(QTreeWidgetItem* item);
    void showMenu(const QPoint& at);
    void showSegmentMenu(const QPoint& at);
    QString pathOf(const QStringList& names) const;

    AppModel* m_model;
    QLabel* m_breadcrumb;
    QPushButton* m_remeasure;
    Sunburst* m_sunburst;
    QTreeWidget* m_contents;
    // The style's icons, made once: each call of standardIcon reads and decodes its images again,
    // which a list of a thousand folders paid for once per row.
    QIcon m_folderIcon;
    QIcon m_fileIcon;
    SizeBarDelegate* m_bars;
};
