#include "storage/BucketRules.h"

#include <array>
#include <string_view>
#include <unordered_map>

namespace {

using enum StorageBucket;

// The home's and the Library's rows of one desktop: names (or paths below the home) and buckets.
struct Table {
    std::vector<std::pair<const char*, StorageBucket>> homeNames;
    std::vector<std::pair<const char*, StorageBucket>> libraryNames;
    std::vector<std::pair<const char*, StorageBucket>> homePaths;
};

const Table& finderTable()
{
    static const Table table{
        {{".Trash", trash}, {".gradle", developer}, {".android", developer}, {".npm", developer},
         {".cache", developer}, {".cargo", developer}, {".rustup", developer}, {".m2", developer},
         {".bun", developer}, {".nvm", developer}, {".pyenv", developer}, {".docker", developer},
         {".ollama", developer}, {".lmstudio", developer}, {".yarn", developer}, {".pnpm-store", developer},
         {".deno", developer}, {".swiftpm", developer}, {".cocoapods", developer}, {".pub-cache", developer},
         {".conda", developer}, {".rbenv", developer}, {".gem", developer}, {".volta", developer},
         {".colima", developer}, {".orbstack", developer}, {".lima", developer}},
        {{"Developer", developer}, {"Android", developer}, {"Mail", mail}, {"Messages", mail},
         {"Caches", appData}, {"Application Support", appData}, {"Group Containers", appData}, {"Logs", appData},
         {"Preferences", appData}, {"Saved Application State", appData}, {"WebKit", appData},
         {"HTTPStorages", appData}, {"Cookies", appData}},
        {{"Library/Application Support/MobileSync", deviceBackups},
         {"Library/Containers/com.docker.docker", developer},
         {"Library/Containers/com.apple.mail", mail}},
    };
    return table;
}

// A Linux home keeps app data in the XDG folders and its Trash under ~/.local/share. These rows
// come first, so "~/.cache" is app data there, not a developer folder.
const Table& freedesktopTable()
{
    static const Table table{
        {{".cache", appData}, {".config", appData}},
        {},
        {{".local/share/Trash", trash}, {".local/share", appData}, {".var/app", appData}},
    };
    return table;
}

// Lower-cases ASCII letters of `text` into `buffer`; false when it does not fit.
template <size_t N>
bool lowered(QByteArrayView text, std::array<char, N>& buffer, std::string_view& out)
{
    if (static_cast<size_t>(text.size()) > N)
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        buffer[static_cast<size_t>(i)] = (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c;
    }
    out = std::string_view(buffer.data(), static_cast<size_t>(text.size()));
    return true;
}

const std::unordered_map<std::string_view, StorageBucket>& extensions()
{
    static const auto table = [] {
        std::unordered_map<std::string_view, StorageBucket> map;
        const std::pair<StorageBucket, std::vector<std::string_view>> lists[] = {
            {photos, {"jpg", "jpeg", "png", "heic", "heif", "gif", "tif", "tiff", "bmp", "webp", "raw", "dng", "cr2",
                      "cr3", "nef", "arw", "orf", "rw2", "psd", "svg", "avif"}},
            {videos, {"mov", "mp4", "m4v", "avi", "mkv", "webm", "wmv", "flv", "mpg", "mpeg", "3gp", "mts", "m2ts",
                      "prores"}},
            {music, {"mp3", "m4a", "aac", "wav", "aiff", "aif", "flac", "ogg", "opus", "alac", "caf", "m4b", "wma"}},
            {documents, {"pdf", "doc", "docx", "xls", "xlsx", "ppt", "pptx", "pages", "numbers", "key", "txt", "rtf",
                         "md", "csv", "odt", "ods", "odp", "epub", "mobi", "djvu", "fb2"}},
            {archives, {"zip", "dmg", "pkg", "mpkg", "iso", "xip", "rar", "7z", "tar", "gz", "tgz", "bz2", "xz", "zst",
                        "sparseimage", "sparsebundle", "img"}},
        };
        for (const auto& [bucket, names] : lists) {
            for (std::string_view name : names)
                map.emplace(name, bucket);  // the first list that names an extension wins
        }
        return map;
    }();
    return table;
}

bool endsWith(std::string_view text, std::string_view suffix)
{
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

}  // namespace

BucketRules::BucketRules(const QByteArray& home, Platform::Desktop desktop)
    : m_home(home), m_library(home + "/Library")
{
    std::vector<const Table*> tables;
    if (desktop == Platform::Desktop::freedesktop)
        tables.push_back(&freedesktopTable());
    tables.push_back(&finderTable());
    for (const Table* table : tables) {
        for (const auto& [name, bucket] : table->homeNames)
            m_homeNames.append({QByteArray(name), bucket});
        for (const auto& [name, bucket] : table->libraryNames)
            m_libraryNames.append({QByteArray(name), bucket});
        for (const auto& [path, bucket] : table->homePaths)
            m_paths.append({m_home + '/' + path, bucket});
    }
}

std::optional<StorageBucket> BucketRules::forcedBucket(QByteArrayView path, QByteArrayView name,
                                                       QByteArrayView parent) const
{
    std::array<char, 64> buffer{};
    std::string_view lower;
    if (lowered(name, buffer, lower)) {
        if (const auto bucket = packageBucket(QByteArrayView(lower.data(), qsizetype(lower.size()))))
            return bucket;
    }
    static const std::array<QByteArrayView, 9> developerFolders{
        "node_modules", ".next", ".build", "Pods", ".gradle", ".dart_tool", ".venv", "DerivedData", ".turbo"};
    for (QByteArrayView folder : developerFolders) {
        if (name == folder)
            return developer;
    }
    if (parent == QByteArrayView(m_home))
        return find(m_homeNames, name);
    if (parent == QByteArrayView(m_library))
        return find(m_libraryNames, name);
    return pathBucket(path);
}

std::optional<StorageBucket> BucketRules::pathBucket(QByteArrayView path) const
{
    return find(m_paths, path);
}

bool BucketRules::isPackage(QByteArrayView name)
{
    std::array<char, 64> buffer{};
    std::string_view lower;
    return lowered(name, buffer, lower) && packageBucket(QByteArrayView(lower.data(), qsizetype(lower.size())));
}

std::optional<StorageBucket> BucketRules::packageBucket(QByteArrayView lowerName)
{
    const std::string_view name(lowerName.data(), static_cast<size_t>(lowerName.size()));
    if (endsWith(name, ".app"))
        return apps;
    if (endsWith(name, ".photoslibrary") || endsWith(name, ".photolibrary"))
        return photos;
    // The TV library counts as music: both are the person's media collections.
    if (endsWith(name, ".musiclibrary") || endsWith(name, ".tvlibrary"))
        return music;
    if (endsWith(name, ".imovielibrary") || endsWith(name, ".fcpbundle"))
        return videos;
    if (endsWith(name, ".sparsebundle"))
        return archives;
    return std::nullopt;
}

std::optional<StorageBucket> BucketRules::find(const QList<Row>& rows, QByteArrayView key)
{
    for (const Row& row : rows) {
        if (row.key.size() == key.size() && row.key == key)
            return row.bucket;
    }
    return std::nullopt;
}

StorageBucket BucketRules::bucket(QByteArrayView fileName)
{
    const qsizetype dot = fileName.lastIndexOf('.');
    if (dot <= 0 || dot + 1 >= fileName.size())  // no extension, or a dot file such as ".zshrc"
        return other;
    std::array<char, 16> buffer{};
    std::string_view extension;
    if (!lowered(fileName.sliced(dot + 1), buffer, extension))
        return other;
    const auto& table = extensions();
    const auto found = table.find(extension);
    return found == table.end() ? other : found->second;
}

QByteArray BucketRules::groupFolder(QByteArrayView relativeFolder)
{
    const qsizetype slash = relativeFolder.indexOf('/');
    return (slash < 0 ? relativeFolder : relativeFolder.first(slash)).toByteArray();
}
