#include "ui/CategoryIcon.h"

#include <QStyle>

namespace CategoryIcon {

namespace {

QStyle::StandardPixmap standardPixmap(CategoryID category)
{
    switch (category) {
    case CategoryID::projects: return QStyle::SP_DirIcon;
    case CategoryID::worktrees: return QStyle::SP_DirLinkIcon;
    case CategoryID::xcode: return QStyle::SP_FileDialogDetailedView;
    case CategoryID::simulators: return QStyle::SP_DesktopIcon;
    case CategoryID::android: return QStyle::SP_ComputerIcon;
    case CategoryID::packageCaches: return QStyle::SP_DriveCDIcon;
    case CategoryID::editors: return QStyle::SP_FileDialogContentsView;
    case CategoryID::docker: return QStyle::SP_DriveNetIcon;
    case CategoryID::aiModels: return QStyle::SP_DriveDVDIcon;
    case CategoryID::aiAgents: return QStyle::SP_FileDialogInfoView;
    case CategoryID::apps: return QStyle::SP_FileDialogListView;
    case CategoryID::leftovers: return QStyle::SP_DirClosedIcon;
    case CategoryID::appCaches: return QStyle::SP_DriveHDIcon;
    case CategoryID::logs: return QStyle::SP_FileIcon;
    case CategoryID::browserCaches: return QStyle::SP_BrowserReload;
    case CategoryID::installers: return QStyle::SP_ArrowDown;
    case CategoryID::oldDownloads: return QStyle::SP_FileDialogBack;
    case CategoryID::temporary: return QStyle::SP_DirOpenIcon;
    case CategoryID::largeFiles: return QStyle::SP_FileLinkIcon;
    case CategoryID::duplicates: return QStyle::SP_FileDialogNewFolder;
    case CategoryID::devices: return QStyle::SP_DriveFDIcon;
    case CategoryID::trash: return QStyle::SP_TrashIcon;
    }
    return QStyle::SP_FileIcon;
}

}  // namespace

QIcon icon(CategoryID category, const QStyle* style)
{
    return style->standardIcon(standardPixmap(category));
}

}  // namespace CategoryIcon
