// The rules that turn what agents leave in the home folder into rows, in the order shown.
#include "scan/AgentsScanner.h"

#include "machinery/FileInfo.h"
#include "platform/Platform.h"
#include "vocabulary/FileStatus.h"
#include "vocabulary/PathRules.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

const QString claude = QStringLiteral("Claude");
const QString codex = QStringLiteral("ChatGPT & Codex");
const QString cursor = QStringLiteral("Cursor");
const QString gemini = QStringLiteral("Antigravity & Gemini");
const QString qwen = QStringLiteral("Qwen Code");
const QString claudeApp = QStringLiteral("com.anthropic.claudefordesktop");
const QString cursorApp = QStringLiteral("com.todesktop.230313mzl4w4u92");

// An editor whose saved state is examined; its data folder is the first of `dataFolders`
// that exists (Application Support on macOS, ~/.config on Linux).
struct StateEditor {
    QString name;
    QStringList dataFolders;
    QString extensions;
};

// Cursor first: its data folders also hold the state backup of the Cursor rules.
QList<StateEditor> stateEditors()
{
    const bool linux = Platform::desktop() == Platform::Desktop::freedesktop;
    const auto editor = [&](const char* name, const char* folder, const char* extensions) {
        QStringList folders = {QStringLiteral("Library/Application Support/") + QString::fromUtf8(folder)};
        if (linux)
            folders.append(QStringLiteral(".config/") + QString::fromUtf8(folder));
        return StateEditor{QString::fromUtf8(name), folders, QString::fromUtf8(extensions)};
    };
    return {editor("Cursor", "Cursor", ".cursor/extensions"), editor("VS Code", "Code", ".vscode/extensions"),
            editor("Windsurf", "Windsurf", ".windsurf/extensions"),
            editor("Antigravity", "Antigravity", ".antigravity/extensions")};
}

// (extension identifier, display name) of the agent extensions that keep a task history.
const QList<std::pair<QString, QString>>& taskExtensions()
{
    static const QList<std::pair<QString, QString>> extensions = {
        {QStringLiteral("saoudrizwan.claude-dev"), QStringLiteral("Cline")},
        {QStringLiteral("rooveterinaryinc.roo-cline"), QStringLiteral("Roo Code")},
        {QStringLiteral("kilocode.kilo-code"), QStringLiteral("Kilo Code")},
    };
    return extensions;
}

QStringList sortedChildren(const QString& folder)
{
    QStringList names = FileInfo::children(folder);
    std::sort(names.begin(), names.end());
    return names;
}

using Row = AgentsScanner::Row;

// A row that removes `paths` together; the lock flags are set where a rule needs them.
Row row(QString agent, QString title, QStringList paths, Safety safety, QString note, bool lockIfRecent = false)
{
    return {std::move(agent), std::move(title), std::move(paths), safety, std::move(note), lockIfRecent, std::nullopt,
            std::nullopt};
}

Row lockedWhileRunning(Row row, const QString& application)
{
    row.lockIfRunning = application;
    return row;
}

Row identifiedBy(Row row, const QString& idTitle)
{
    row.idTitle = idTitle;
    return row;
}

class RowBuilder {
    Q_DECLARE_TR_FUNCTIONS(AgentsScanner)

public:
    RowBuilder(const ScanContext& context, const QSet<QString>& installed) : m_context(context), m_installed(installed) {}

    QList<Row> build();

private:
    QString at(const QString& relative) const { return m_context.home + QLatin1Char('/') + relative; }
    bool installed(const QString& agent) const { return m_installed.contains(agent); }
    void addIfExists(Row row);

    void uninstalledData();
    void claudeRows();
    void codexSessions();
    void codexRows();
    void cursorRows();
    void geminiAndQwenRows();
    void editorRows();
    void editorState(const StateEditor& editor, const QString& data);
    void taskHistories(const StateEditor& editor, const QString& data);
    void dropRowsInsideUninstalledData();

    const ScanContext& m_context;
    const QSet<QString>& m_installed;
    QList<Row> m_rows;
    QStringList m_uninstalledData;
};

void RowBuilder::addIfExists(Row row)
{
    if (!row.paths.isEmpty() && FileStatus::exists(row.paths.first()))
        m_rows.append(std::move(row));
}

void RowBuilder::uninstalledData()
{
    for (const Agent& agent : AgentsScanner::agents()) {
        if (installed(agent.name))
            continue;
        for (const QString& folder : agent.dataFolders) {
            const QString path = at(folder);
            if (!FileStatus::exists(path))  // lstat: a link counts, and measures to nothing
                continue;
            m_uninstalledData.append(path);
            //: Row title of a data folder of an AI agent that is not installed; %1 is the agent, %2 the folder
            const QString title = tr("%1 data · %2").arg(agent.name, PathRules::withTilde(path, m_context.home));
            //: Note of a data folder of an AI agent that is not installed; %1 is the agent
            const QString note = tr("%1 isn't installed; its chats, settings and caches are here").arg(agent.name);
            m_rows.append(row(agent.name, title, {path}, Safety::askAI, note, true));
        }
    }
}

void RowBuilder::claudeRows()
{
    if (!installed(claude))
        return;
    addIfExists(lockedWhileRunning(
        //: Row title in the AI agents list
        row(claude, tr("Claude virtual machine image"), {at(QStringLiteral("Library/Application Support/Claude/vm_bundles"))},
            //: Note of the Claude virtual machine image row
            Safety::safe, tr("Used by Claude's agent mode; downloaded again the next time it's needed")),
        claudeApp));
    const QString projects = at(QStringLiteral(".claude/projects"));
    for (const QString& entry : sortedChildren(projects)) {
        if (entry.startsWith(QLatin1Char('.')))
            continue;
        const QString path = projects + QLatin1Char('/') + entry;
        //: Row title of one project's Claude Code sessions; %1 is the project, like ~/code/app
        const QString title = tr("Claude Code sessions · %1").arg(AgentsScanner::projectName(path, m_context.home));
        //: Note of a Claude Code sessions row; /resume is a command and stays as it is
        const QString note = tr("Session history /resume uses");
        m_rows.append(row(claude, title, {path}, Safety::askAI, note, true));
    }
}

void RowBuilder::codexSessions()
{
    const QString sessions = at(QStringLiteral(".codex/sessions"));
    for (const QString& year : sortedChildren(sessions)) {
        for (const QString& month : sortedChildren(sessions + QLatin1Char('/') + year)) {
            const QString path = sessions + QLatin1Char('/') + year + QLatin1Char('/') + month;
            if (!FileStatus::isFolder(path))
                continue;
            //: Row title of one month of Codex sessions; %1 is the year, %2 the month number
            const QString title = tr("Codex sessions · %1-%2").arg(year, month);
            //: Note of a Codex sessions row; the command stays as it is
            const QString note = tr("Session history `codex resume` uses");
            m_rows.append(row(codex, title, {path}, Safety::askAI, note, true));
        }
    }
}

void RowBuilder::codexRows()
{
    if (!installed(codex))
        return;
    codexSessions();
    //: Row title in the AI agents list
    addIfExists(row(codex, tr("Codex archived sessions"), {at(QStringLiteral(".codex/archived_sessions"))}, Safety::askAI,
                    //: Note of the Codex archived sessions row
                    tr("Sessions you archived")));
    //: Row title in the AI agents list
    addIfExists(row(codex, tr("Codex migration backups"), {at(QStringLiteral(".codex/migration-backups"))}, Safety::askAI,
                    //: Note of the Codex migration backups row
                    tr("Copies Codex made while migrating its data")));
    QStringList backups;
    for (const QString& name : sortedChildren(at(QStringLiteral(".codex")))) {
        const QString path = at(QStringLiteral(".codex/") + name);
        if (name.endsWith(QLatin1String(".bak")) && FileStatus::isRegularFile(path))
            backups.append(path);
    }
    if (backups.isEmpty())
        return;
    //: Row title in the AI agents list; %n is the number of backup files
    const QString title = tr("Codex backup files (%n)", nullptr, int(backups.size()));
    //: Note of the Codex backup files row
    const QString note = tr("Old copies of Codex's databases and settings (*.bak)");
    m_rows.append(identifiedBy(row(codex, title, backups, Safety::askAI, note), QStringLiteral("Codex backup files")));
}

void RowBuilder::cursorRows()
{
    if (!installed(cursor))
        return;
    //: Row title in the AI agents list
    const QString title = tr("Cursor state backup");
    //: Note of the Cursor state backup row
    const QString note = tr("One-time backup of Cursor's state database (chat history lives in the live copy)");
    const StateEditor cursorEditor = stateEditors().first();
    for (const QString& data : cursorEditor.dataFolders) {
        const QString backup = at(data + QStringLiteral("/User/globalStorage/state.vscdb.backup"));
        addIfExists(lockedWhileRunning(row(cursor, title, {backup}, Safety::askAI, note), cursorApp));
    }
    //: Row title in the AI agents list
    addIfExists(row(cursor, tr("Cursor agent chats"), {at(QStringLiteral(".cursor/chats"))}, Safety::askAI,
                    //: Note of the Cursor agent chats row
                    tr("Saved chats of Cursor's agent"), true));
}

void RowBuilder::geminiAndQwenRows()
{
    //: Note of the Gemini CLI and Qwen Code temporary files rows
    const QString checkpoints = tr("Chat history and checkpoints; resuming and restoring use them");
    if (installed(gemini)) {
        const QString antigravity = QStringLiteral("Antigravity");
        //: Row title in the AI agents list
        addIfExists(row(antigravity, tr("Antigravity backup"), {at(QStringLiteral(".gemini/antigravity-backup"))},
                        //: Note of the Antigravity backup row
                        Safety::askAI, tr("A backup copy of Antigravity's data")));
        //: Row title in the AI agents list
        addIfExists(row(antigravity, tr("Antigravity browser profile"), {at(QStringLiteral(".gemini/antigravity-browser-profile"))},
                        //: Note of the Antigravity browser profile row
                        Safety::askAI, tr("The browser profile the agent uses; may hold sign-ins")));
        //: Row title in the AI agents list
        addIfExists(row(antigravity, tr("Gemini CLI temporary files"), {at(QStringLiteral(".gemini/tmp"))}, Safety::askAI,
                        checkpoints, true));
    }
    if (installed(qwen)) {
        //: Row title in the AI agents list
        addIfExists(row(qwen, tr("Qwen Code temporary files"), {at(QStringLiteral(".qwen/tmp"))}, Safety::askAI, checkpoints, true));
    }
}

void RowBuilder::editorState(const StateEditor& editor, const QString& data)
{
    const QStringList orphans = AgentsScanner::orphanWorkspaces(data + QStringLiteral("/User/workspaceStorage"));
    if (!orphans.isEmpty()) {
        //: Row title in the AI agents list; %1 is an editor, %n the number of folders
        const QString title = tr("%1 state of deleted projects (%n)", nullptr, int(orphans.size())).arg(editor.name);
        //: Note of an editor's state of deleted projects row
        const QString note = tr("Saved editor state of folders that no longer exist");
        m_rows.append(identifiedBy(row(editor.name, title, orphans, Safety::safe, note),
                                   editor.name + QStringLiteral(" state of deleted projects")));
    }
    QStringList profiles;
    const QString profileRoot = data + QStringLiteral("/User/profiles");
    for (const QString& profile : sortedChildren(profileRoot))
        profiles.append(profileRoot + QLatin1Char('/') + profile);
    const QStringList old = AgentsScanner::oldExtensionVersions(at(editor.extensions), profiles);
    if (old.isEmpty())
        return;
    //: Row title in the AI agents list; %1 is an editor, %n the number of extension folders
    const QString title = tr("%1 old extension versions (%n)", nullptr, int(old.size())).arg(editor.name);
    //: Note of an editor's old extension versions row
    const QString note = tr("Older copies kept after extensions updated");
    m_rows.append(identifiedBy(row(editor.name, title, old, Safety::safe, note), editor.name + QStringLiteral(" old extension versions")));
}

void RowBuilder::taskHistories(const StateEditor& editor, const QString& data)
{
    for (const auto& [identifier, name] : taskExtensions()) {
        const QString tasks = data + QStringLiteral("/User/globalStorage/") + identifier + QStringLiteral("/tasks");
        //: Row title in the AI agents list; %1 is an agent extension like Cline, %2 the editor it runs in
        const QString title = tr("%1 task history in %2").arg(name, editor.name);
        //: Note of an agent extension's task history row
        const QString note = tr("Saved tasks and conversations");
        addIfExists(row(name, title, {tasks}, Safety::askAI, note, true));
    }
}

void RowBuilder::editorRows()
{
    const QList<StateEditor> editors = stateEditors();
    for (const StateEditor& editor : editors) {
        const auto data = std::find_if(editor.dataFolders.begin(), editor.dataFolders.end(),
                                       [&](const QString& folder) { return FileStatus::isFolder(at(folder)); });
        if (data != editor.dataFolders.end())
            editorState(editor, at(*data));
    }
    for (const StateEditor& editor : editors) {
        for (const QString& folder : editor.dataFolders)
            taskHistories(editor, at(folder));
    }
}

// A data folder of an uninstalled agent is already offered whole; nothing inside it again.
void RowBuilder::dropRowsInsideUninstalledData()
{
    const auto isInside = [&](const QString& path) {
        return std::any_of(m_uninstalledData.begin(), m_uninstalledData.end(),
                           [&](const QString& folder) { return path != folder && PathRules::isAtOrBelow(path, folder); });
    };
    m_rows.removeIf([&](const Row& row) { return std::all_of(row.paths.begin(), row.paths.end(), isInside); });
}

QList<Row> RowBuilder::build()
{
    for (auto rule : {&RowBuilder::uninstalledData, &RowBuilder::claudeRows, &RowBuilder::codexRows, &RowBuilder::cursorRows,
                      &RowBuilder::geminiAndQwenRows, &RowBuilder::editorRows}) {
        if (m_context.isCancelled())
            break;
        (this->*rule)();
    }
    dropRowsInsideUninstalledData();
    return m_rows;
}

}  // namespace

QList<AgentsScanner::Row> AgentsScanner::rows(const ScanContext& context, const QSet<QString>& installed)
{
    return RowBuilder(context, installed).build();
}
