#pragma once

#include "model/SidebarDestination.h"

#include <QSet>
#include <QTimer>
#include <QTreeWidget>

// The list on the left: the fixed screens, then the two groups with every category in order
// (on Linux the three that can't fill there under a heading of their own), each with its icon, its total size once scanned and a busy indicator while it scans.
// Thirty rows at most, so a tree widget is fine here.
class Sidebar : public QTreeWidget {
    Q_OBJECT

public:
    explicit Sidebar(QWidget* parent = nullptr);

    // Marks the row of `destination` as current without announcing a choice.
    void select(const SidebarDestination& destination);
    // Screens whose page is not built yet stay visible but cannot be chosen.
    void setScreenAvailable(const SidebarDestination& destination, bool available);
    // Sets the size shown beside a category (empty text hides it).
    void setCategorySize(CategoryID category, const QString& size);
    void setCategoryBusy(CategoryID category, bool busy);
    bool isCategoryBusy(CategoryID category) const { return m_busy.contains(category); }
    QTreeWidgetItem* itemFor(const SidebarDestination& destination) const;
    // Wide enough for every title whole beside a size column, in any language: a splitter
    // never squeezes the list below it.
    QSize minimumSizeHint() const override;

protected:
    void updateGeometries() override;
    void changeEvent(QEvent* event) override;

signals:
    // The person picked a row; the window decides whether it becomes the shown screen.
    void destinationChosen(const SidebarDestination& destination);

private:
    QTreeWidgetItem* addScreen(QTreeWidgetItem* parent, const QString& title, const SidebarDestination& destination);
    void addGroups();
    void addGroup(const QString& title, const QList<CategoryID>& categories);
    int rowHeight() const;
    int headingHeight() const;
    void emitChoice();
    void advanceBusyFrames();
    QIcon busyFrame(int step) const;

    QSet<CategoryID> m_busy;
    QTimer m_busyTimer;
    int m_busyStep = 0;
    // The glyph's frames in the palette's colour, drawn once: a scan turns them for seconds.
    mutable QList<QIcon> m_busyFrames;
};
