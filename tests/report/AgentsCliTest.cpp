#include "support/CliScan.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

namespace {

// One fixture home holding data for the agent, cache and package lists at once.
class AgentsCliTest : public ::testing::Test {
protected:
    AgentsCliTest() : home(tree.dir(QStringLiteral("home"))) {}

    void big(const char* relative) const { tree.file(QStringLiteral("home/") + QString::fromUtf8(relative), 1'500'000); }

    TempTree tree;
    QString home;
};

}  // namespace

TEST_F(AgentsCliTest, ShowsEachPlaceOnceAcrossTheCacheAndAgentLists)
{
    tree.file(QStringLiteral("home/.local/bin/claude"), 10);
    tree.file(QStringLiteral("home/.local/bin/codex"), 10);
    big(".claude/projects/-nowhere-proj/s.jsonl");
    big(".codex/a.bak");
    big(".codex/b.bak");
    big(".cursor/chats/c.json");
    big("Library/Application Support/Cursor/CachedData/x");
    big("Library/Application Support/Cursor/Code Cache/x");
    big("Library/Application Support/Code/CachedData/x");
    big("Library/Application Support/Slack/Code Cache/x");
    big("Library/Caches/Homebrew/x");
    big("Library/Caches/Google/Chrome/x");
    big("Library/Caches/com.example.Thing/x");
    big(".cache/google-chrome/x");
    big(".cache/uv/x");

    const CliScan scan = CliScan::run(home, {"aiAgents", "appCaches", "browserCaches", "editors", "packageCaches"});
    ASSERT_EQ(scan.program.exitCode, 0) << scan.program.standardError.constData();
    const struct {
        const char* title;
        const char* category;
    } expected[] = {
        {"Claude Code sessions · /nowhere/proj", "aiAgents"}, {"Codex backup files (2)", "aiAgents"},
        {"Cursor data · ~/.cursor", "aiAgents"}, {"Cursor data · ~/Library/Application Support/Cursor", "aiAgents"},
        {"VS Code caches", "editors"}, {"Slack", "appCaches"}, {"Thing", "appCaches"},
        {"Homebrew downloads", "packageCaches"}, {"Google Chrome", "browserCaches"},
    };
    for (const auto& one : expected)
        EXPECT_EQ(scan.categoryOf(QString::fromUtf8(one.title)), QString::fromUtf8(one.category)) << one.title;


    // No place is offered twice, neither itself nor inside another row's folder.
    QStringList paths;
    for (const QJsonValue& category : scan.categories) {
        for (const QJsonValue& item : category[QStringLiteral("items")].toArray()) {
            for (const QJsonValue& path : item[QStringLiteral("paths")].toArray())
                paths.append(path.toString());
        }
    }
    EXPECT_GE(paths.size(), 12);
    for (const QString& path : paths) {
        for (const QString& other : paths) {
            if (&path != &other) {
                EXPECT_FALSE(path == other || path.startsWith(other + QLatin1Char('/'))) << qPrintable(path) << " in " << qPrintable(other);
            }
        }
    }
}
