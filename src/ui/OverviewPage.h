#pragma once

#include "vocabulary/CategoryID.h"

#include <QWidget>

#include <array>
#include <functional>

class AppModel;
class QFrame;
class QLabel;
class QStackedWidget;
class QTreeWidget;

// The first screen: what the two groups of categories found, the statistics of past scans and
// cleanups, the promise that a scan only reads, and a banner while Full Disk Access is missing.
// Follows the model's and the statistics store's signals; GUI thread only.
class OverviewPage : public QWidget {
    Q_OBJECT

public:
    explicit OverviewPage(AppModel* model, QWidget* parent = nullptr);

    // What the banner's button does (the window opens the system's privacy settings).
    void setOpenFullDiskAccess(std::function<void()> open) { m_openFullDiskAccess = std::move(open); }

    QTreeWidget* history() const { return m_history; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct GroupLabels {
        QLabel* size = nullptr;
        QLabel* caption = nullptr;
    };

    QFrame* makeAccessBanner();
    QWidget* makeGroups();
    QWidget* makeGroupCard(CleanerGroup group);
    QWidget* makeHistory();
    QWidget* makeTotals();
    QWidget* makeFigure(QLabel* value, const QString& caption);
    void refreshGroups();
    void refreshGroup(CleanerGroup group);
    void refreshStats();
    void refreshHistory();
    void fitHistoryHeight();
    void refreshAccessBanner();

    AppModel* m_model;
    std::function<void()> m_openFullDiskAccess;
    QFrame* m_accessBanner = nullptr;
    std::array<GroupLabels, 2> m_groups;
    QLabel* m_cleanedBytes;
    QLabel* m_cleanups;
    QLabel* m_itemsRemoved;
    QLabel* m_lastScan;
    QTreeWidget* m_history;
    QLabel* m_historyEmpty;
    QStackedWidget* m_historyStack;
};
