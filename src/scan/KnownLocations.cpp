#include "scan/KnownLocations.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace KnownLocations {

namespace {

using Naming = Location::Naming;

Location fixedRow(QStringList paths, QString title, std::optional<QString> detail = std::nullopt)
{
    return Location{std::move(paths), Naming::fixed(std::move(title)), false, std::move(detail), {}};
}

Location namedRow(QString path, Naming naming, std::optional<QString> detail = std::nullopt)
{
    return Location{{std::move(path)}, std::move(naming), false, std::move(detail), {}};
}

Location perChildRow(QString path, Naming naming, std::optional<QString> detail = std::nullopt)
{
    return Location{{std::move(path)}, std::move(naming), true, std::move(detail), {}};
}

bool isLinux()
{
    return Platform::desktop() == Platform::Desktop::freedesktop;
}

// Where Linux keeps the same data as a row of the table: the row's first (macOS) path, then the
// Linux path the same row also looks in. On macOS the table stays exactly as it is.
using LinuxPlaces = std::initializer_list<std::pair<const char*, const char*>>;

QList<Location> withLinuxPlaces(QList<Location> rows, LinuxPlaces places)
{
    if (!isLinux())
        return rows;
    for (const auto& [macPath, linuxPath] : places) {
        for (Location& row : rows) {
            if (row.paths.value(0) == QLatin1String(macPath))
                row.paths.append(QString::fromUtf8(linuxPath));
        }
    }
    return rows;
}

// Rows only the Linux table has, after the shared ones.
QList<Location> withLinuxRows(QList<Location> rows, const QList<Location>& linuxRows)
{
    if (isLinux())
        rows += linuxRows;
    return rows;
}

// Where developers' space goes on Linux beside the shared package caches: installed toolchains
// and interpreters, and the sources Cargo unpacks from its downloads.
QList<Location> linuxPackageRows()
{
    return {
        fixedRow({QStringLiteral(".cargo/registry/src")},
                 //: Row title in the package caches list: crate sources Cargo unpacked from its downloads
                 QCoreApplication::translate("KnownLocations", "Cargo unpacked sources"),
                 //: Detail line of the Cargo unpacked sources row
                 QCoreApplication::translate("KnownLocations", "Unpacked again from Cargo's downloads on the next build")),
        perChildRow(QStringLiteral(".rustup/toolchains"),
                    //: Prefix of a row title in the package caches list; a Rust toolchain such as stable-x86_64-unknown-linux-gnu follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "Rust toolchain · ")),
                    //: Detail line of a Rust toolchain row; the command stays as it is
                    QCoreApplication::translate("KnownLocations", "Installed with rustup; `rustup toolchain install` brings it back")),
        perChildRow(QStringLiteral(".pyenv/versions"),
                    //: Prefix of a row title in the package caches list; a Python version such as 3.11.4 follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "Python · ")),
                    //: Detail line of a pyenv Python version row; the command stays as it is
                    QCoreApplication::translate("KnownLocations", "Installed with pyenv, with the packages installed into it; `pyenv install` brings the Python back")),
    };
}

// The same row also looks in the Linux places of the same data.
Location withLinuxPaths(Location location, const QStringList& linuxPaths)
{
    if (isLinux())
        location.paths += linuxPaths;
    return location;
}

Location browserRow(const char* path, const char* productName, std::initializer_list<const char*> linuxPaths = {})
{
    QStringList linux;
    for (const char* linuxPath : linuxPaths)
        linux.append(QString::fromUtf8(linuxPath));
    // Product names are the same in every language.
    return withLinuxPaths(fixedRow({QString::fromUtf8(path)}, QString::fromUtf8(productName)), linux);
}

}  // namespace

QList<Location> xcode()
{
    return {
        perChildRow(QStringLiteral("Library/Developer/Xcode/DerivedData"), Naming::derivedData()),
        perChildRow(QStringLiteral("Library/Developer/Xcode/*DeviceSupport"), Naming::parentAndName()),
        fixedRow({QStringLiteral("Library/Caches/com.apple.dt.Xcode")},
                 //: Row title in the Xcode list: Xcode's own cache folder
                 QCoreApplication::translate("KnownLocations", "Xcode cache")),
        fixedRow({QStringLiteral("Library/Developer/Xcode/UserData/Previews")},
                 //: Row title in the Xcode list: data of SwiftUI previews
                 QCoreApplication::translate("KnownLocations", "SwiftUI previews")),
        fixedRow({QStringLiteral("Library/Developer/CoreSimulator/Caches")},
                 //: Row title in the Xcode list: caches of the iOS simulator
                 QCoreApplication::translate("KnownLocations", "Simulator caches")),
        fixedRow({QStringLiteral("Library/Developer/XCTestDevices")},
                 //: Row title in the Xcode list: simulator copies made for running tests
                 QCoreApplication::translate("KnownLocations", "Test simulator clones")),
        fixedRow({QStringLiteral("Library/Developer/DVTDownloads")},
                 //: Row title in the Xcode list: files Xcode downloaded
                 QCoreApplication::translate("KnownLocations", "Xcode downloads")),
        perChildRow(QStringLiteral("Library/Developer/Xcode/Archives/*"), Naming::archive()),
        fixedRow({QStringLiteral("Library/Developer/Xcode/iOS Device Logs")},
                 //: Row title in the Xcode list: logs copied from connected iPhones and iPads
                 QCoreApplication::translate("KnownLocations", "Device logs")),
    };
}

QList<Location> android()
{
    return withLinuxPlaces({
        fixedRow({QStringLiteral(".gradle/caches")},
                 //: Row title in the Android list
                 QCoreApplication::translate("KnownLocations", "Gradle caches")),
        perChildRow(QStringLiteral(".gradle/wrapper/dists"),
                    //: Prefix of a row title in the Android list; a Gradle version such as gradle-8.5-bin follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "Gradle wrapper · "))),
        fixedRow({QStringLiteral(".gradle/daemon")},
                 //: Row title in the Android list
                 QCoreApplication::translate("KnownLocations", "Gradle daemon logs")),
        fixedRow({QStringLiteral(".android/cache")},
                 //: Row title in the Android list
                 QCoreApplication::translate("KnownLocations", "Android cache")),
        fixedRow({QStringLiteral(".android/build-cache")},
                 //: Row title in the Android list
                 QCoreApplication::translate("KnownLocations", "Android build cache")),
        namedRow(QStringLiteral("Library/Caches/Google/AndroidStudio*"),
                 //: Prefix of a row title in the Android list; a folder name such as AndroidStudio2024.1 follows
                 Naming::name(QCoreApplication::translate("KnownLocations", "Android Studio cache · "))),
        namedRow(QStringLiteral("Library/Android/sdk/system-images/*/*/*"), Naming::systemImage(),
                 //: Detail line of an Android system image row
                 QCoreApplication::translate("KnownLocations", "Android SDK system image")),
        perChildRow(QStringLiteral("Library/Android/sdk/ndk"),
                    //: Prefix of a row title in the Android list; an NDK version number follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "NDK ")),
                    //: Detail line of an Android NDK row
                    QCoreApplication::translate("KnownLocations", "Android NDK version; projects that pin it download it again")),
        perChildRow(QStringLiteral("Library/Android/sdk/build-tools"),
                    //: Prefix of a row title in the Android list; a version number follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "Build tools ")),
                    //: Detail line of an Android build tools row
                    QCoreApplication::translate("KnownLocations", "Android SDK build tools version")),
        perChildRow(QStringLiteral("Library/Android/sdk/platforms"),
                    //: Prefix of a row title in the Android list; a platform name such as android-34 follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "SDK platform ")),
                    //: Detail line of an Android SDK platform row
                    QCoreApplication::translate("KnownLocations", "Android SDK platform")),
        perChildRow(QStringLiteral(".gradle/jdks"),
                    //: Prefix of a row title in the Android list; a Java version folder follows
                    Naming::name(QCoreApplication::translate("KnownLocations", "Gradle JDK · ")),
                    //: Detail line of a row of Java that Gradle downloaded
                    QCoreApplication::translate("KnownLocations", "Java downloaded by Gradle toolchains")),
    }, {
        {"Library/Caches/Google/AndroidStudio*", ".cache/Google/AndroidStudio*"},
        {"Library/Android/sdk/system-images/*/*/*", "Android/Sdk/system-images/*/*/*"},
        {"Library/Android/sdk/ndk", "Android/Sdk/ndk"},
        {"Library/Android/sdk/build-tools", "Android/Sdk/build-tools"},
        {"Library/Android/sdk/platforms", "Android/Sdk/platforms"},
    });
}

QList<Location> packageCaches()
{
    return withLinuxRows(withLinuxPlaces({
        fixedRow({QStringLiteral(".npm/_cacache")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "npm cache")),
        fixedRow({QStringLiteral("Library/Caches/Yarn")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Yarn cache")),
        fixedRow({QStringLiteral(".yarn/berry/cache")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Yarn Berry cache")),
        fixedRow({QStringLiteral("Library/pnpm/store")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "pnpm store"),
                 //: Detail line of the pnpm store row
                 QCoreApplication::translate("KnownLocations", "Projects link their packages from here")),
        fixedRow({QStringLiteral(".bun/install/cache")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Bun cache")),
        fixedRow({QStringLiteral("Library/Caches/Homebrew")},
                 //: Row title in the package caches list: packages Homebrew downloaded
                 QCoreApplication::translate("KnownLocations", "Homebrew downloads")),
        fixedRow({QStringLiteral("Library/Caches/pip")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "pip cache")),
        fixedRow({QStringLiteral(".cache/uv")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "uv cache")),
        fixedRow({QStringLiteral("Library/Caches/CocoaPods")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "CocoaPods cache")),
        fixedRow({QStringLiteral("Library/Caches/org.swift.swiftpm")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Swift Package Manager cache")),
        fixedRow({QStringLiteral("Library/Caches/org.carthage.CarthageKit")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Carthage cache")),
        fixedRow({QStringLiteral("Library/Caches/go-build")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Go build cache")),
        fixedRow({QStringLiteral(".cargo/registry/cache")},
                 //: Row title in the package caches list: crates Cargo downloaded
                 QCoreApplication::translate("KnownLocations", "Cargo downloads")),
        fixedRow({QStringLiteral(".cargo/registry/index")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Cargo registry index")),
        fixedRow({QStringLiteral(".cargo/git/db"), QStringLiteral(".cargo/git/checkouts")},
                 //: Row title in the package caches list: dependencies Cargo fetched from git
                 QCoreApplication::translate("KnownLocations", "Cargo git dependencies")),
        fixedRow({QStringLiteral("go/pkg/mod")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Go modules"),
                 //: Detail line of the Go modules row
                 QCoreApplication::translate("KnownLocations", "Projects download them again on the next build")),
        fixedRow({QStringLiteral(".pub-cache/hosted")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Dart and Flutter packages"),
                 //: Detail line of the Dart and Flutter packages row; the command stays as it is
                 QCoreApplication::translate("KnownLocations", "`flutter pub get` downloads them again")),
        fixedRow({QStringLiteral(".nuget/packages")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "NuGet packages")),
        fixedRow({QStringLiteral(".local/share/NuGet/http-cache")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "NuGet HTTP cache")),
        fixedRow({QStringLiteral("Library/Caches/pypoetry")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Poetry cache"),
                 //: Detail line of the Poetry cache row; the command stays as it is
                 QCoreApplication::translate("KnownLocations", "Includes Poetry's virtual environments; `poetry install` creates them again")),
        fixedRow({QStringLiteral("Library/Caches/node-gyp")},
                 //: Row title in the package caches list: C headers node-gyp downloaded
                 QCoreApplication::translate("KnownLocations", "node-gyp headers")),
        fixedRow({QStringLiteral("Library/Caches/electron")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Electron downloads")),
        fixedRow({QStringLiteral("Library/Caches/electron-builder")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "electron-builder cache")),
        fixedRow({QStringLiteral("Library/Caches/deno")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Deno cache")),
        fixedRow({QStringLiteral("Library/Caches/typescript")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "TypeScript cache")),
        fixedRow({QStringLiteral("Library/Caches/composer")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Composer cache")),
        fixedRow({QStringLiteral(".cache/prisma")},
                 //: Row title in the package caches list: database engines Prisma downloaded
                 QCoreApplication::translate("KnownLocations", "Prisma engines")),
        fixedRow({QStringLiteral("Library/Caches/ms-playwright")},
                 //: Row title in the package caches list: browsers Playwright downloaded for tests
                 QCoreApplication::translate("KnownLocations", "Playwright browsers"),
                 //: Detail line of the Playwright browsers row; the command stays as it is
                 QCoreApplication::translate("KnownLocations", "Tests need `npx playwright install` afterwards")),
        fixedRow({QStringLiteral(".cache/puppeteer")},
                 //: Row title in the package caches list: browsers Puppeteer downloaded
                 QCoreApplication::translate("KnownLocations", "Puppeteer browsers")),
        fixedRow({QStringLiteral(".m2/repository")},
                 //: Row title in the package caches list
                 QCoreApplication::translate("KnownLocations", "Maven repository"),
                 //: Detail line of the Maven repository row
                 QCoreApplication::translate("KnownLocations", "May hold artifacts you installed locally")),
    }, {
        {"Library/Caches/Yarn", ".cache/yarn"},
        {"Library/pnpm/store", ".local/share/pnpm/store"},
        {"Library/Caches/Homebrew", ".cache/Homebrew"},
        {"Library/Caches/pip", ".cache/pip"},
        {"Library/Caches/org.swift.swiftpm", ".cache/org.swift.swiftpm"},
        {"Library/Caches/go-build", ".cache/go-build"},
        {"Library/Caches/pypoetry", ".cache/pypoetry"},
        {"Library/Caches/node-gyp", ".cache/node-gyp"},
        {"Library/Caches/electron", ".cache/electron"},
        {"Library/Caches/electron-builder", ".cache/electron-builder"},
        {"Library/Caches/deno", ".cache/deno"},
        {"Library/Caches/typescript", ".cache/typescript"},
        {"Library/Caches/composer", ".cache/composer"},
        {"Library/Caches/ms-playwright", ".cache/ms-playwright"},
    }), linuxPackageRows());
}

QList<Location> aiModels()
{
    return {
        fixedRow({QStringLiteral(".ollama/models")},
                 //: Row title in the AI models list
                 QCoreApplication::translate("KnownLocations", "Ollama models"),
                 //: Detail line of the Ollama models row; the command stays as it is
                 QCoreApplication::translate("KnownLocations", "All models pulled with Ollama; `ollama pull` downloads them again")),
        perChildRow(QStringLiteral(".lmstudio/models/*"), Naming::parentAndName()),
        perChildRow(QStringLiteral(".cache/lm-studio/models/*"), Naming::parentAndName()),
        perChildRow(QStringLiteral(".cache/huggingface/hub"), Naming::huggingFace()),
    };
}

QList<Location> devices()
{
    return {
        perChildRow(QStringLiteral("Library/iTunes/iPhone Software Updates"), Naming::name(),
                    //: Detail line of a downloaded iPhone software update
                    QCoreApplication::translate("KnownLocations", "Downloaded iPhone update; Finder downloads it again when needed")),
        perChildRow(QStringLiteral("Library/iTunes/iPad Software Updates"), Naming::name(),
                    //: Detail line of a downloaded iPad software update
                    QCoreApplication::translate("KnownLocations", "Downloaded iPad update; Finder downloads it again when needed")),
    };
}

Location editorCaches(const QString& appFolder, const QString& title)
{
    static const char* const cacheFolders[] = {"Cache", "CachedData", "CachedExtensionVSIXs", "Code Cache", "GPUCache"};
    QStringList paths;
    QStringList linuxPaths;  // Electron editors keep the same folders in ~/.config there
    for (const char* folder : cacheFolders) {
        paths.append(QStringLiteral("Library/Application Support/%1/%2").arg(appFolder, QString::fromUtf8(folder)));
        linuxPaths.append(QStringLiteral(".config/%1/%2").arg(appFolder, QString::fromUtf8(folder)));
    }
    return withLinuxPaths(fixedRow(paths, title), linuxPaths);
}

QList<Location> editors()
{
    return {
        //: Row title in the editors list
        editorCaches(QStringLiteral("Code"), QCoreApplication::translate("KnownLocations", "VS Code caches")),
        //: Row title in the editors list
        editorCaches(QStringLiteral("Cursor"), QCoreApplication::translate("KnownLocations", "Cursor caches")),
        //: Row title in the editors list
        editorCaches(QStringLiteral("Windsurf"), QCoreApplication::translate("KnownLocations", "Windsurf caches")),
        withLinuxPaths(namedRow(QStringLiteral("Library/Caches/JetBrains/*"),
                                //: Prefix of a row title in the editors list; an IDE folder such as IntelliJIdea2024.1 follows
                                Naming::name(QCoreApplication::translate("KnownLocations", "JetBrains cache · "))),
                       {QStringLiteral(".cache/JetBrains/*")}),
        withLinuxPaths(fixedRow({QStringLiteral("Library/Caches/Zed")},
                                //: Row title in the editors list
                                QCoreApplication::translate("KnownLocations", "Zed cache")),
                       {QStringLiteral(".cache/zed")}),
    };
}

QList<Location> browsers()
{
    return {
        browserRow("Library/Caches/com.apple.Safari", "Safari"),
        browserRow("Library/Caches/Google/Chrome", "Google Chrome", {".cache/google-chrome", ".cache/google-chrome-beta"}),
        browserRow("Library/Caches/Google/Chrome Canary", "Chrome Canary", {".cache/google-chrome-unstable"}),
        browserRow("Library/Caches/Chromium", "Chromium", {".cache/chromium"}),
        browserRow("Library/Caches/Microsoft Edge", "Microsoft Edge", {".cache/microsoft-edge"}),
        browserRow("Library/Caches/BraveSoftware/Brave-Browser", "Brave", {".cache/BraveSoftware/Brave-Browser"}),
        browserRow("Library/Caches/Arc", "Arc"),
        browserRow("Library/Caches/company.thebrowser.Browser", "Arc"),
        browserRow("Library/Caches/Firefox", "Firefox", {".cache/mozilla/firefox"}),
        browserRow("Library/Caches/com.operasoftware.Opera", "Opera", {".cache/opera"}),
        browserRow("Library/Caches/Vivaldi", "Vivaldi", {".cache/vivaldi"}),
        browserRow("Library/Caches/Yandex/YandexBrowser", "Yandex Browser", {".cache/yandex-browser"}),
    };
}

QList<Location> logs()
{
    Location crashReports = fixedRow(
        {QStringLiteral("Library/Logs/DiagnosticReports"), QStringLiteral("Library/Logs/CrashReporter")},
        //: Row title in the logs list: reports macOS wrote when apps crashed or hung
        QCoreApplication::translate("KnownLocations", "Crash reports"),
        //: Detail line of the crash reports row
        QCoreApplication::translate("KnownLocations", "Reports of apps that crashed or hung; needed only to report a problem"));
    Location appLogs = perChildRow(QStringLiteral("Library/Logs"), Naming::appName(),
        //: Detail line of an app's log folder in the logs list
        QCoreApplication::translate("KnownLocations", "Diagnostic logs; the app starts new ones when it needs them"));
    // The crash reports have their own row; the simulators' logs belong with Xcode's data.
    appLogs.skippedChildren = {QStringLiteral("DiagnosticReports"), QStringLiteral("CrashReporter"),
                               QStringLiteral("CoreSimulator")};
    return withLinuxPlaces({
        crashReports,
        appLogs,
        fixedRow({QStringLiteral("Library/Application Support/Code/logs")},
                 //: Row title in the logs list
                 QCoreApplication::translate("KnownLocations", "VS Code logs")),
        fixedRow({QStringLiteral("Library/Application Support/Cursor/logs")},
                 //: Row title in the logs list
                 QCoreApplication::translate("KnownLocations", "Cursor logs")),
        fixedRow({QStringLiteral("Library/Application Support/Windsurf/logs")},
                 //: Row title in the logs list
                 QCoreApplication::translate("KnownLocations", "Windsurf logs")),
        fixedRow({QStringLiteral(".npm/_logs")},
                 //: Row title in the logs list: logs npm writes when a command fails
                 QCoreApplication::translate("KnownLocations", "npm debug logs")),
    }, {
        {"Library/Application Support/Code/logs", ".config/Code/logs"},
        {"Library/Application Support/Cursor/logs", ".config/Cursor/logs"},
        {"Library/Application Support/Windsurf/logs", ".config/Windsurf/logs"},
    });
}

const QSet<QString>& claimedCacheFolders()
{
    static const QSet<QString> claimed = [] {
        // Linux's ~/.cache also holds local AI models and logs, which have lists of their own;
        // on macOS those groups name nothing in Library/Caches, so adding them changes nothing.
        QStringList prefixes = {QStringLiteral("Library/Caches/")};
        if (isLinux())
            prefixes.append(QStringLiteral(".cache/"));
        QSet<QString> folders;
        for (const QList<Location>& group : {xcode(), android(), packageCaches(), editors(), browsers(), aiModels(), logs()}) {
            for (const Location& location : group) {
                for (const QString& pattern : location.paths) {
                    for (const QString& prefix : prefixes) {
                        if (pattern.startsWith(prefix))
                            folders.insert(pattern.mid(prefix.size()).section(QLatin1Char('/'), 0, 0));
                    }
                }
            }
        }
        return folders;
    }();
    return claimed;
}

bool isSyncServiceData(const QString& name)
{
    // Caches of cloud-file services hold the state of what is synced; removing them can make
    // the service fetch or upload everything again.
    static const QStringList markers = {
        QStringLiteral("com.apple.bird"), QStringLiteral("com.apple.cloudd"), QStringLiteral("clouddocs"),
        QStringLiteral("cloudkit"), QStringLiteral("fileprovider"), QStringLiteral("icloud"),
        QStringLiteral("dropbox"), QStringLiteral("onedrive"), QStringLiteral("drivefs"),
        QStringLiteral("com.box."), QStringLiteral("nextcloud"), QStringLiteral("owncloud"),
    };
    const QString lower = name.toLower();
    return std::any_of(markers.begin(), markers.end(), [&](const QString& marker) { return lower.contains(marker); });
}

bool isInSyncedHomeFolder(const QString& path, const QString& home)
{
    static const QStringList syncedFolders = {
        QStringLiteral("Google Drive"), QStringLiteral("My Drive"), QStringLiteral("Box"),
        QStringLiteral("Box Sync"), QStringLiteral("MEGA"), QStringLiteral("pCloud Drive"),
        QStringLiteral("Yandex.Disk"), QStringLiteral("Yandex.Disk.localized"),
        QStringLiteral("Nextcloud"), QStringLiteral("ownCloud"), QStringLiteral("Sync"),
        QStringLiteral("Creative Cloud Files"),
    };
    const QString prefix = home + QLatin1Char('/');
    if (!path.startsWith(prefix))
        return false;
    const QString first = path.mid(prefix.size()).section(QLatin1Char('/'), 0, 0);
    return syncedFolders.contains(first) || first.startsWith(QLatin1String("Dropbox"))
        || first.startsWith(QLatin1String("OneDrive"));
}

}  // namespace KnownLocations
