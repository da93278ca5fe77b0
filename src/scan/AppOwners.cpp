#include "scan/AppOwners.h"

#include "platform/Platform.h"

namespace AppOwners {

namespace {

QStringList texts(std::initializer_list<const char*> values)
{
    QStringList list;
    for (const char* value : values)
        list.append(QString::fromUtf8(value));
    return list;
}

AppOwner owner(const char* name, std::initializer_list<const char*> bundleIDs, std::initializer_list<const char*> programs,
               std::initializer_list<const char*> macFolders, std::initializer_list<const char*> linuxFolders)
{
    QStringList folders = texts(macFolders);
    if (Platform::desktop() == Platform::Desktop::freedesktop)
        folders += texts(linuxFolders);
    return {QString::fromUtf8(name), texts(bundleIDs), texts(programs), folders};
}

// On Linux a browser's profile folder in ~/.config holds web caches of its own (GrShaderCache,
// ShaderCache), which the app-cache scan finds there; they are the browser's too.
QList<AppOwner> browsers()
{
    return {
        owner("Safari", {"com.apple.Safari"}, {}, {"Library/Caches/com.apple.Safari"}, {}),
        owner("Google Chrome", {"com.google.Chrome"}, {"chrome"}, {"Library/Caches/Google/Chrome"},
              {".cache/google-chrome", ".cache/google-chrome-beta", ".config/google-chrome", ".config/google-chrome-beta"}),
        owner("Chrome Canary", {"com.google.Chrome.canary"}, {}, {"Library/Caches/Google/Chrome Canary"},
              {".cache/google-chrome-unstable", ".config/google-chrome-unstable"}),
        owner("Chromium", {"org.chromium.Chromium"}, {"chromium"}, {"Library/Caches/Chromium"}, {".cache/chromium", ".config/chromium"}),
        owner("Microsoft Edge", {"com.microsoft.edgemac"}, {"msedge"}, {"Library/Caches/Microsoft Edge"},
              {".cache/microsoft-edge", ".config/microsoft-edge"}),
        owner("Brave", {"com.brave.Browser"}, {"brave"}, {"Library/Caches/BraveSoftware/Brave-Browser"},
              {".cache/BraveSoftware/Brave-Browser", ".config/BraveSoftware/Brave-Browser"}),
        owner("Arc", {"company.thebrowser.Browser"}, {}, {"Library/Caches/Arc", "Library/Caches/company.thebrowser.Browser"}, {}),
        owner("Firefox", {"org.mozilla.firefox"}, {"firefox", "firefox-esr", "firefox-bin"}, {"Library/Caches/Firefox"},
              {".cache/mozilla/firefox"}),
        owner("Opera", {"com.operasoftware.Opera"}, {"opera"}, {"Library/Caches/com.operasoftware.Opera"}, {".cache/opera", ".config/opera"}),
        owner("Vivaldi", {"com.vivaldi.Vivaldi"}, {"vivaldi-bin"}, {"Library/Caches/Vivaldi"}, {".cache/vivaldi", ".config/vivaldi"}),
        owner("Yandex Browser", {"ru.yandex.desktop.yandex-browser"}, {"yandex_browser"},
              {"Library/Caches/Yandex/YandexBrowser"}, {".cache/yandex-browser", ".config/yandex-browser"}),
    };
}

QList<AppOwner> editors()
{
    const std::initializer_list<const char*> jetBrainsMac = {"Library/Caches/JetBrains"};
    const std::initializer_list<const char*> jetBrainsLinux = {".cache/JetBrains"};
    return {
        owner("VS Code", {"com.microsoft.VSCode"}, {"code"}, {"Library/Application Support/Code"}, {".config/Code"}),
        owner("Cursor", {"com.todesktop.230313mzl4w4u92"}, {"cursor"}, {"Library/Application Support/Cursor"},
              {".config/Cursor"}),
        owner("Windsurf", {"com.exafunction.windsurf"}, {"windsurf"}, {"Library/Application Support/Windsurf"},
              {".config/Windsurf"}),
        owner("Antigravity", {"com.google.antigravity"}, {"antigravity"}, {"Library/Application Support/Antigravity"},
              {".config/Antigravity"}),
        // Toolbox keeps the IDEs it manages up to date and writes into their caches itself.
        owner("JetBrains Toolbox", {"com.jetbrains.toolbox"}, {"jetbrains-toolbox"}, jetBrainsMac, jetBrainsLinux),
        owner("IntelliJ IDEA", {"com.jetbrains.intellij", "com.jetbrains.intellij.ce"}, {"idea"}, jetBrainsMac, jetBrainsLinux),
        owner("PyCharm", {"com.jetbrains.pycharm", "com.jetbrains.pycharm.ce"}, {"pycharm"}, jetBrainsMac, jetBrainsLinux),
        owner("WebStorm", {"com.jetbrains.WebStorm"}, {"webstorm"}, jetBrainsMac, jetBrainsLinux),
        owner("GoLand", {"com.jetbrains.goland"}, {"goland"}, jetBrainsMac, jetBrainsLinux),
        owner("CLion", {"com.jetbrains.CLion"}, {"clion"}, jetBrainsMac, jetBrainsLinux),
        owner("Rider", {"com.jetbrains.rider"}, {"rider"}, jetBrainsMac, jetBrainsLinux),
        owner("Zed", {"dev.zed.Zed"}, {"zed", "zed-editor"}, {"Library/Caches/Zed"}, {".cache/zed"}),
    };
}

QList<AppOwner> agentApps()
{
    return {
        owner("Claude", {"com.anthropic.claudefordesktop"}, {"claude-desktop"}, {"Library/Application Support/Claude"},
              {".config/Claude"}),
    };
}

}  // namespace

const QList<AppOwner>& all()
{
    static const QList<AppOwner> owners = browsers() + editors() + agentApps();
    return owners;
}

}  // namespace AppOwners
