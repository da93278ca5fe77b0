#include "ui/Reveal.h"

#include "actions/SystemAccess.h"
#include "machinery/Background.h"
#include "model/AppModel.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Reveal {

QString title()
{
    if (Platform::desktop() == Platform::Desktop::finder)
        //: Menu entry and button that show an item selected in Finder
        return QCoreApplication::translate("Reveal", "Show in Finder");
    //: Menu entry and button that show an item in the desktop's file manager (Linux)
    return QCoreApplication::translate("Reveal", "Show in File Manager");
}

void show(AppModel* model, const QString& path, const QString& opener)
{
    Background::run(model, [path, opener] { return SystemAccess::reveal(path, opener); }, [model, path](bool shown) {
        if (shown)
            return;
        //: Toast when no file manager could show an item; %1 is its name
        model->showToast(QCoreApplication::translate("Reveal", "No file manager could show “%1”.")
                             .arg(QFileInfo(path).fileName()));
    });
}

}  // namespace Reveal
