#include "ui/FolderChooser.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QStorageInfo>

namespace FolderChooser {

namespace {

// A disk the person keeps files on: a block device, not the boot partitions or the system's
// memory and image file systems, which hold nothing to scan or move to.
bool isPersonsDisk(const QStorageInfo& volume)
{
    const QString root = volume.rootPath();
    return volume.isValid() && volume.isReady() && volume.device().startsWith("/dev/")
        && !root.startsWith(QLatin1String("/boot")) && !root.startsWith(QLatin1String("/snap/"));
}

void closeCompletions(QFileDialog* dialog)
{
    for (QCompleter* completer : dialog->findChildren<QCompleter*>()) {
        if (completer->popup())
            completer->popup()->hide();
    }
}

}  // namespace

QList<QUrl> places()
{
    QList<QUrl> urls{QUrl::fromLocalFile(QDir::homePath())};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QUrl url = QUrl::fromLocalFile(volume.rootPath());
        if (isPersonsDisk(volume) && !urls.contains(url))
            urls.append(url);
    }
    return urls;
}

QFileDialog* make(QWidget* parent, const QString& title)
{
    auto* dialog = new QFileDialog(parent, title, QDir::homePath());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setSidebarUrls(places());
    QObject::connect(dialog, &QFileDialog::finished, dialog, [dialog] { closeCompletions(dialog); });
    return dialog;
}

}  // namespace FolderChooser
