#include "vocabulary/CleanupItem.h"

#include <QDir>

namespace {

Safety appCacheSafety(const QString& path)
{
    const bool inContainer = path.contains(QLatin1String("/Library/Containers/"))
        || path.contains(QLatin1String("/Library/Group Containers/"));
    if (inContainer && !path.endsWith(QLatin1String("/Mail Downloads")))
        return path.contains(QLatin1String("com.apple.")) ? Safety::askAI : Safety::safe;
    const QString lastComponent = path.section(QLatin1Char('/'), -1);
    return lastComponent.startsWith(QLatin1String("com.apple.")) ? Safety::askAI : Safety::safe;
}

Safety packageCacheSafety(const QString& path)
{
    if (path.endsWith(QLatin1String("/.m2/repository")))
        return Safety::risky;
    if (path.endsWith(QLatin1String("/pnpm/store")) || path.contains(QLatin1String("ms-playwright"))
        || path.contains(QLatin1String("/.cache/puppeteer")) || path.endsWith(QLatin1String("/pypoetry")))
        return Safety::askAI;
    // An installed toolchain or Python comes back only by installing it again, and a Python
    // version also holds the packages installed into it by hand.
    if (path.contains(QLatin1String("/.rustup/toolchains/")) || path.contains(QLatin1String("/.pyenv/versions/")))
        return Safety::askAI;
    return Safety::safe;
}

Safety androidSafety(const QString& path)
{
    if (path.contains(QLatin1String("/.android/avd/")))
        return Safety::risky;
    if (path.contains(QLatin1String("/Library/Caches/Google/AndroidStudio"))
        || path.contains(QLatin1String("/Android/sdk/")) || path.contains(QLatin1String("/.gradle/jdks/")))
        return Safety::askAI;
    return Safety::safe;
}

Safety xcodeSafety(const QString& path, std::optional<Safety> level)
{
    if (path.contains(QLatin1String("/Xcode/Archives/")))
        return level.value_or(Safety::risky);
    if (path.startsWith(QLatin1String("/Applications/")) && path.endsWith(QLatin1String(".app")))
        return Safety::askAI;
    return Safety::safe;
}

Safety dockerSafety(const Removal& removal)
{
    const auto docker = removal.as<Removal::Docker>();
    if (!docker)
        return Safety::askAI;
    if (docker->operation.as<DockerOperation::Volume>())
        return Safety::risky;
    if (docker->operation.as<DockerOperation::BuildCache>())
        return Safety::safe;
    return Safety::askAI;
}

}  // namespace

Safety CleanupItem::safety(const QString& home) const
{
    const QStringList paths = removal.paths();
    const QString path = paths.isEmpty() ? QString() : paths.first();
    switch (category) {
    case CategoryID::projects: return safetyLevel.value_or(Safety::safe);
    case CategoryID::worktrees: return safetyLevel.value_or(Safety::risky);
    case CategoryID::xcode: return xcodeSafety(path, safetyLevel);
    case CategoryID::simulators:
        if (removal.kind() == Removal::Kind::simulatorRuntime)
            return Safety::askAI;
        return safetyLevel.value_or(Safety::askAI);
    case CategoryID::android: return androidSafety(path);
    case CategoryID::packageCaches: return packageCacheSafety(path);
    case CategoryID::editors:
    case CategoryID::logs:
    case CategoryID::browserCaches:
        return path.contains(QLatin1String("/Library/Caches/JetBrains/")) ? Safety::askAI : Safety::safe;
    case CategoryID::docker: return dockerSafety(removal);
    case CategoryID::aiModels:
    case CategoryID::installers:
    case CategoryID::oldDownloads:
    case CategoryID::duplicates:
        return Safety::askAI;
    case CategoryID::aiAgents: return safetyLevel.value_or(Safety::askAI);
    case CategoryID::apps:
    case CategoryID::largeFiles:
    case CategoryID::trash:
        return Safety::risky;
    case CategoryID::leftovers: return userData.isEmpty() ? Safety::safe : Safety::askAI;
    case CategoryID::appCaches: return appCacheSafety(path);
    case CategoryID::temporary:
        if (safetyLevel)
            return *safetyLevel;
        return path.startsWith(home + QLatin1Char('/')) ? Safety::askAI : Safety::safe;
    case CategoryID::devices:
        return path.contains(QLatin1String("/MobileSync/Backup/")) ? Safety::risky : Safety::safe;
    }
    return Safety::risky;
}

bool CleanupItem::canMoveToAnotherDisk() const
{
    // Worktrees never move: git's metadata in the main copy points at their folder.
    return !removal.paths().isEmpty() && !lockedReason && category != CategoryID::worktrees;
}

size_t qHash(const CleanupItem& item, size_t seed)
{
    return HashCombine(seed).add(item.id).add(item.category).add(item.title).add(item.badge)
        .add(item.detail).add(item.size).add(item.removal).add(item.lockedReason).add(item.date)
        .add(item.projectPath).add(item.userData).add(item.safetyLevel).add(item.duplicateGroup)
        .add(item.isOldestCopy).result();
}
