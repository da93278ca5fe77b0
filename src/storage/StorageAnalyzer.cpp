#include "storage/StorageAnalyzer.h"

#include "format/WholeNumber.h"
#include "machinery/Concurrency.h"
#include "storage/BucketRules.h"
#include "storage/FolderScope.h"
#include "storage/FolderSplice.h"
#include "storage/FolderUsageBuilder.h"
#include "storage/HomeTree.h"
#include "storage/StorageWalker.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <dirent.h>
#include <sys/stat.h>

namespace StorageAnalyzer {

namespace {

// The entries of a folder by their raw names, sorted, without "." and ".."; empty when unreadable.
std::vector<QByteArray> entriesOf(const QByteArray& folder)
{
    std::vector<QByteArray> entries;
    DIR* directory = ::opendir(folder.constData());
    if (!directory)
        return entries;
    while (const dirent* entry = ::readdir(directory)) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..")
            entries.push_back(name);
    }
    ::closedir(directory);
    std::sort(entries.begin(), entries.end());
    return entries;
}

// The device of `path` itself, or of what it points to when `follow` (a home given through a
// symbolic link still has its entries on the volume it points to).
std::optional<dev_t> deviceOf(const QByteArray& path, bool follow = false)
{
    struct stat status {};
    if ((follow ? ::stat(path.constData(), &status) : ::lstat(path.constData(), &status)) != 0)
        return std::nullopt;
    return status.st_dev;
}

void appendEntries(std::vector<QByteArray>& roots, const QByteArray& folder, dev_t device,
                   const std::function<bool(const QByteArray&)>& skip)
{
    for (const QByteArray& name : entriesOf(folder)) {
        const QByteArray path = folder + '/' + name;
        if (!skip(name) && deviceOf(path) == device)
            roots.push_back(path);
    }
}

void addLinkedFiles(StorageReport& report, const std::vector<StoragePartial>& partials)
{
    QSet<FileKey> counted;
    for (const StoragePartial& partial : partials) {
        for (auto link = partial.links.cbegin(); link != partial.links.cend(); ++link) {
            if (counted.contains(link.key()))
                continue;
            counted.insert(link.key());
            report.totals.at(static_cast<size_t>(link->bucket)) += link->bytes;
        }
    }
}

QString unreadableNote(qint64 folders)
{
    if (folders == 1)
        //: Note above the storage breakdown when one folder could not be read
        return QCoreApplication::translate("StorageAnalyzer", "1 folder couldn't be read; what it holds counts as %1.")
            .arg(StorageBuckets::remainderTitle());
    //: Note above the storage breakdown; %1 is the number of folders that could not be read, %2 the name of the remainder
    return QCoreApplication::translate("StorageAnalyzer", "%1 folders couldn't be read; what they hold counts as %2.")
        .arg(WholeNumber::format(folders), StorageBuckets::remainderTitle());
}

}  // namespace

const QStringList& protectedLibraryEntries()
{
    static const QStringList entries{QStringLiteral("Containers"), QStringLiteral("Group Containers"),
                                     QStringLiteral("Mail"), QStringLiteral("Messages"), QStringLiteral("Safari")};
    return entries;
}

std::vector<QByteArray> roots(const Request& request)
{
    std::vector<QByteArray> roots;
    const QByteArray applications = QFile::encodeName(request.applications);
    if (!applications.isEmpty() && deviceOf(applications))
        roots.push_back(applications);
    const QByteArray home = QFile::encodeName(request.home);
    const auto device = deviceOf(home, true);
    if (!device)
        return roots;
    appendEntries(roots, home, *device, [](const QByteArray& name) { return name == "Library"; });
    const bool withProtected = request.fullDiskAccess;
    appendEntries(roots, home + "/Library", *device, [withProtected](const QByteArray& name) {
        return !withProtected && protectedLibraryEntries().contains(QFile::decodeName(name));
    });
    return roots;
}

std::optional<StorageReport> analyze(const Request& request)
{
    const BucketRules rules(QFile::encodeName(request.home));
    const StorageWalker walker(rules, request.progress.get(), &request.cancellation, request.treeNodes);
    const std::vector<QByteArray> all = roots(request);
    std::vector<StoragePartial> partials = Concurrency::map(all, walksAtOnce, request.cancellation,
                                                            [&walker](const QByteArray& root) { return walker.walk(root); });
    if (request.cancellation.isCancelled())
        return std::nullopt;
    FolderNode tree = HomeTree::assemble(QFile::encodeName(request.home), all, partials, request.treeNodes);
    StorageReport report = merge(std::move(partials));
    report.tree = std::move(tree);
    report.measuredWithFullDiskAccess = request.fullDiskAccess;
    if (!request.fullDiskAccess)
        //: Note above the storage breakdown while the app lacks Full Disk Access
        report.notes.prepend(QCoreApplication::translate("StorageAnalyzer", "Without Full Disk Access, app containers, Mail, Messages and Safari data aren't measured and fall under macOS and system data."));
    if (request.diskUsed)
        report.diskUsed = request.diskUsed().value_or(0);
    return report;
}

std::optional<StorageReport> remeasure(const Request& request, StorageReport report, const QString& folder)
{
    const QStringList names = FolderSplice::namesOf(report, request.home, folder);
    if (names.isEmpty())
        return std::nullopt;
    const BucketRules rules(QFile::encodeName(request.home));
    const QByteArray path = QFile::encodeName(folder);
    const auto above = FolderScope::above(QFile::encodeName(FolderSplice::rootOf(request.home, names)), path, rules);
    const StorageWalker walker(rules, request.progress.get(), &request.cancellation, request.treeNodes);
    StoragePartial walked = walker.walk(path, above ? &*above : nullptr);
    if (request.cancellation.isCancelled())
        return std::nullopt;
    report = FolderSplice::splice(std::move(report), request.home, names, std::move(walked), rules, request.treeNodes);
    if (request.diskUsed)
        report.diskUsed = request.diskUsed().value_or(0);
    return report;
}

StorageReport merge(std::vector<StoragePartial> partials)
{
    StorageReport report;
    report.date = QDateTime::currentDateTimeUtc();
    std::array<QHash<QString, StorageReport::FolderUsage>, StorageBuckets::count> folders;
    qint64 unreadable = 0;
    for (StoragePartial& partial : partials) {
        for (size_t bucket = 0; bucket < folders.size(); ++bucket) {
            report.totals[bucket] += partial.totals[bucket];
            for (StorageReport::FolderUsage& usage : partial.folders[bucket]) {
                auto found = folders[bucket].find(usage.path);
                if (found == folders[bucket].end())
                    folders[bucket].insert(usage.path, std::move(usage));
                else
                    FolderUsageBuilder::merge(*found, std::move(usage));
            }
        }
        report.largeFolders.append(partial.largeFolders);
        unreadable += partial.unreadableFolders;
        report.entries += partial.entries;
    }
    addLinkedFiles(report, partials);
    for (size_t bucket = 0; bucket < folders.size(); ++bucket) {
        report.folders[bucket] = folders[bucket].values();
        FolderUsageBuilder::sortAndCut(report.folders[bucket], StorageReport::foldersKept);
    }
    std::stable_sort(report.largeFolders.begin(), report.largeFolders.end(),
                     [](const auto& a, const auto& b) { return a.bytes > b.bytes; });
    if (report.largeFolders.size() > StorageReport::largeFoldersKept)
        report.largeFolders.resize(StorageReport::largeFoldersKept);
    if (unreadable > 0)
        report.notes.append(unreadableNote(unreadable));
    return report;
}

}  // namespace StorageAnalyzer
