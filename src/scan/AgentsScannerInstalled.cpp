// Which agents are installed, and the table they are looked up in.
#include "scan/AgentsScanner.h"

#include "machinery/FileInfo.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"

namespace {

bool isLinux()
{
    return Platform::desktop() == Platform::Desktop::freedesktop;
}

QStringList texts(std::initializer_list<const char*> values)
{
    QStringList list;
    for (const char* value : values)
        list.append(QString::fromUtf8(value));
    return list;
}

// Linux keeps an app's data in ~/.config/<name> where macOS uses Application Support.
Agent agent(const char* name, std::initializer_list<const char*> bundleIDs, std::initializer_list<const char*> commands,
            std::initializer_list<const char*> dataFolders, std::initializer_list<const char*> linuxFolders = {},
            std::initializer_list<const char*> extensions = {})
{
    QStringList folders = texts(dataFolders);
    if (isLinux())
        folders += texts(linuxFolders);
    return {QString::fromUtf8(name), texts(bundleIDs), texts(commands), folders, texts(extensions)};
}

const QStringList& applicationDataPrefixes()
{
    static const QStringList prefixes = isLinux()
        ? QStringList{QStringLiteral("Library/Application Support/"), QStringLiteral(".config/")}
        : QStringList{QStringLiteral("Library/Application Support/")};
    return prefixes;
}

// (root, subfolder inside each version) of the version managers that install tools per version.
const QList<std::pair<QString, QString>>& versionedCommandFolders()
{
    static const QList<std::pair<QString, QString>> folders = {
        {QStringLiteral(".nvm/versions/node"), QStringLiteral("bin")},
        {QStringLiteral(".local/share/fnm/node-versions"), QStringLiteral("installation/bin")},
        {QStringLiteral("Library/Application Support/fnm/node-versions"), QStringLiteral("installation/bin")},
    };
    return folders;
}

QStringList commandFoldersOf(const QString& home, const QStringList& configured)
{
    QStringList folders;
    for (const QString& folder : configured)
        folders.append(folder.startsWith(QLatin1String("~/")) ? home + folder.mid(1) : folder);
    for (const auto& [root, inside] : versionedCommandFolders()) {
        const QString base = home + QLatin1Char('/') + root;
        for (const QString& version : FileInfo::children(base))
            folders.append(base + QLatin1Char('/') + version + QLatin1Char('/') + inside);
    }
    return folders;
}

QStringList extensionFolders(const QString& home)
{
    QStringList folders;
    for (const char* folder : {".vscode/extensions", ".vscode-insiders/extensions", ".cursor/extensions",
                               ".windsurf/extensions", ".antigravity/extensions", ".kiro/extensions", ".trae/extensions"})
        folders.append(home + QLatin1Char('/') + QString::fromUtf8(folder));
    const QString jetBrains = home + QStringLiteral("/Library/Application Support/JetBrains");
    for (const QString& editor : FileInfo::children(jetBrains))
        folders.append(jetBrains + QLatin1Char('/') + editor + QStringLiteral("/plugins"));
    // JetBrains IDEs on Linux keep their plug-ins directly in the per-version data folder.
    const QString linuxJetBrains = home + QStringLiteral("/.local/share/JetBrains");
    for (const QString& editor : FileInfo::children(linuxJetBrains))
        folders.append(linuxJetBrains + QLatin1Char('/') + editor);
    return folders;
}

bool hasCommand(const Agent& agent, const QStringList& folders)
{
    for (const QString& folder : folders) {
        for (const QString& command : agent.commands) {
            if (FileStatus::exists(folder + QLatin1Char('/') + command))
                return true;
        }
    }
    return false;
}

bool hasExtension(const Agent& agent, const QStringList& folders)
{
    if (agent.editorExtensions.isEmpty())
        return false;
    for (const QString& folder : folders) {
        for (const QString& entry : FileInfo::children(folder)) {
            for (const QString& prefix : agent.editorExtensions) {
                if (entry.startsWith(prefix))
                    return true;
            }
        }
    }
    return false;
}

bool hasApplication(const Agent& agent, const AgentsScanner::Environment& environment)
{
    for (const QString& bundleID : agent.bundleIDs) {
        if (environment.hasApplication && environment.hasApplication(bundleID))
            return true;
    }
    return false;
}

}  // namespace

AgentsScanner::Environment AgentsScanner::standardEnvironment()
{
    Environment environment;
    environment.hasApplication = [](const QString& bundleID) {
        return Platform::applicationForBundleIdentifier(bundleID).has_value();
    };
    environment.commandFolders = texts({"~/.local/bin", "~/bin", "~/.npm-global/bin", "~/.bun/bin", "~/.volta/bin",
                                        "~/.cargo/bin", "~/.deno/bin", "~/.yarn/bin", "~/Library/pnpm",
                                        "~/.local/share/pnpm", "~/.asdf/shims", "~/.local/share/mise/shims",
                                        "~/.claude/local", "~/.opencode/bin", "/usr/local/bin", "/opt/homebrew/bin"});
    if (isLinux())
        environment.commandFolders += texts({"/usr/bin", "/snap/bin"});
    return environment;
}

const QList<Agent>& AgentsScanner::agents()
{
    static const QList<Agent> table = {
        agent("Claude", {"com.anthropic.claudefordesktop"}, {"claude"}, {".claude", "Library/Application Support/Claude"},
              {".config/Claude"}),
        agent("ChatGPT & Codex", {"com.openai.chat", "com.openai.codex"}, {"codex"},
              {".codex", "Library/Application Support/Codex"}),
        agent("Cursor", {"com.todesktop.230313mzl4w4u92"}, {"cursor", "cursor-agent"},
              {".cursor", "Library/Application Support/Cursor"}, {".config/Cursor"}),
        agent("Antigravity & Gemini", {"com.google.antigravity"}, {"gemini", "antigravity"},
              {".gemini", "Library/Application Support/Antigravity"}, {".config/Antigravity"}),
        agent("Qwen Code", {}, {"qwen"}, {".qwen"}),
        agent("Windsurf", {"com.exafunction.windsurf"}, {"windsurf"},
              {".codeium", ".windsurf", "Library/Application Support/Windsurf"}, {".config/Windsurf"}),
        agent("Kiro", {"dev.kiro.desktop"}, {"kiro"}, {".kiro", "Library/Application Support/Kiro"}, {".config/Kiro"}),
        agent("Trae", {"com.trae.app"}, {"trae"}, {".trae", "Library/Application Support/Trae"}, {".config/Trae"}),
        agent("Continue", {}, {}, {".continue"}, {}, {"continue.continue-", "continue-"}),
        agent("Aider", {}, {"aider"}, {".aider"}),
        agent("OpenCode", {}, {"opencode"}, {".local/share/opencode"}),
    };
    return table;
}

bool AgentsScanner::isInstalled(const Agent& agent, const QString& home, const Environment& environment)
{
    return hasApplication(agent, environment)
        || hasCommand(agent, commandFoldersOf(home, environment.commandFolders))
        || hasExtension(agent, extensionFolders(home));
}

QSet<QString> AgentsScanner::installedAgents(const QString& home, const Environment& environment)
{
    QSet<QString> installed;
    for (const Agent& one : agents()) {
        if (isInstalled(one, home, environment))
            installed.insert(one.name);
    }
    return installed;
}

QStringList AgentsScanner::uninstalledAppSupportFolders(const QString& home, const Environment& environment)
{
    const QSet<QString> installed = installedAgents(home, environment);
    QStringList folders;
    for (const Agent& one : agents()) {
        if (installed.contains(one.name))
            continue;
        for (const QString& folder : one.dataFolders) {
            for (const QString& prefix : applicationDataPrefixes()) {
                if (folder.startsWith(prefix))
                    folders.append(home + QLatin1Char('/') + folder);
            }
        }
    }
    return folders;
}
