#include "format/RelativeDate.h"
#include "platform/Platform.h"
#include "scan/AgentsScanner.h"
#include "support/AgentsFixture.h"
#include "support/LockedFolders.h"
#include "support/ScanRows.h"
#include "vocabulary/RemovalReasons.h"

#include <QDir>
#include <QFile>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

class AgentsScannerTest : public ::testing::Test, public AgentsFixture {
protected:
    QList<CleanupItem> items() const { return AgentsScanner(environment()).scan(scanContext()).at(CategoryID::aiAgents).items; }

    QStringList titles() const { return titlesOf(items()); }

    std::optional<CleanupItem> itemTitled(const QString& title) const
    {
        for (const CleanupItem& item : items()) {
            if (item.title == title)
                return item;
        }
        return std::nullopt;
    }

    void install(const char* command) const { tree.file(QStringLiteral("home/.local/bin/") + QString::fromUtf8(command), 10); }
};

QString encodedPath(QString path)
{
    for (QChar& c : path) {
        if (!(c.isLetterOrNumber() && c.unicode() < 128))
            c = QLatin1Char('-');
    }
    return path;
}

}  // namespace

TEST_F(AgentsScannerTest, AnAgentThatIsNotInstalledOffersOnlyItsDataFolders)
{
    big(QStringLiteral(".codex/sessions/2025/03/rollout.jsonl"));
    big(QStringLiteral(".codex/history.bak"));
    big(QStringLiteral(".claude/projects/-Users-me-app/session.jsonl"));
    big(QStringLiteral("Library/Application Support/Claude/vm_bundles/image"));
    // A data folder that is a dangling link exists for lstat but measures to nothing.
    tree.symlink(QStringLiteral("home/.qwen"), QStringLiteral("/nonexistent/qwen"));

    const QList<AgentsScanner::Row> rows = AgentsScanner::rows(context, {});
    QStringList rowTitles;
    for (const auto& row : rows)
        rowTitles.append(row.title);
    EXPECT_EQ(rowTitles, (QStringList{QStringLiteral("Claude data · ~/.claude"),
                                      QStringLiteral("Claude data · ~/Library/Application Support/Claude"),
                                      QStringLiteral("ChatGPT & Codex data · ~/.codex"),
                                      QStringLiteral("Qwen Code data · ~/.qwen")}));
    EXPECT_EQ(titles().size(), 3);  // the link gives no item
    const auto codex = itemTitled(QStringLiteral("ChatGPT & Codex data · ~/.codex"));
    ASSERT_TRUE(codex);
    EXPECT_EQ(codex->badge, QStringLiteral("ChatGPT & Codex"));
    EXPECT_EQ(codex->safety(context.home), Safety::askAI);
    EXPECT_TRUE(codex->detail.startsWith(QStringLiteral("ChatGPT & Codex isn't installed; its chats, settings and caches are here · last changed ")));

    install("codex");
    install("claude");
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("Claude virtual machine image"),
                                     QStringLiteral("Claude Code sessions · /Users/me/app"),
                                     QStringLiteral("Codex sessions · 2025-03"), QStringLiteral("Codex backup files (1)")}));
}

TEST_F(AgentsScannerTest, FindsInstalledAgentsByApplicationCommandAndExtension)
{
    tree.file(QStringLiteral("home/.nvm/versions/node/v22.1.0/bin/gemini"), 10);
    tree.file(QStringLiteral("home/Library/Application Support/fnm/node-versions/v20.0.0/installation/bin/qwen"), 10);
    tree.symlink(QStringLiteral("home/.local/bin/aider"), QStringLiteral("/nonexistent/aider"));  // a link is a command
    tree.dir(QStringLiteral("home/.vscode/extensions/continue.continue-0.9.1-darwin-arm64"));
    tree.file(QStringLiteral("home/elsewhere/bin/opencode"), 10);  // not a folder anyone installs to
    tree.file(QStringLiteral("home/.nvm/versions/node/v22.1.0/lib/kiro"), 10);  // not the version's bin
    applications = {QStringLiteral("com.trae.app")};

    EXPECT_EQ(AgentsScanner::installedAgents(context.home, environment()),
              (QSet<QString>{QStringLiteral("Antigravity & Gemini"), QStringLiteral("Qwen Code"), QStringLiteral("Aider"),
                             QStringLiteral("Continue"), QStringLiteral("Trae")}));

    QDir(home(QStringLiteral(".vscode"))).removeRecursively();
    tree.dir(QStringLiteral("home/Library/Application Support/JetBrains/IntelliJIdea2024.1/plugins/continue-intellij-extension"));
    EXPECT_TRUE(AgentsScanner::installedAgents(context.home, environment()).contains(QStringLiteral("Continue")));
}

TEST_F(AgentsScannerTest, RecentSessionsAreLockedAndOlderOnesCarryTheirAge)
{
    install("claude");
    const QString project = QStringLiteral(".claude/projects/-Users-me-app");
    big(project + QStringLiteral("/session.jsonl"));
    tree.file(QStringLiteral("home/.claude/projects/.DS_Store"), 2'000'000);

    auto sessions = items();
    ASSERT_EQ(sessions.size(), 1);
    EXPECT_EQ(sessions.first().id, home(project));
    EXPECT_EQ(sessions.first().lockedReason, RemovalReasons::changedInLastDay());
    EXPECT_EQ(sessions.first().lockedReason, QStringLiteral("Changed in the last day; a session may be running."));

    context.now = QDateTime::currentDateTimeUtc().addDays(3);
    sessions = items();
    ASSERT_EQ(sessions.size(), 1);
    EXPECT_FALSE(sessions.first().lockedReason);
    EXPECT_EQ(RelativeDate::expand(sessions.first().detail, context.now), QStringLiteral("Session history /resume uses · last changed 3 days ago"));
}

TEST_F(AgentsScannerTest, ARunningAppLocksItsRowsWhateverTheirAge)
{
    install("cursor");
    big(QStringLiteral("Library/Application Support/Cursor/User/globalStorage/state.vscdb.backup"));
    big(QStringLiteral(".cursor/chats/chat.json"));
    context.now = QDateTime::currentDateTimeUtc().addDays(3);
    ASSERT_FALSE(itemTitled(QStringLiteral("Cursor state backup"))->lockedReason);

    running = {bundle(QStringLiteral("Cursor"), QStringLiteral("com.todesktop.230313mzl4w4u92"))};
    EXPECT_EQ(itemTitled(QStringLiteral("Cursor state backup"))->lockedReason,
              QStringLiteral("Running. Quit Cursor to remove it."));
    EXPECT_FALSE(itemTitled(QStringLiteral("Cursor agent chats"))->lockedReason);  // not an app's file

    running = {QStringLiteral("/usr/share/cursor/cursor")};  // how Linux lists it
    EXPECT_TRUE(itemTitled(QStringLiteral("Cursor state backup"))->lockedReason);

    // Linux keeps the same backup in ~/.config/Cursor.
    big(QStringLiteral(".config/Cursor/User/globalStorage/state.vscdb.backup"));
    const bool linux = Platform::desktop() == Platform::Desktop::freedesktop;
    EXPECT_EQ(titles().count(QStringLiteral("Cursor state backup")), linux ? 2 : 1);
}

TEST_F(AgentsScannerTest, CodexBackupsKeepOneIdentifierWhileTheirNumberChanges)
{
    install("codex");
    big(QStringLiteral(".codex/state.sqlite.bak"));
    big(QStringLiteral(".codex/config.toml.bak"));
    tree.dir(QStringLiteral("home/.codex/folder.bak"));  // only files are backups
    const auto two = itemTitled(QStringLiteral("Codex backup files (2)"));
    ASSERT_TRUE(two);
    EXPECT_EQ(two->id, QStringLiteral("agents:Codex backup files"));
    EXPECT_EQ(two->removal.paths().size(), 2);

    big(QStringLiteral(".codex/auth.json.bak"));
    const auto three = itemTitled(QStringLiteral("Codex backup files (3)"));
    ASSERT_TRUE(three);
    EXPECT_EQ(three->id, two->id);
}

// A link measures to nothing and a small session folder falls below the size rows start at.
TEST_F(AgentsScannerTest, LinkedOrSmallSessionFoldersGiveNoRow)
{
    install("claude");
    big(QStringLiteral("elsewhere/big"));
    tree.symlink(QStringLiteral("home/.claude/projects/-linked"), home(QStringLiteral("elsewhere")));
    tree.file(QStringLiteral("home/.claude/projects/-small/s.jsonl"), 900'000);
    big(QStringLiteral(".claude/projects/-Users-me-two words\nand a line/s.jsonl"));
    const auto found = items();
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().removal.paths(), QStringList{home(QStringLiteral(".claude/projects/-Users-me-two words\nand a line"))});
}

TEST_F(AgentsScannerTest, ProjectNamesFollowTheFoldersThatExist)
{
    dir(QStringLiteral("code/my.app"));
    dir(QStringLiteral("code/my-tool"));
    dir(QStringLiteral("code/my/tool"));
    dir(QStringLiteral("Мои проекты/site"));
    dir(QStringLiteral("Library/Application Support/Claude/scratch/x1"));
    const QString base = encodedPath(context.home);
    const struct {
        QString folder;
        QString name;
    } cases[] = {
        {base + QStringLiteral("-code-my-app"), QStringLiteral("~/code/my.app")},
        {base + QStringLiteral("-code-my-tool"), QStringLiteral("~/code/my-tool")},  // the longer existing name wins
        {base + QStringLiteral("-code-gone-project"), QStringLiteral("~/code/gone/project")},
        {base + QStringLiteral("-------------site"), QStringLiteral("~/Мои проекты/site")},
        {base, QStringLiteral("~")},
        {base + QStringLiteral("-Library-Application-Support-Claude-scratch-x1"), QStringLiteral("Claude app scratch")},
        {QStringLiteral("-private-tmp-claude-sandbox-status"), QStringLiteral("Claude sandbox status")},
        {QStringLiteral("plain name"), QStringLiteral("plain name")},
    };
    for (const auto& one : cases)
        EXPECT_EQ(AgentsScanner::projectName(QStringLiteral("/p/") + one.folder, context.home), one.name) << qPrintable(one.folder);
}

TEST_F(AgentsScannerTest, OrphanWorkspacesAreOnlyLocalFoldersThatAreGone)
{
    const QString storage = QStringLiteral("home/Library/Application Support/Code/User/workspaceStorage/");
    const auto workspace = [&](const char* id, const QByteArray& json) { tree.file(storage + QString::fromUtf8(id) + QStringLiteral("/workspace.json"), json); };
    const QByteArray live = QUrl::fromLocalFile(dir(QStringLiteral("code/live project"))).toEncoded();
    const QByteArray gone = QUrl::fromLocalFile(home(QStringLiteral("code/gone project"))).toEncoded();
    workspace("a-live", "{\"folder\":\"" + live + "\"}");
    workspace("b-gone", "{\"folder\":\"" + gone + "\"}");
    workspace("c-volume", "{\"folder\":\"file:///Volumes/Unplugged/project\"}");
    workspace("d-remote", "{\"folder\":\"vscode-remote://ssh-remote%2Bhost/home/me/gone\"}");
    workspace("e-broken", "{\"folder\":\"file:///gone");
    workspace("f-workspace", "{\"workspace\":\"" + gone + ".code-workspace\"}");
    workspace("g-folder-wins", "{\"folder\":\"" + live + "\",\"workspace\":\"" + gone + "\"}");
    workspace("h-not-an-object", "[\"" + gone + "\"]");
    tree.dir(storage + QStringLiteral("i-empty"));

    const QString root = tree.path(storage).chopped(1);
    EXPECT_EQ(AgentsScanner::orphanWorkspaces(root),
              (QStringList{root + QStringLiteral("/b-gone"), root + QStringLiteral("/f-workspace")}));
    EXPECT_TRUE(AgentsScanner::orphanWorkspaces(home(QStringLiteral("missing"))).isEmpty());
}

TEST_F(AgentsScannerTest, OldExtensionVersionsAreThoseNoProfileUses)
{
    const QString extensions = dir(QStringLiteral(".vscode/extensions"));
    for (const char* name : {"pub.a-1.0.2", "pub.a-1.0.9", "pub.a-1.0.10", "pub.a-1.0.11", "pub.b-1.0.0", "pub.b-2.0.0", "pub.c-1.0.0-darwin-arm64",
                             "pub.d-0.1.0"})
        dir(QStringLiteral(".vscode/extensions/") + QString::fromUtf8(name));
    tree.file(QStringLiteral("home/.vscode/extensions/.obsolete"), 10);
    tree.file(QStringLiteral("home/.vscode/extensions/extensions.json"),
              QByteArray("[{\"identifier\":{\"id\":\"pub.a\"},\"relativeLocation\":\"pub.a-1.0.11\"},"
                         "{\"location\":{\"fsPath\":\"") + extensions.toUtf8() + "/pub.c-1.0.0-darwin-arm64\"}}]");
    const QString profile = dir(QStringLiteral("Library/Application Support/Code/User/profiles/work"));
    tree.file(QStringLiteral("home/Library/Application Support/Code/User/profiles/work/extensions.json"),
              QByteArray("[{\"location\":{\"path\":\"") + extensions.toUtf8() + "/pub.b-2.0.0\"}}]");
    const QString emptyProfile = dir(QStringLiteral("Library/Application Support/Code/User/profiles/empty"));

    // pub.d is in no list at all: an extension is old when nothing uses it, whatever its version.
    EXPECT_EQ(AgentsScanner::oldExtensionVersions(extensions, {profile, emptyProfile}),
              (QStringList{extensions + QStringLiteral("/pub.a-1.0.2"), extensions + QStringLiteral("/pub.a-1.0.9"),
                           extensions + QStringLiteral("/pub.a-1.0.10"), extensions + QStringLiteral("/pub.b-1.0.0"), extensions + QStringLiteral("/pub.d-0.1.0")}));

    // A half-written list proves nothing unused.
    tree.file(QStringLiteral("home/Library/Application Support/Code/User/profiles/work/extensions.json"), QByteArray("[{\"loc"));
    EXPECT_TRUE(AgentsScanner::oldExtensionVersions(extensions, {profile}).isEmpty());
    QFile::remove(extensions + QStringLiteral("/extensions.json"));
    EXPECT_TRUE(AgentsScanner::oldExtensionVersions(extensions, {}).isEmpty());
}

TEST_F(AgentsScannerTest, EditorStateInsideAnUninstalledAgentsFolderIsOfferedOnlyOnce)
{
    const QString gone = QUrl::fromLocalFile(home(QStringLiteral("gone"))).toString();
    for (const char* editor : {"Cursor", "Code"}) {
        const QString storage = QStringLiteral("home/Library/Application Support/%1/User/workspaceStorage/").arg(QString::fromUtf8(editor));
        for (const char* id : {"w1", "w2"}) {
            tree.file(storage + QString::fromUtf8(id) + QStringLiteral("/workspace.json"), "{\"folder\":\"" + gone.toUtf8() + "\"}");
            tree.file(storage + QString::fromUtf8(id) + QStringLiteral("/state.vscdb"), 600'000);
        }
    }
    big(QStringLiteral("Library/Application Support/Code/User/globalStorage/saoudrizwan.claude-dev/tasks/1/history.json"));

    const auto vsCode = itemTitled(QStringLiteral("VS Code state of deleted projects (2)"));
    ASSERT_TRUE(vsCode);
    EXPECT_EQ(vsCode->id, QStringLiteral("agents:VS Code state of deleted projects"));
    EXPECT_EQ(vsCode->safety(context.home), Safety::safe);
    const auto cline = itemTitled(QStringLiteral("Cline task history in VS Code"));
    ASSERT_TRUE(cline);
    EXPECT_EQ(cline->badge, QStringLiteral("Cline"));
    EXPECT_TRUE(cline->lockedReason);
    // Cursor is not installed, so its whole folder is one row and nothing inside it is another.
    EXPECT_FALSE(itemTitled(QStringLiteral("Cursor state of deleted projects (2)")));
    EXPECT_TRUE(itemTitled(QStringLiteral("Cursor data · ~/Library/Application Support/Cursor")));

    install("cursor");
    EXPECT_TRUE(itemTitled(QStringLiteral("Cursor state of deleted projects (2)")));
}

TEST_F(AgentsScannerTest, UnreadableFoldersCountAsEmptyAndHideOnlyThemselves)
{
    install("claude");
    install("codex");
    big(QStringLiteral(".codex/sessions/2024/12/a.jsonl"));
    big(QStringLiteral(".codex/sessions/2025/03/a.jsonl"));
    big(QStringLiteral(".claude/projects/-readable/a.jsonl"));
    big(QStringLiteral(".claude/projects/-readable/locked/b.jsonl"));
    big(QStringLiteral(".claude/projects/-locked/a.jsonl"));
    const QStringList locked = {home(QStringLiteral(".codex/sessions/2024")), home(QStringLiteral(".claude/projects/-readable/locked")),
                                home(QStringLiteral(".claude/projects/-locked"))};
    context.now = QDateTime::currentDateTimeUtc().addDays(3);

    const auto found = withFoldersLocked(tree, locked, [&] { return titles().join(QLatin1Char('|')).toUtf8(); });
    if (!found)
        GTEST_SKIP() << cannotLockFolders;
    // A project whose own folder can't be read can't be measured; one with a locked subfolder can.
    EXPECT_EQ(*found, QByteArray("Claude Code sessions · /readable|Codex sessions · 2025-03"));
}

TEST_F(AgentsScannerTest, TheRunningLockSpeaksBeforeTheRecentOne)
{
    big(QStringLiteral("data/fresh.db"));
    AgentsScanner::Row row{QStringLiteral("Claude"), QStringLiteral("t"), {home(QStringLiteral("data"))}, Safety::askAI,
                           QStringLiteral("n"), true, QStringLiteral("com.anthropic.claudefordesktop"), std::nullopt};
    EXPECT_EQ(AgentsScanner::item(row, context, RunningApps::from({}))->lockedReason, RemovalReasons::changedInLastDay());
    const RunningApps claude = RunningApps::from({bundle(QStringLiteral("Claude"), QStringLiteral("com.anthropic.claudefordesktop"))});
    EXPECT_EQ(AgentsScanner::item(row, context, claude)->lockedReason, QStringLiteral("Running. Quit Claude to remove it."));
    row.paths.append(home(QStringLiteral("data/vanished")));  // a path that can't be measured: no item
    EXPECT_FALSE(AgentsScanner::item(row, context, claude));
}
