#pragma once

#include <QString>

class AppModel;

// Showing an item in the file manager, one way for every screen: the entry's title names the
// system's file manager, and the request runs off the GUI thread (the desktop may take seconds
// to answer); when nothing can show the item, a toast says so.
namespace Reveal {

// "Show in Finder" on macOS, "Show in File Manager" elsewhere.
[[nodiscard]] QString title();

// Shows `path` (or the folder that held it); `opener` as in SystemAccess::reveal.
void show(AppModel* model, const QString& path, const QString& opener = QStringLiteral("/usr/bin/xdg-open"));

}  // namespace Reveal
