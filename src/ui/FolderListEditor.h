#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

class QLabel;
class QListWidget;
class QPushButton;

// A list of folders with "Add Folder…" and "Remove" buttons. It only asks: the owner changes
// its store on addRequested and removeRequested and hands the new list back with setFolders().
class FolderListEditor : public QWidget {
    Q_OBJECT

public:
    // Asks the person for a folder; an empty text when they cancel. Tests inject a path.
    using FolderPicker = std::function<QString(QWidget* parent)>;

    explicit FolderListEditor(QWidget* parent = nullptr);

    void setFolders(const QStringList& folders);
    [[nodiscard]] QStringList folders() const;
    void setFolderPicker(FolderPicker picker) { m_picker = std::move(picker); }
    // What the list says while it is empty.
    void setEmptyText(const QString& text);
    QListWidget* list() const { return m_list; }

    // Runs the picker and asks for the chosen folder to be added; nothing when cancelled.
    void addFolder();
    // Asks for the selected folder to be removed; nothing when none is selected.
    void removeSelected();

signals:
    void addRequested(const QString& path);
    void removeRequested(const QString& path);

private:
    void updateState();
    void fitHeight();

    QListWidget* m_list;
    QLabel* m_emptyText;
    QPushButton* m_removeButton;
    FolderPicker m_picker;
};
