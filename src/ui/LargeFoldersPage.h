#pragma once

#include "storage/StorageReport.h"

#include <QIcon>
#include <QWidget>

class AppModel;
class QTreeWidget;
class SizeBarDelegate;

// The Large Folders screen: the folders that are big because they hold thousands of small
// files, largest first, with their size, file count, share of small files and kind. Shows the
// model's last storage report; GUI thread only.
class LargeFoldersPage : public QWidget {
    Q_OBJECT

public:
    explicit LargeFoldersPage(AppModel* model, QWidget* parent = nullptr);

    QTreeWidget* list() const { return m_list; }

private:
    void refresh();
    void showMenu(const QPoint& at);
    static QString sizeNote(const StorageReport& report, const StorageReport::LargeFolder& folder, const QString& home);

    AppModel* m_model;
    QTreeWidget* m_list;
    // The style's folder icon, made once: each call of standardIcon reads and decodes its images again,
    // which a list of a thousand folders paid for once per row.
    QIcon m_folderIcon;
    SizeBarDelegate* m_bars;
};
