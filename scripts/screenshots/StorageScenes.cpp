// The Storage screen (a whole disk and one folder's drill-down) and the Large Folders screen,
// over a report of a believable developer's Mac.
#include "Scenes.h"
#include "support/ModelFixture.h"
#include "support/Wait.h"
#include "ui/LargeFoldersPage.h"
#include "ui/StorageFolders.h"
#include "ui/StoragePage.h"
#include "ui/Sunburst.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

const QString home = QStringLiteral("/Users/a");

struct Folder {
    StorageBucket bucket;
    const char* path;
    qint64 bytes;
    qint64 files;
};

const Folder folders[] = {
    {StorageBucket::developer, "/Library/Developer", 61'400'000'000, 812'000},
    {StorageBucket::developer, "/.gradle", 9'800'000'000, 143'000},
    {StorageBucket::developer, "/Projects/shop-web/node_modules", 1'240'000'000, 96'400},
    {StorageBucket::developer, "/.npm", 3'100'000'000, 41'200},
    {StorageBucket::developer, "/.cargo", 2'700'000'000, 38'100},
    {StorageBucket::developer, "/Projects/admin-dashboard/node_modules", 712'000'000, 61'000},
    {StorageBucket::apps, "/Applications/Xcode.app", 11'900'000'000, 402'000},
    {StorageBucket::apps, "/Applications/Docker.app", 2'100'000'000, 9'200},
    {StorageBucket::apps, "/Applications/Android Studio.app", 2'800'000'000, 12'600},
    {StorageBucket::apps, "/Applications/Slack.app", 520'000'000, 1'400},
    {StorageBucket::photos, "/Pictures/Photos Library.photoslibrary", 48'200'000'000, 61'500},
    {StorageBucket::photos, "/Pictures", 3'400'000'000, 2'950},
    {StorageBucket::photos, "/Downloads", 310'000'000, 410},
    {StorageBucket::videos, "/Movies", 22'700'000'000, 140},
    {StorageBucket::videos, "/Movies/Trip to Lisbon.fcpbundle", 14'100'000'000, 2'300},
    {StorageBucket::music, "/Music/Music/Music Library.musiclibrary", 8'800'000'000, 1'950},
    {StorageBucket::documents, "/Documents", 6'400'000'000, 14'100},
    {StorageBucket::documents, "/Desktop", 820'000'000, 310},
    {StorageBucket::archives, "/Downloads", 9'300'000'000, 64},
    {StorageBucket::deviceBackups, "/Library/Application Support/MobileSync", 38'600'000'000, 211'000},
    {StorageBucket::mail, "/Library/Mail", 4'100'000'000, 180'000},
    {StorageBucket::appData, "/Library/Application Support", 21'300'000'000, 402'000},
    {StorageBucket::appData, "/Library/Caches", 12'600'000'000, 233'000},
    {StorageBucket::appData, "/Library/Group Containers", 5'200'000'000, 91'000},
    {StorageBucket::trash, "/.Trash", 3'900'000'000, 2'100},
    {StorageBucket::other, "/Projects", 7'400'000'000, 388'000},
    {StorageBucket::other, "/Downloads", 1'100'000'000, 120},
};

QString at(const char* path)
{
    const QString text = QString::fromUtf8(path);
    return text.startsWith(QLatin1String("/Applications")) ? text : home + text;
}

void addPictures(StorageReport::FolderUsage& pictures)
{
    pictures.subfolders = {{QString(), {410'000'000, 380}},
                           {QStringLiteral("2024 Iceland"), {1'320'000'000, 1'040}},
                           {QStringLiteral("Scans"), {840'000'000, 610}},
                           {QStringLiteral("Wallpapers"), {290'000'000, 160}},
                           {QStringLiteral("Raw Exports"), {540'000'000, 760}}};
    pictures.files = {{home + "/Pictures/Raw Exports/DSC_0412.NEF", 61'200'000},
                      {home + "/Pictures/Raw Exports/DSC_0398.NEF", 58'900'000},
                      {home + "/Pictures/2024 Iceland/panorama-jokulsarlon.tif", 44'100'000},
                      {home + "/Pictures/Scans/family-album-1987.psd", 31'700'000},
                      {home + "/Pictures/poster-final.psd", 22'400'000},
                      {home + "/Pictures/2024 Iceland/IMG_2207.heic", 4'900'000}};
}

// The home's folders: path below the home, bytes directly in it, files, kind. Parents get the
// sum of what lies below them; a few small folders are folded, as a real tree's are.
struct TreeFolder {
    const char* path;
    qint64 own;
    qint64 files;
    StorageBucket kind;
    qint64 folded = 0;
};

const TreeFolder treeFolders[] = {
    {"Library/Developer/CoreSimulator/Devices", 24'100'000'000, 310'000, StorageBucket::developer, 900'000'000},
    {"Library/Developer/CoreSimulator/Caches", 4'200'000'000, 12'000, StorageBucket::developer},
    {"Library/Developer/Xcode/iOS DeviceSupport", 18'200'000'000, 98'000, StorageBucket::developer},
    {"Library/Developer/Xcode/DerivedData", 14'900'000'000, 402'000, StorageBucket::developer, 600'000'000},
    {"Library/Developer/Xcode/Archives", 3'800'000'000, 2'100, StorageBucket::developer},
    {"Library/Application Support/MobileSync/Backup", 38'600'000'000, 211'000, StorageBucket::deviceBackups},
    {"Library/Application Support/Google/Chrome", 4'800'000'000, 41'000, StorageBucket::appData},
    {"Library/Application Support/Code", 3'100'000'000, 29'000, StorageBucket::appData},
    {"Library/Application Support/Slack", 2'100'000'000, 8'800, StorageBucket::appData, 1'900'000'000},
    {"Library/Caches/com.spotify.client", 3'400'000'000, 61'000, StorageBucket::appData},
    {"Library/Caches/Homebrew", 2'200'000'000, 610, StorageBucket::appData},
    {"Library/Caches/pip", 1'100'000'000, 5'400, StorageBucket::appData, 5'900'000'000},
    {"Library/Group Containers", 5'200'000'000, 91'000, StorageBucket::appData},
    {"Library/Mail/V10", 4'100'000'000, 180'000, StorageBucket::mail},
    {"Pictures/Photos Library.photoslibrary", 48'200'000'000, 61'500, StorageBucket::photos},
    {"Pictures/2024 Iceland", 1'320'000'000, 1'040, StorageBucket::photos},
    {"Pictures/Scans", 840'000'000, 610, StorageBucket::photos},
    {"Pictures/Raw Exports", 540'000'000, 760, StorageBucket::photos},
    {"Pictures", 410'000'000, 380, StorageBucket::photos, 290'000'000},
    {"Movies/Trip to Lisbon.fcpbundle", 14'100'000'000, 2'300, StorageBucket::videos},
    {"Movies", 8'600'000'000, 140, StorageBucket::videos},
    {"Music/Music/Music Library.musiclibrary", 8'800'000'000, 1'950, StorageBucket::music},
    {"Documents/Thesis/drafts", 900'000'000, 1'200, StorageBucket::documents},
    {"Documents/Thesis/references", 402'000'000, 3'900, StorageBucket::documents},
    {"Documents/Taxes", 1'200'000'000, 2'400, StorageBucket::documents},
    {"Documents/Manuals", 600'000'000, 900, StorageBucket::documents},
    {"Documents", 3'300'000'000, 5'700, StorageBucket::documents, 400'000'000},
    {"Projects/shop-web/node_modules", 1'240'000'000, 96'400, StorageBucket::developer},
    {"Projects/shop-web/.git", 900'000'000, 4'100, StorageBucket::other},
    {"Projects/shop-web/src", 300'000'000, 2'900, StorageBucket::other},
    {"Projects/admin-dashboard/node_modules", 712'000'000, 61'000, StorageBucket::developer},
    {"Projects/admin-dashboard/.git", 400'000'000, 1'800, StorageBucket::other},
    {"Projects/ml-experiments/data", 3'900'000'000, 220, StorageBucket::other},
    {"Projects/ml-experiments/.venv", 1'600'000'000, 31'000, StorageBucket::developer},
    {"Projects/rust-cli/target", 2'300'000'000, 14'000, StorageBucket::other, 700'000'000},
    {".gradle/wrapper", 6'900'000'000, 900, StorageBucket::developer},
    {".gradle/caches", 2'900'000'000, 88'000, StorageBucket::developer},
    {".npm/_cacache", 2'600'000'000, 39'800, StorageBucket::developer},
    {".cargo/registry", 2'100'000'000, 36'000, StorageBucket::developer},
    {".cargo/bin", 600'000'000, 60, StorageBucket::developer},
    {"Downloads", 10'700'000'000, 590, StorageBucket::archives, 300'000'000},
    {".Trash", 3'900'000'000, 2'100, StorageBucket::trash},
    {"Desktop", 820'000'000, 310, StorageBucket::documents},
};

FolderNode& nodeAt(FolderNode& top, const QStringList& names)
{
    FolderNode* node = &top;
    for (const QString& name : names) {
        auto found = std::find_if(node->children.begin(), node->children.end(),
                                  [&name](const FolderNode& child) { return child.name == name; });
        if (found == node->children.end()) {
            node->children.push_back(FolderNode{name, 0, 0, 0, 0, StorageBucket::other, {}});
            found = node->children.end() - 1;
        }
        node = &*found;
    }
    return *node;
}

// Sums each folder from what lies in and below it; a made-up folder takes its largest child's kind.
void settle(FolderNode& node)
{
    node.bytes = node.ownBytes + node.foldedBytes;
    qint64 largest = -1;
    for (FolderNode& child : node.children) {
        settle(child);
        node.bytes += child.bytes;
        node.fileCount += child.fileCount;
        if (child.bytes > largest && node.ownBytes == 0) {
            largest = child.bytes;
            node.kind = child.kind;
        }
    }
}

FolderNode sampleTree()
{
    FolderNode top{QStringLiteral("a"), 0, 0, 0, 0, StorageBucket::other, {}};
    for (const TreeFolder& folder : treeFolders) {
        FolderNode& node = nodeAt(top, QString::fromUtf8(folder.path).split(QLatin1Char('/')));
        node.ownBytes = folder.own;
        node.fileCount = folder.files;
        node.kind = folder.kind;
        node.foldedBytes = folder.folded;
    }
    top.ownBytes = 60'000'000;
    top.fileCount = 40;
    settle(top);
    top.sortChildren();
    return top;
}

StorageReport sampleReport()
{
    StorageReport report;
    report.date = QDateTime::currentDateTimeUtc().addSecs(-4 * 60);
    report.diskUsed = 402'000'000'000;
    for (const Folder& folder : folders) {
        const auto index = static_cast<size_t>(folder.bucket);
        report.totals.at(index) += folder.bytes;
        StorageReport::FolderUsage usage{at(folder.path), folder.bytes, {}, folder.files, {}};
        if (usage.path == home + "/Pictures")
            addPictures(usage);
        report.folders.at(index).append(usage);
    }
    for (auto& list : report.folders)
        std::sort(list.begin(), list.end(), [](const auto& a, const auto& b) { return a.bytes > b.bytes; });
    report.largeFolders = {
        {home + "/Library/Developer/Xcode/DerivedData", 14'900'000'000, 402'000, 11'300'000'000, StorageBucket::developer},
        {home + "/Library/Caches/com.spotify.client", 3'400'000'000, 61'000, 3'100'000'000, StorageBucket::appData},
        {home + "/.gradle/caches", 2'900'000'000, 88'000, 2'200'000'000, StorageBucket::developer},
        {home + "/.npm/_cacache", 2'600'000'000, 39'800, 2'400'000'000, StorageBucket::developer},
        {home + "/Projects/shop-web/node_modules", 1'240'000'000, 96'400, 1'020'000'000, StorageBucket::developer},
        {home + "/Library/Mail/V10", 1'100'000'000, 161'000, 930'000'000, StorageBucket::mail},
        {home + "/Projects/admin-dashboard/node_modules", 712'000'000, 61'000, 655'000'000, StorageBucket::developer},
        {home + "/Documents/Thesis/references", 402'000'000, 3'900, 281'000'000, StorageBucket::documents},
        {home + "/Library/Application Support/Code/CachedData", 318'000'000, 12'700, 301'000'000, StorageBucket::appData},
    };
    report.tree = sampleTree();
    return report;
}

// A model whose analysis returns the sample report; null when it never arrived.
std::unique_ptr<ModelFixture> measuredModel()
{
    auto fixture = std::make_unique<ModelFixture>(std::vector<std::shared_ptr<const Scanner>>{}, home,
        [](AppModel::Services& services) {
            services.analyzeStorage = [](const StorageAnalyzer::Request&) { return std::optional(sampleReport()); };
        });
    fixture->model().startStorageAnalysis();
    if (!waitUntil([&] { return fixture->model().storageReport().has_value(); }))
        return nullptr;
    return fixture;
}

QImage settled(QWidget& page)
{
    page.resize(1000, 760);
    page.show();
    QCoreApplication::processEvents();
    return page.grab().toImage();
}

QImage storage()
{
    const auto fixture = measuredModel();
    if (!fixture)
        return {};
    StoragePage page(&fixture->model());
    page.showBucket(StorageBucket::developer);
    return settled(page);
}

QImage storageFolder()
{
    const auto fixture = measuredModel();
    if (!fixture)
        return {};
    StoragePage page(&fixture->model());
    page.showBucket(StorageBucket::photos);
    page.showFolder(home + "/Pictures");
    return settled(page);
}

// The map of folders at the home, and two levels down (Library, then Developer).
QImage storageMap(const QStringList& zoom)
{
    const auto fixture = measuredModel();
    if (!fixture)
        return {};
    StoragePage page(&fixture->model());
    page.folders()->sunburst()->zoomTo(zoom);
    return settled(page);
}

QImage largeFolders()
{
    const auto fixture = measuredModel();
    if (!fixture)
        return {};
    LargeFoldersPage page(&fixture->model());
    return settled(page);
}

}  // namespace

QList<Scene> storageScenes()
{
    return {
        {QStringLiteral("storage.png"), storage},
        {QStringLiteral("storage-folder.png"), storageFolder},
        {QStringLiteral("storage-map.png"), [] { return storageMap({}); }},
        {QStringLiteral("storage-map-developer.png"), [] { return storageMap({QStringLiteral("Library"), QStringLiteral("Developer")}); }},
        {QStringLiteral("large-folders.png"), largeFolders},
    };
}
