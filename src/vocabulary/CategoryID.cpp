#include "vocabulary/CategoryID.h"

#include "format/ByteCount.h"
#include "vocabulary/Thresholds.h"

#include <QCoreApplication>

namespace Categories {

const std::array<CategoryID, count>& allCases()
{
    static const std::array<CategoryID, count> cases = [] {
        std::array<CategoryID, count> all{};
        for (int i = 0; i < count; ++i)
            all[i] = static_cast<CategoryID>(i);
        return all;
    }();
    return cases;
}

namespace {

struct CategoryNames {
    const char* raw;
    const char* image;
};

// Raw values and symbol names, indexed by the case's position.
constexpr std::array<CategoryNames, count> names{{
    {"projects", "folder.badge.gearshape"},
    {"worktrees", "arrow.triangle.branch"},
    {"xcode", "hammer"},
    {"simulators", "iphone"},
    {"android", "cpu"},
    {"packageCaches", "archivebox"},
    {"editors", "chevron.left.forwardslash.chevron.right"},
    {"docker", "shippingbox"},
    {"aiModels", "brain"},
    {"aiAgents", "sparkles.rectangle.stack"},
    {"apps", "square.grid.2x2"},
    {"leftovers", "puzzlepiece.extension"},
    {"appCaches", "square.stack.3d.up"},
    {"logs", "doc.text"},
    {"browserCaches", "globe"},
    {"installers", "arrow.down.app"},
    {"oldDownloads", "clock.arrow.circlepath"},
    {"temporary", "hourglass"},
    {"largeFiles", "doc.zipper"},
    {"duplicates", "doc.on.doc"},
    {"devices", "ipad.and.iphone"},
    {"trash", "trash"},
}};

const CategoryNames& namesOf(CategoryID category)
{
    return names[static_cast<size_t>(category)];
}

// The Linux edition's own explanation where the macOS one speaks of the Mac's places and tools.
std::optional<QString> freedesktopExplanation(CategoryID category)
{
    switch (category) {
    case CategoryID::xcode:
        //: Explanation above the Xcode list on Linux, where Xcode can't be installed
        return QCoreApplication::translate("CategoryID", "Xcode runs only on Apple's own system, so this computer has none of its data. Its build data, archives and device support files would be listed here.");
    case CategoryID::simulators:
        //: Explanation above the Simulators list on Linux, where Xcode's simulators can't be installed
        return QCoreApplication::translate("CategoryID", "iPhone and iPad simulators come with Xcode, which doesn't run on Linux, so this computer has none.");
    case CategoryID::devices:
        //: Explanation above the iPhone & iPad list on Linux, where no Apple tool makes device backups
        return QCoreApplication::translate("CategoryID", "iPhone and iPad backups and downloaded iOS updates are made by Apple's own tools, which don't run on Linux, so this computer has none.");
    case CategoryID::packageCaches:
        //: Explanation above the Package Caches list on Linux
        return QCoreApplication::translate("CategoryID", "Download caches of npm, Yarn, pip, Cargo and other tools, and the Rust toolchains and Python versions installed with rustup and pyenv. Caches are downloaded again when needed; a toolchain or Python comes back when you install it again. The Maven repository, pnpm store and browser test downloads take longer to get back.");
    case CategoryID::aiAgents:
        //: Explanation above the AI Agents list on Linux; "resume" is the agents' command to continue a session
        return QCoreApplication::translate("CategoryID", "What AI coding agents keep on this computer: Claude, ChatGPT and Codex, Cursor, Antigravity and Gemini, Qwen, Windsurf, Kiro, Trae, Cline and others. Session histories are what \"resume\" uses; anything changed in the last day is locked. Live databases and settings are never offered.");
    case CategoryID::apps:
        //: Explanation above the Applications list on Linux
        return QCoreApplication::translate("CategoryID", "Apps kept as bundles in an Applications folder, removed together with their own data in your home folder, matched by the app's identifier. Running apps aren't offered. Apps from your distribution's packages or from Flatpak aren't listed here: remove those with your package manager or software centre.");
    case CategoryID::leftovers:
        //: Explanation above the leftovers list on Linux; %1 is a number of days
        return QCoreApplication::translate("CategoryID", "Settings, caches and data in ~/.var/app from Flatpak apps that are no longer installed, grouped by app ID. If you plan to install an app again and want its settings back, keep its row. Not shown: anything changed in the last %1 days (something still uses it).")
            .arg(Thresholds::leftoversQuietDays);
    case CategoryID::appCaches:
        //: Explanation above the App Caches list on Linux
        return QCoreApplication::translate("CategoryID", "Temporary data apps keep in ~/.cache and beside their settings in ~/.config to work faster. Apps recreate it; quit them before cleaning.");
    case CategoryID::temporary:
        //: Explanation above the Temporary Files list on Linux
        return QCoreApplication::translate("CategoryID", "Temporary files apps and tools left in /tmp and /var/tmp, plus your own temp folders (~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent sessions stay out.");
    default:
        return std::nullopt;
    }
}

}  // namespace

QString rawValue(CategoryID category)
{
    return QString::fromLatin1(namesOf(category).raw);
}

std::optional<CategoryID> fromRawValue(const QString& raw)
{
    for (CategoryID category : allCases()) {
        if (raw == QLatin1String(namesOf(category).raw))
            return category;
    }
    return std::nullopt;
}

QString systemImage(CategoryID category)
{
    return QString::fromLatin1(namesOf(category).image);
}

CleanerGroup group(CategoryID category)
{
    // Positional on purpose: the first ten cases are the developer tools.
    return static_cast<int>(category) > 9 ? CleanerGroup::everyday : CleanerGroup::developer;
}

QString title(CategoryID category)
{
    switch (category) {
    //: Sidebar title of the category of build folders inside projects
    case CategoryID::projects: return QCoreApplication::translate("CategoryID", "Project Builds");
    //: Sidebar title of the category of extra git working copies
    case CategoryID::worktrees: return QCoreApplication::translate("CategoryID", "Git Worktrees");
    //: Sidebar title of the category of Xcode data (product name)
    case CategoryID::xcode: return QCoreApplication::translate("CategoryID", "Xcode");
    //: Sidebar title of the category of iOS simulator devices and runtimes
    case CategoryID::simulators: return QCoreApplication::translate("CategoryID", "Simulators");
    //: Sidebar title of the category of Android SDK and Gradle data
    case CategoryID::android: return QCoreApplication::translate("CategoryID", "Android");
    //: Sidebar title of the category of package-manager download caches
    case CategoryID::packageCaches: return QCoreApplication::translate("CategoryID", "Package Caches");
    //: Sidebar title of the category of code editor caches
    case CategoryID::editors: return QCoreApplication::translate("CategoryID", "Editors");
    //: Sidebar title of the category of Docker objects (product name)
    case CategoryID::docker: return QCoreApplication::translate("CategoryID", "Docker");
    //: Sidebar title of the category of local AI model files
    case CategoryID::aiModels: return QCoreApplication::translate("CategoryID", "AI Models");
    //: Sidebar title of the category of AI coding agents' data
    case CategoryID::aiAgents: return QCoreApplication::translate("CategoryID", "AI Agents");
    //: Sidebar title of the category of installed applications (the uninstaller)
    case CategoryID::apps: return QCoreApplication::translate("CategoryID", "Applications");
    //: Sidebar title of the category of data left behind by apps that were removed
    case CategoryID::leftovers: return QCoreApplication::translate("CategoryID", "Removed Apps' Leftovers");
    //: Sidebar title of the category of application caches
    case CategoryID::appCaches: return QCoreApplication::translate("CategoryID", "App Caches");
    //: Sidebar title of the category of log files and crash reports
    case CategoryID::logs: return QCoreApplication::translate("CategoryID", "Logs");
    //: Sidebar title of the category of web browser caches
    case CategoryID::browserCaches: return QCoreApplication::translate("CategoryID", "Browser Caches");
    //: Sidebar title of the category of disk images and installer packages
    case CategoryID::installers: return QCoreApplication::translate("CategoryID", "Installers");
    //: Sidebar title of the category of files that sat in Downloads for a long time
    case CategoryID::oldDownloads: return QCoreApplication::translate("CategoryID", "Old Downloads");
    //: Sidebar title of the category of temporary files
    case CategoryID::temporary: return QCoreApplication::translate("CategoryID", "Temporary Files");
    //: Sidebar title of the category of very large files
    case CategoryID::largeFiles: return QCoreApplication::translate("CategoryID", "Large Files");
    //: Sidebar title of the category of files with exact copies
    case CategoryID::duplicates: return QCoreApplication::translate("CategoryID", "Duplicates");
    //: Sidebar title of the category of iPhone and iPad backups and updates
    case CategoryID::devices: return QCoreApplication::translate("CategoryID", "iPhone & iPad");
    //: Sidebar title of the Trash category
    case CategoryID::trash: return QCoreApplication::translate("CategoryID", "Trash");
    }
    return {};
}

bool canFill(CategoryID category, Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::finder)
        return true;
    return category != CategoryID::xcode && category != CategoryID::simulators && category != CategoryID::devices;
}

QString explanation(CategoryID category, Platform::Desktop desktop)
{
    if (desktop == Platform::Desktop::freedesktop) {
        if (std::optional<QString> own = freedesktopExplanation(category))
            return *own;
    }
    const QString largeFile = ByteCount::format(Thresholds::largeFileSize);
    switch (category) {
    case CategoryID::projects:
        //: Explanation above the Project Builds list
        return QCoreApplication::translate("CategoryID", "node_modules, build outputs and virtual environments inside your projects. npm, Gradle, Xcode or SwiftPM rebuild them on the next build, which takes time and sometimes internet. Each row shows when its project last changed.");
    case CategoryID::worktrees:
        //: Explanation above the Git Worktrees list
        return QCoreApplication::translate("CategoryID", "Extra working copies of your git repositories, grouped by repository, often left by AI agents and parallel branches. Removing one moves its folder to the Trash; its branch and commits stay in the repository. Changes not committed in it, and files git ignores there (like .env), go with it. The main copy of a repository is never listed.");
    case CategoryID::xcode:
        //: Explanation above the Xcode list
        return QCoreApplication::translate("CategoryID", "DerivedData, caches, previews and device support files are rebuilt automatically. Archives hold your uploaded builds and the symbols that make their crash reports readable. An old archive's build comes back from its git tag, but not its crash symbols; the newest archive of each app is marked Risky.");
    case CategoryID::simulators:
        //: Explanation above the Simulators list
        return QCoreApplication::translate("CategoryID", "Device: one virtual iPhone or iPad with its apps and data. Removing it keeps its iOS; a new one is created in seconds (agents and Xcode do it themselves). Runtime: an iOS version itself, shared by its devices. Removing it stops those devices until you download that iOS again. Xcode removes both for good, they don't go to the Trash. Running simulators can't be removed.");
    case CategoryID::android:
        //: Explanation above the Android list
        return QCoreApplication::translate("CategoryID", "Gradle caches and downloads come back on the next build. Emulators and system images are kept unless you select them.");
    case CategoryID::packageCaches:
        //: Explanation above the Package Caches list
        return QCoreApplication::translate("CategoryID", "Download caches of npm, Yarn, Homebrew, pip, CocoaPods and other tools. They are downloaded again when needed. The Maven repository, pnpm store and browser test downloads take longer to get back.");
    case CategoryID::editors:
        //: Explanation above the Editors list
        return QCoreApplication::translate("CategoryID", "Caches of VS Code, Cursor and JetBrains IDEs. Settings, extensions and projects stay.");
    case CategoryID::docker:
        //: Explanation above the Docker list
        return QCoreApplication::translate("CategoryID", "Stopped containers, images no running container uses, build cache and volumes no container uses. Docker removes them for good, they don't go to the Trash. Check volumes carefully: they can hold databases.");
    case CategoryID::aiModels:
        //: Explanation above the AI Models list
        return QCoreApplication::translate("CategoryID", "Local AI models from Ollama, LM Studio and Hugging Face. They are often many gigabytes to download again, so keep the ones you still use.");
    case CategoryID::aiAgents:
        //: Explanation above the AI Agents list; "resume" is the agents' command to continue a session
        return QCoreApplication::translate("CategoryID", "What AI coding agents keep on this Mac: Claude, ChatGPT and Codex, Cursor, Antigravity and Gemini, Qwen, Windsurf, Kiro, Trae, Cline and others. Session histories are what \"resume\" uses; anything changed in the last day is locked. Live databases and settings are never offered.");
    case CategoryID::apps:
        //: Explanation above the Applications list
        return QCoreApplication::translate("CategoryID", "Remove an app together with its own data in your Library: settings, history, caches and login agents, matched by the app's identifier. That data is what the app works with, so removing it resets the app. Hover a row to see every path. Apple apps and running apps aren't offered; apps installed for all users may need Finder to remove.");
    case CategoryID::leftovers:
        //: Explanation above the leftovers list; %1 is a number of days
        return QCoreApplication::translate("CategoryID", "Settings, caches and data in your Library from apps that are no longer installed, grouped by app identifier. If you plan to install an app again and want its settings back, keep its row. Not shown: leftovers of a vendor whose other apps are still installed (vendors share helpers) and anything changed in the last %1 days (something still uses it).")
            .arg(Thresholds::leftoversQuietDays);
    case CategoryID::appCaches:
        //: Explanation above the App Caches list
        return QCoreApplication::translate("CategoryID", "Temporary data apps keep to work faster. Apps recreate it; quit them before cleaning. Leave Apple system caches (com.apple.…) unless you know what they hold.");
    case CategoryID::logs:
        //: Explanation above the Logs list
        return QCoreApplication::translate("CategoryID", "Diagnostic logs and crash reports of apps.");
    case CategoryID::browserCaches:
        //: Explanation above the Browser Caches list
        return QCoreApplication::translate("CategoryID", "Cached pages and images. Cookies, history, passwords and open tabs are not touched.");
    case CategoryID::installers:
        //: Explanation above the Installers list
        return QCoreApplication::translate("CategoryID", "Disk images and installer packages in Downloads and Desktop. Keep the ones you need offline.");
    case CategoryID::oldDownloads:
        //: Explanation above the Old Downloads list; %1 is a number of days, %2 a size such as "200 MB"
        return QCoreApplication::translate("CategoryID", "Files and folders that have been in Downloads for %1 days or more. Installers and files of %2+ are listed in their own categories.")
            .arg(Thresholds::oldDownloadsDays)
            .arg(largeFile);
    case CategoryID::temporary:
        //: Explanation above the Temporary Files list
        return QCoreApplication::translate("CategoryID", "Temporary files apps and tools left in /tmp and your macOS temp folder, plus your own temp folders (~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent sessions stay out.");
    case CategoryID::largeFiles:
        //: Explanation above the Large Files list; %1 is a size such as "200 MB"
        return QCoreApplication::translate("CategoryID", "Files of %1 or more in your home folder. Review each one before you select it.")
            .arg(largeFile);
    case CategoryID::duplicates:
        //: Explanation above the Duplicates list; %1 is a size such as "1 MB"
        return QCoreApplication::translate("CategoryID", "Files of %1 or more that have exact copies in your home folder. Open a file to see every copy and choose which to remove; one copy always stays. Copies that already share space on the disk aren't shown, since removing them frees nothing.")
            .arg(ByteCount::format(Thresholds::duplicateMinimumSize));
    case CategoryID::devices:
        //: Explanation above the iPhone & iPad list
        return QCoreApplication::translate("CategoryID", "iPhone and iPad backups made by Finder, and downloaded iOS updates. A backup may be the only copy of a device's data: remove it only if you have a newer one or iCloud Backup.");
    case CategoryID::trash:
        //: Explanation above the Trash list
        return QCoreApplication::translate("CategoryID", "Files in the Trash still take space until the Trash is emptied.");
    }
    return {};
}

}  // namespace Categories

namespace CleanerGroups {

const std::array<CleanerGroup, 2>& allCases()
{
    static const std::array<CleanerGroup, 2> cases{CleanerGroup::developer, CleanerGroup::everyday};
    return cases;
}

QList<CategoryID> categories(CleanerGroup group)
{
    QList<CategoryID> result;
    for (CategoryID category : Categories::allCases()) {
        if (Categories::group(category) == group)
            result.append(category);
    }
    return result;
}

QString title(CleanerGroup group)
{
    if (group == CleanerGroup::developer)
        //: Sidebar heading of the developer categories
        return QCoreApplication::translate("CleanerGroup", "Developer");
    //: Sidebar heading of the everyday categories
    return QCoreApplication::translate("CleanerGroup", "Everyday");
}

QString overviewTitle(CleanerGroup group)
{
    if (group == CleanerGroup::developer)
        //: Overview heading of the developer categories
        return QCoreApplication::translate("CleanerGroup", "Developer Cleaner");
    //: Overview heading of the everyday categories
    return QCoreApplication::translate("CleanerGroup", "Everyday Cleaner");
}

}  // namespace CleanerGroups
