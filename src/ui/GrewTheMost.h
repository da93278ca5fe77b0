#pragma once

#include <QWidget>

class HistoryRecorder;
class QComboBox;
class QLabel;
class QTreeWidget;

// The Storage screen's "Grew the most": the folders that grew most since an earlier storage
// analysis the person chooses (the one before the newest at first). Hidden until two are kept.
class GrewTheMost : public QWidget {
    Q_OBJECT

public:
    explicit GrewTheMost(HistoryRecorder* history, QWidget* parent = nullptr);

    static constexpr int foldersShown = 10;

    QComboBox* earlier() const { return m_earlier; }
    QTreeWidget* folders() const { return m_folders; }

private:
    void refresh();
    void refreshChoices();

    HistoryRecorder* m_history;
    QComboBox* m_earlier;
    QTreeWidget* m_folders;
};
