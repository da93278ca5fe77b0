#pragma once

#include "model/SidebarDestination.h"

#include <QTreeWidget>

// The list on the left: the fixed screens, then the two groups with every category in order.
class Sidebar : public QTreeWidget {
    Q_OBJECT

public:
    explicit Sidebar(QWidget* parent = nullptr);

    void select(const SidebarDestination& destination);
    // Screens whose page is not built yet stay visible but cannot be chosen.
    void setScreenAvailable(const SidebarDestination& destination, bool available);
    // Sets the size shown beside a category (empty text hides it).
    void setCategorySize(CategoryID category, const QString& size);

signals:
    void destinationChosen(const SidebarDestination& destination);

private:
    QTreeWidgetItem* addScreen(QTreeWidgetItem* parent, const QString& title, const SidebarDestination& destination);
    QTreeWidgetItem* itemFor(const SidebarDestination& destination) const;
    void emitChoice();
};
