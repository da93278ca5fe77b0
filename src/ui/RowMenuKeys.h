#pragma once

class QAbstractItemView;
class QKeyEvent;

// The keyboard's way to a row menu: the menu key or Shift+F10 opens it at the current row, as a
// right click does there.
namespace RowMenuKeys {

[[nodiscard]] bool isMenuKey(const QKeyEvent* key);

// Makes `view`, whose context menu policy is Qt::CustomContextMenu, answer those keys with
// customContextMenuRequested at its current row (nothing without one).
void install(QAbstractItemView* view);

}  // namespace RowMenuKeys
