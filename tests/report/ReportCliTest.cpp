#include "scan/LocationScanner.h"
#include "support/ProgramRun.h"
#include "support/TempTree.h"
#include "vocabulary/CategoryID.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using CliRun = ProgramRun;

CliRun runProgram(const QString& program, const QStringList& arguments)
{
    return ProgramRun::run(program, arguments, 60'000);
}

QJsonArray categoriesOf(const CliRun& run)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(run.standardOutput, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    return document.object().value(QStringLiteral("categories")).toArray();
}

QJsonObject categoryNamed(const QJsonArray& categories, const char* raw)
{
    for (const QJsonValue& category : categories) {
        if (category[QStringLiteral("id")].toString() == QLatin1String(raw))
            return category.toObject();
    }
    return {};
}

// The fixture home folder of every test: a temporary tree whose "home" the tool scans.
class ReportCliTest : public ::testing::Test {
protected:
    ReportCliTest() : home(tree.dir(QStringLiteral("home"))) {}

    QString file(const QString& relative, qint64 size) const { return tree.file(QStringLiteral("home/") + relative, size); }

    QJsonObject scanCategory(const char* raw) const
    {
        const CliRun run = runProgram(DUSTLARK_CLI, {"scan", "--home", home, "--category", raw, "--json"});
        EXPECT_EQ(run.exitCode, 0) << run.standardError.constData();
        return categoryNamed(categoriesOf(run), raw);
    }

    TempTree tree;
    QString home;
};

}  // namespace

TEST_F(ReportCliTest, ListsAnNpmCacheAsSafeAndSkipsSmallCaches)
{
    file(QStringLiteral(".npm/_cacache/content-v2/sha512/aa/blob"), 2'000'000);
    file(QStringLiteral("Library/Caches/Yarn/v6/npm-left-pad/blob"), 900'000);

    const QJsonObject caches = scanCategory("packageCaches");
    EXPECT_EQ(caches[QStringLiteral("state")].toString(), QStringLiteral("done"));
    const QJsonArray items = caches[QStringLiteral("items")].toArray();
    ASSERT_EQ(items.size(), 1);
    const QJsonObject npm = items.first().toObject();
    EXPECT_EQ(npm[QStringLiteral("title")].toString(), QStringLiteral("npm cache"));
    EXPECT_EQ(npm[QStringLiteral("safety")].toString(), QStringLiteral("safe"));
    EXPECT_EQ(npm[QStringLiteral("paths")].toArray(), QJsonArray{home + QStringLiteral("/.npm/_cacache")});
    EXPECT_GE(npm[QStringLiteral("size")].toDouble(), 2'000'000);
    EXPECT_TRUE(caches[QStringLiteral("notes")].toArray().isEmpty());
}

TEST(ReportCli, BadArgumentsExitWithStatusTwoAndOneLine)
{
    const QList<QStringList> badCommands = {{}, {"clean"}, {"scan", "--bogus"}, {"scan", "--category", "PackageCaches"},
                                            {"scan", "--home"}};
    for (const QStringList& arguments : badCommands) {
        const CliRun run = runProgram(QStringLiteral(DUSTLARK_CLI), arguments);
        EXPECT_EQ(run.exitCode, 2) << qPrintable(arguments.join(' '));
        EXPECT_TRUE(run.standardOutput.isEmpty());
        EXPECT_EQ(run.standardError.trimmed().count('\n'), 0) << run.standardError.constData();
    }
}

// Folders the tool may not read are reported, and the readable rest is still listed. Root
// reads everything, so as root the tool runs as an unprivileged user.
TEST_F(ReportCliTest, UnreadableFoldersGiveTheFullDiskAccessNote)
{
    const bool asRoot = ::geteuid() == 0;
    const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
    if (asRoot && setpriv.isEmpty())
        GTEST_SKIP() << "running as root without setpriv to drop privileges";
    file(QStringLiteral("Library/Logs/Readable/a.log"), 2'000'000);
    file(QStringLiteral("Library/Logs/Locked/a.log"), 2'000'000);
    file(QStringLiteral(".cache/huggingface/hub/models--a--b/blob"), 2'000'000);
    for (const QString& folder : {tree.root(), home, home + "/Library", home + "/Library/Logs", home + "/.cache",
                                  home + "/.cache/huggingface", home + "/Library/Logs/Readable"})
        ::chmod(QFile::encodeName(folder).constData(), 0755);
    QFile::setPermissions(home + QStringLiteral("/Library/Logs/Readable/a.log"), QFileDevice::ReadOwner | QFileDevice::ReadOther);
    for (const char* locked : {"/Library/Logs/Locked", "/.cache/huggingface/hub"})
        ::chmod(QFile::encodeName(home + QLatin1String(locked)).constData(), 0);

    QStringList arguments = {"scan", "--home", home, "--category", "logs", "--category", "aiModels", "--json"};
    QString program = QStringLiteral(DUSTLARK_CLI);
    if (asRoot) {
        arguments = QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", program} + arguments;
        program = setpriv;
    }
    const CliRun run = runProgram(program, arguments);
    for (const char* locked : {"/Library/Logs/Locked", "/.cache/huggingface/hub"})
        ::chmod(QFile::encodeName(home + QLatin1String(locked)).constData(), 0755);
    ASSERT_EQ(run.exitCode, 0) << run.standardError.constData();

    const QJsonArray categories = categoriesOf(run);
    const QJsonObject logs = categoryNamed(categories, "logs");
    EXPECT_EQ(logs[QStringLiteral("notes")].toArray(), QJsonArray{LocationScanner::unreadableNote()});
    const QJsonArray rows = logs[QStringLiteral("items")].toArray();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.first()[QStringLiteral("title")].toString(), QStringLiteral("Readable"));
    EXPECT_EQ(categoryNamed(categories, "aiModels")[QStringLiteral("notes")].toArray(),
              QJsonArray{LocationScanner::unreadableNote()});
}

TEST(ReportCliVersion, PrintsTheVersionAndBuildThatCMakeSet)
{
    const CliRun run = runProgram(QStringLiteral(DUSTLARK_CLI), {QStringLiteral("--version")});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.standardOutput, QByteArray("dustlark-cli " DUSTLARK_EXPECTED_VERSION " (" DUSTLARK_EXPECTED_BUILD ")\n"));
    EXPECT_EQ(runProgram(QStringLiteral(DUSTLARK_CLI), {QStringLiteral("--version"), QStringLiteral("--json")}).exitCode, 2);
}
