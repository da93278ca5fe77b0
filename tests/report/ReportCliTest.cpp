#include "scan/LocationScanner.h"
#include "support/CliScan.h"
#include "support/TempTree.h"

#include <QFile>
#include <QStandardPaths>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The fixture home folder of every test: a temporary tree whose "home" the tool scans.
class ReportCliTest : public ::testing::Test {
protected:
    ReportCliTest() : home(tree.dir(QStringLiteral("home"))) {}

    QString file(const QString& relative, qint64 size) const { return tree.file(QStringLiteral("home/") + relative, size); }

    TempTree tree;
    QString home;
};

}  // namespace

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
    for (const QString& folder : {tree.root(), home, home + "/Library", home + "/Library/Logs", home + "/Library/Logs/Readable"})
        ::chmod(QFile::encodeName(folder).constData(), 0755);
    QFile::setPermissions(home + QStringLiteral("/Library/Logs/Readable/a.log"), QFileDevice::ReadOwner | QFileDevice::ReadOther);
    ::chmod(QFile::encodeName(home + QStringLiteral("/Library/Logs/Locked")).constData(), 0);

    QStringList arguments = {"scan", "--home", home, "--category", "logs", "--json"};
    QString program = QStringLiteral(DUSTLARK_CLI);
    if (asRoot) {
        arguments = QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", program} + arguments;
        program = setpriv;
    }
    const ProgramRun run = ProgramRun::run(program, arguments);
    ::chmod(QFile::encodeName(home + QStringLiteral("/Library/Logs/Locked")).constData(), 0755);
    ASSERT_EQ(run.exitCode, 0) << run.standardError.constData();

    const CliScan scan = CliScan::of(run);
    const QJsonObject logs = scan.category(QStringLiteral("logs"));
    EXPECT_EQ(logs[QStringLiteral("notes")].toArray(), QJsonArray{LocationScanner::unreadableNote()});
    const QJsonArray rows = logs[QStringLiteral("items")].toArray();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.first()[QStringLiteral("title")].toString(), QStringLiteral("Readable"));
}

TEST(ReportCliVersion, PrintsTheVersionAndBuildThatCMakeSet)
{
    const ProgramRun run = ProgramRun::run(QStringLiteral(DUSTLARK_CLI), {QStringLiteral("--version")});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.standardOutput, QByteArray("dustlark-cli " DUSTLARK_EXPECTED_VERSION " (" DUSTLARK_EXPECTED_BUILD ")\n"));
}
