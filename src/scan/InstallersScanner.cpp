#include "scan/InstallersScanner.h"

#include "format/RelativeDate.h"
#include "machinery/FileInfo.h"
#include "scan/StampedTarget.h"
#include "scan/WalkNames.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>
#include <sys/stat.h>

namespace {

// One search of Downloads and Desktop: the rows found and whether some folder was unreadable.
class InstallerSearch {
public:
    explicit InstallerSearch(const ScanContext& context) : m_context(context) {}

    void visit(const QString& folder, int level);
    QList<CleanupItem> rows;
    bool sawUnreadable = false;

private:
    void consider(const QString& path, int level);
    void addRow(const QString& path, const struct stat& info);

    const ScanContext& m_context;
};

void InstallerSearch::visit(const QString& folder, int level)
{
    if (!FileInfo::canList(folder)) {
        sawUnreadable = true;
        return;
    }
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    for (const QString& name : names) {
        if (m_context.isCancelled())
            return;
        if (!name.startsWith(QLatin1Char('.')))
            consider(folder + QLatin1Char('/') + name, level);
    }
}

void InstallerSearch::consider(const QString& path, int level)
{
    const auto info = FileStatus::of(path);
    if (!info || S_ISLNK(info->st_mode))
        return;
    const QString name = path.section(QLatin1Char('/'), -1);
    // A flat package is a file and an old bundle package a folder: both are one installer.
    if (InstallersScanner::isInstaller(name) && (S_ISREG(info->st_mode) || S_ISDIR(info->st_mode)))
        addRow(path, *info);
    else if (S_ISDIR(info->st_mode) && level < InstallersScanner::deepestLevel
             && !name.endsWith(QLatin1String(".app"), Qt::CaseInsensitive))
        visit(path, level + 1);
}

void InstallerSearch::addRow(const QString& path, const struct stat& info)
{
    const std::optional<StampedTarget::Measured> measured = StampedTarget::measured(path, m_context);
    if (!measured)
        return;
    CleanupItem item;
    item.id = path;
    item.category = CategoryID::installers;
    item.title = path.section(QLatin1Char('/'), -1);
    item.size = measured->bytes;
    item.removal = Removal::trash({measured->target});
    item.date = QDateTime::fromSecsSinceEpoch(info.st_mtime, QTimeZone::utc());
    const QString folder = PathRules::withTilde(path.section(QLatin1Char('/'), 0, -2), m_context.home);
    //: Fact in an Installers row's detail, after its folder; %1 is a relative date like '3 months ago'
    const QString changed = QCoreApplication::translate("InstallersScanner", "changed %1")
                                .arg(RelativeDate::marker(*item.date));
    item.detail = folder + QStringLiteral(" · ") + changed;
    rows.append(item);
}

}  // namespace

bool InstallersScanner::isInstaller(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0)
        return false;
    const QByteArray extension = name.mid(dot + 1).toLower().toUtf8();
    return WalkNames::isInstallerExtension(std::string_view(extension.constData(), size_t(extension.size())));
}

QString InstallersScanner::unreadableNote(Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::freedesktop)
        //: Note above Installers on Linux when some folders of Downloads or Desktop can't be read
        return QCoreApplication::translate("InstallersScanner", "Some folders couldn't be read: their permissions don't let you open them.");
    //: Note above Installers when some folders of Downloads or Desktop can't be read
    return QCoreApplication::translate("InstallersScanner", "Some folders couldn't be read. Allow access when macOS asks.");
}

ScanOutputs InstallersScanner::scan(const ScanContext& context) const
{
    InstallerSearch search(context);
    for (const char* folder : {"Downloads", "Desktop"}) {
        const QString path = context.home + QLatin1Char('/') + QLatin1String(folder);
        context.progress->setCurrentFolder(path);
        if (FileStatus::exists(path))
            search.visit(path, 1);
    }
    ScanOutput output;
    output.items = search.rows;
    if (search.sawUnreadable)
        output.notes.append(unreadableNote());
    return {{CategoryID::installers, output}};
}
