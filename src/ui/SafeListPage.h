#pragma once

#include "ui/FolderListEditor.h"
#include "vocabulary/SafeItemInfo.h"

#include <QWidget>

class AppModel;
class QLabel;
class QVBoxLayout;

// The Safe List screen: the rows and folders the person never wants offered, each with a way
// off the list, and a way to add a whole folder. Follows the settings store's signals; GUI
// thread only.
class SafeListPage : public QWidget {
    Q_OBJECT

public:
    explicit SafeListPage(AppModel* model, QWidget* parent = nullptr);

    // Replaces the folder picker behind "Add Folder…" (tests inject a path).
    void setFolderPicker(FolderListEditor::FolderPicker picker);
    FolderListEditor* folderEditor() const { return m_folders; }
    // The ids of the rows shown, in display order (newest first).
    [[nodiscard]] QStringList shownItemIds() const { return m_shownIds; }

private:
    QWidget* makeContent();
    void addItemsSection(QVBoxLayout* layout, QWidget* content);
    void addFoldersSection(QVBoxLayout* layout, QWidget* content);
    QWidget* makeItemRow(const QString& id, const SafeItemInfo* info);
    void refreshItems();
    void refreshFolders();
    void clearItemRows();

    AppModel* m_model;
    QVBoxLayout* m_itemRows;
    QLabel* m_itemsEmpty = nullptr;
    FolderListEditor* m_folders;
    QStringList m_shownIds;
};
