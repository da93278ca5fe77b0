#pragma once

#include "scan/RunningApps.h"
#include "scan/Scanner.h"
#include "vocabulary/Safety.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

// One AI coding agent: how to tell that it is installed and where it keeps its data.
struct Agent {
    QString name;                  // display name and row badge
    QStringList bundleIDs;         // applications that show it is installed
    QStringList commands;          // command-line tools that show it is installed
    QStringList dataFolders;       // relative to the home folder
    QStringList editorExtensions;  // extension identifier prefixes that show it is installed
};

// Fills "AI Agents": what AI coding agents and AI-enabled editors leave in the home folder
// (session histories, backups, temporary folders, saved editor state, old extension copies).
// Builds one row per removable place by a fixed set of rules, then measures the rows in
// parallel. A value type; scan() runs on a worker thread and keeps nothing between scans.
//
// Commands are looked for in the version managers' per-version folders and in the folders of
// `Environment::commandFolders` (home-relative ones start with "~/"): the usual installer
// targets ~/.local/bin, ~/bin, ~/.npm-global/bin, ~/.bun/bin, ~/.volta/bin, ~/.cargo/bin,
// ~/.deno/bin, ~/.yarn/bin, the pnpm homes, the asdf and mise shims, the agents' own
// ~/.claude/local and ~/.opencode/bin, and the system's /usr/local/bin and /opt/homebrew/bin
// (Linux adds /usr/bin and /snap/bin). The person's PATH is not read: a scan of another home
// (the report tool's --home) must not depend on who runs it.
class AgentsScanner : public Scanner {
public:
    // What the scanner reaches outside the home folder through; tests replace members.
    struct Environment {
        std::function<bool(const QString& bundleID)> hasApplication;
        QStringList commandFolders;
    };
    [[nodiscard]] static Environment standardEnvironment();

    // One candidate place before measuring.
    struct Row {
        QString agent;
        QString title;
        QStringList paths;  // absolute
        Safety safety = Safety::askAI;
        QString note;
        bool lockIfRecent = false;
        std::optional<QString> lockIfRunning;  // application identifier
        std::optional<QString> idTitle;        // stable text when the title carries a count
        bool operator==(const Row&) const = default;
    };

    explicit AgentsScanner(Environment environment = standardEnvironment()) : m_environment(std::move(environment)) {}

    QList<CategoryID> categories() const override { return {CategoryID::aiAgents}; }
    ScanOutputs scan(const ScanContext& context) const override;

    [[nodiscard]] static const QList<Agent>& agents();
    [[nodiscard]] static bool isInstalled(const Agent& agent, const QString& home, const Environment& environment);
    [[nodiscard]] static QSet<QString> installedAgents(const QString& home, const Environment& environment);

    // Every row the rules give for these installed agents, in rule order; cancellation stops
    // between rules.
    [[nodiscard]] static QList<Row> rows(const ScanContext& context, const QSet<QString>& installed);
    // The row measured into an item; absent when it holds 999,999 bytes or less or a path
    // could not be measured.
    [[nodiscard]] static std::optional<CleanupItem> item(const Row& row, const ScanContext& context,
                                                         const RunningApps& running);

    // The display name of a session-history folder (Claude Code's "-Users-me-code-app"): the
    // project's path with "~" for the home folder, or "Claude app scratch" and "Claude sandbox
    // status" for those two places. The folder name wrote every character but an ASCII letter
    // or digit as "-", so the folders that still exist decide, level by level from "/", the
    // longest matching entry first ("my-tool" before "my/tool"); below the first level that
    // no longer exists, every "-" reads as "/".
    [[nodiscard]] static QString projectName(const QString& folder, const QString& home);
    // The subfolders of a workspaceStorage folder whose project folder no longer exists.
    [[nodiscard]] static QStringList orphanWorkspaces(const QString& workspaceStorage);
    // The folders of `extensionsFolder` that neither its own nor any profile's extensions.json
    // mentions, ordered by version number.
    [[nodiscard]] static QStringList oldExtensionVersions(const QString& extensionsFolder, const QStringList& profiles);
    // The application-data folders (absolute) of agents that are not installed.
    [[nodiscard]] static QStringList uninstalledAppSupportFolders(const QString& home, const Environment& environment);

private:
    Environment m_environment;
};
