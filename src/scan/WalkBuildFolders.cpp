// The build-folder proofs of Walk: a folder name alone proves nothing ("build" and "target"
// are common words), so each name needs its project's marker file or, for Xcode, output that
// only Xcode makes.

#include "machinery/FileInfo.h"
#include "scan/Walk.h"
#include "vocabulary/FileStatus.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct MarkerRule {
    QStringList names;
    QStringList parentMarkers;  // any one of them in the parent folder proves the name
};

const QStringList gradleMarkers = {
    QStringLiteral("build.gradle"), QStringLiteral("build.gradle.kts"),
    QStringLiteral("settings.gradle"), QStringLiteral("settings.gradle.kts"),
};

const std::array<MarkerRule, 7>& markerRules()
{
    static const std::array<MarkerRule, 7> rules = {{
        {{QStringLiteral("node_modules"), QStringLiteral(".next"), QStringLiteral(".nuxt"),
          QStringLiteral(".svelte-kit"), QStringLiteral(".turbo"), QStringLiteral(".parcel-cache"),
          QStringLiteral(".angular")},
         {QStringLiteral("package.json")}},
        {{QStringLiteral(".build")}, {QStringLiteral("Package.swift")}},
        {{QStringLiteral(".gradle")}, gradleMarkers},
        {{QStringLiteral("build")}, gradleMarkers + QStringList{QStringLiteral("pubspec.yaml")}},
        {{QStringLiteral("target")}, {QStringLiteral("Cargo.toml"), QStringLiteral("pom.xml")}},
        {{QStringLiteral("Pods")}, {QStringLiteral("Podfile")}},
        {{QStringLiteral(".dart_tool")}, {QStringLiteral("pubspec.yaml")}},
    }};
    return rules;
}

const QStringList xcodeOutputFolders = {
    QStringLiteral("XCBuildData"), QStringLiteral("SharedPrecompiledHeaders"), QStringLiteral("EagerLinkingTBDs"),
};

const QStringList xcodeProductSuffixes = {
    QStringLiteral(".app"), QStringLiteral(".framework"), QStringLiteral(".xcframework"),
    QStringLiteral(".a"), QStringLiteral(".dylib"), QStringLiteral(".swiftmodule"),
    QStringLiteral(".dSYM"), QStringLiteral(".appex"), QStringLiteral(".xctest"), QStringLiteral(".bundle"),
};

constexpr std::array<quint32, 8> machOMagics = {
    0xFEEDFACF, 0xFEEDFACE, 0xCFFAEDFE, 0xCEFAEDFE, 0xCAFEBABE, 0xBEBAFECA, 0xCAFEBABF, 0xBFBAFECA,
};

bool exists(const QString& path)
{
    return FileStatus::exists(path);
}

bool hasAny(const QString& folder, const QStringList& names)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const QString& name) { return exists(folder + QLatin1Char('/') + name); });
}

bool listsAny(const QStringList& listing, std::initializer_list<const char*> names)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const char* name) { return listing.contains(QLatin1String(name)); });
}

bool endsWithAny(const QString& name, const QStringList& suffixes)
{
    return std::any_of(suffixes.begin(), suffixes.end(), [&](const QString& suffix) { return name.endsWith(suffix); });
}

const QStringList* parentMarkersFor(const QString& name)
{
    for (const MarkerRule& rule : markerRules()) {
        if (rule.names.contains(name))
            return &rule.parentMarkers;
    }
    return nullptr;
}

// A "build" folder beside an Xcode project counts only when something in it is Xcode's.
bool holdsXcodeOutput(const QString& path, const QString& parent)
{
    const QStringList siblings = FileInfo::children(parent);
    const bool besideProject = std::any_of(siblings.begin(), siblings.end(),
                                           [](const QString& name) { return name.endsWith(QLatin1String(".xcodeproj")); });
    if (!besideProject)
        return false;
    const QStringList children = FileInfo::children(path);
    return std::any_of(children.begin(), children.end(),
                       [&](const QString& child) { return Walk::provesXcodeOutput(child, path); });
}

bool isRealDirectory(const QString& path)
{
    return FileStatus::isFolder(path);
}

// The named-folder shapes of Xcode's output; nullopt when the name has no rule of its own.
std::optional<bool> provesByName(const QString& child, const QStringList& listing)
{
    if (child == QLatin1String("Build"))
        return listsAny(listing, {"Products", "Intermediates.noindex"});
    if (child == QLatin1String("DerivedData"))
        return listsAny(listing, {"Build", "ModuleCache.noindex", "info.plist"});
    if (child == QLatin1String("SourcePackages"))
        return listsAny(listing, {"checkouts", "artifacts", "repositories"});
    if (child.endsWith(QLatin1String(".xcframework")))
        return listing.contains(QLatin1String("Info.plist"));
    return std::nullopt;
}

// A products folder such as "Release-iphoneos": it holds built products or bare executables.
bool holdsProducts(const QString& childPath, const QStringList& listing)
{
    return std::any_of(listing.begin(), listing.end(), [&](const QString& name) {
        if (endsWithAny(name, xcodeProductSuffixes))
            return true;
        return !name.contains(QLatin1Char('.')) && Walk::isMachO(childPath + QLatin1Char('/') + name);
    });
}

bool readExactly(int descriptor, unsigned char* buffer, size_t count)
{
    size_t done = 0;
    while (done < count) {
        const ssize_t got = ::read(descriptor, buffer + done, count - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        done += static_cast<size_t>(got);
    }
    return true;
}

bool readsMachOMagic(int descriptor)
{
    struct stat info {};
    if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode))
        return false;
    unsigned char bytes[4];
    if (!readExactly(descriptor, bytes, sizeof bytes))
        return false;
    const quint32 littleEndian = bytes[0] | (bytes[1] << 8) | (bytes[2] << 16) | (quint32(bytes[3]) << 24);
    return std::find(machOMagics.begin(), machOMagics.end(), littleEndian) != machOMagics.end();
}

}  // namespace

bool Walk::isBuildFolder(const QString& name, const QString& path, const QString& parent)
{
    if (name == QLatin1String(".venv") || name == QLatin1String("venv"))
        return exists(path + QLatin1String("/pyvenv.cfg"));
    const QStringList* markers = parentMarkersFor(name);
    if (!markers)
        return false;
    if (hasAny(parent, *markers))
        return true;
    return name == QLatin1String("build") && holdsXcodeOutput(path, parent);
}

bool Walk::provesXcodeOutput(const QString& child, const QString& buildPath)
{
    const QString childPath = buildPath + QLatin1Char('/') + child;
    if (!isRealDirectory(childPath))
        return false;
    if (xcodeOutputFolders.contains(child) || child.endsWith(QLatin1String(".build"))
        || child.endsWith(QLatin1String(".noindex")))
        return true;
    const QStringList listing = FileInfo::children(childPath);
    if (listing.contains(QLatin1String("Build")) && listsAny(listing, {"info.plist", "ModuleCache.noindex"}))
        return true;
    if (const std::optional<bool> byName = provesByName(child, listing))
        return *byName;
    return holdsProducts(childPath, listing);
}

bool Walk::isMachO(const QString& path)
{
    const QByteArray encoded = QFile::encodeName(path);
    struct stat info {};
    if (::lstat(encoded.constData(), &info) != 0 || !S_ISREG(info.st_mode) || info.st_size < 4)
        return false;
    const int descriptor = ::open(encoded.constData(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool result = readsMachOMagic(descriptor);
    ::close(descriptor);
    return result;
}
