#include "machinery/ProcessRunner.h"
#include "platform/Platform.h"
#include "support/TempTree.h"
#include "support/Wait.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <system_error>
#include <atomic>
#include <cstdio>
#include <thread>

using namespace std::chrono_literals;
using ProcessRunner::Output;
using ::testing::HasSubstr;

namespace {

const QString helperTool = QStringLiteral(DUSTLARK_FIXTURES "/tools/helper-tool.sh");

Output runHelper(const QStringList& arguments, std::chrono::milliseconds timeout = 60s,
                 const ProcessRunner::Environment& extra = {}, const CancellationToken* cancellation = nullptr)
{
    const ProcessRunner::Result result = ProcessRunner::run(helperTool, arguments, timeout, extra, cancellation);
    EXPECT_TRUE(result.launched()) << result.launchError.toStdString();
    return result.output.value_or(Output{});
}

// Texts compared as std::string, so a failure prints them readably.
std::string text(const QString& string)
{
    return string.toStdString();
}

std::map<std::string, std::string> text(const ProcessRunner::Environment& environment)
{
    std::map<std::string, std::string> result;
    for (auto it = environment.cbegin(); it != environment.cend(); ++it)
        result.emplace(text(it.key()), text(it.value()));
    return result;
}

// True once the process is gone or has ended and waits only to be collected (a zombie: an
// orphan whose new parent never collects it stays one).
bool hasEnded(pid_t pid)
{
    if (::kill(pid, 0) != 0)
        return true;
    QProcess ps;
    ps.start(QStringLiteral("/bin/ps"), {QStringLiteral("-o"), QStringLiteral("stat="), QStringLiteral("-p"), QString::number(pid)});
    ps.waitForFinished();
    const QByteArray state = ps.readAllStandardOutput().trimmed();
    return state.isEmpty() || state.startsWith('Z');
}

bool endsWithin(pid_t pid, std::chrono::seconds limit)
{
    const auto giveUp = std::chrono::steady_clock::now() + limit;
    while (!hasEnded(pid)) {
        if (std::chrono::steady_clock::now() > giveUp)
            return false;
        std::this_thread::sleep_for(50ms);
    }
    return true;
}

}  // namespace

TEST(ProcessRunner, PassesArgumentsWithoutAShellAndReportsTheExitStatus)
{
    const Output listed = runHelper({QStringLiteral("arguments"), QStringLiteral("two words"), QStringLiteral("$HOME"),
                                     QString(), QStringLiteral("café")});
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(text(listed.standardOutput), "two words\n$HOME\n\ncafé\n");

    const Output failed = runHelper({QStringLiteral("exit"), QStringLiteral("3")});
    EXPECT_EQ(failed.status, 3);
    EXPECT_EQ(text(failed.errorMessage()), "Exit code 3");
}

TEST(ProcessRunner, ErrorMessagePrefersTrimmedErrorOutputThenStandardOutput)
{
    const Output blankError = runHelper({QStringLiteral("blank-error")});
    EXPECT_EQ(blankError.status, 1);
    EXPECT_EQ(text(blankError.errorMessage()), "Cannot connect to the daemon.");

    const Output longError = runHelper({QStringLiteral("long-error")});
    EXPECT_EQ(text(longError.errorMessage()), std::string(300, 'a'));

    const Output both{1, QStringLiteral("progress"), QStringLiteral(" denied \n"), false};
    EXPECT_EQ(text(both.errorMessage()), "denied");

    // Capped at 300 characters, never splitting a surrogate pair.
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");  // two UTF-16 units
    const Output output{1, {}, QString(299, QLatin1Char('x')) + emoji + QStringLiteral("tail"), false};
    EXPECT_EQ(text(output.errorMessage()), text(QString(299, QLatin1Char('x')) + emoji));

    const Output timedOut{15, {}, QStringLiteral("partial"), true};
    EXPECT_EQ(text(timedOut.errorMessage()), "The tool didn't answer in time.");
}

TEST(ProcessRunner, DecodesInvalidUtf8WithReplacementAndGivesEmptyInput)
{
    EXPECT_EQ(text(runHelper({QStringLiteral("invalid-utf8")}).standardOutput), "café \uFFFD!");
    EXPECT_EQ(text(runHelper({QStringLiteral("read-input")}).standardOutput), "end of input\n");
}

TEST(ProcessRunner, LaunchFailuresCarryTheSystemsReason)
{
    TempTree tree;
    const QString plainFile = tree.file(QStringLiteral("not-a-program"), QByteArray("#!/bin/sh\necho hi\n"));

    const ProcessRunner::Result missing = ProcessRunner::run(tree.path(QStringLiteral("missing")), {}, 10s);
    EXPECT_FALSE(missing.launched());
    EXPECT_EQ(text(missing.launchError), std::generic_category().message(ENOENT));

    const ProcessRunner::Result notExecutable = ProcessRunner::run(plainFile, {}, 10s);
    EXPECT_FALSE(notExecutable.launched());
    EXPECT_EQ(text(notExecutable.launchError), std::generic_category().message(EACCES));

    const ProcessRunner::Result folder = ProcessRunner::run(tree.dir(QStringLiteral("folder")), {}, 10s);
    EXPECT_FALSE(folder.launched());
    EXPECT_FALSE(folder.launchError.isEmpty());
}

TEST(ProcessRunner, FirstExecutableSkipsMissingFoldersAndPlainFiles)
{
    TempTree tree;
    tree.dir(QStringLiteral("folder"));
    tree.file(QStringLiteral("plain"), 10);
    const QString program = tree.file(QStringLiteral("program"), QByteArray("#!/bin/sh\n"));
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString link = tree.symlink(QStringLiteral("link"), program);

    const QStringList skipped{tree.path(QStringLiteral("missing")), tree.path(QStringLiteral("folder")),
                              tree.path(QStringLiteral("plain"))};
    EXPECT_EQ(text(ProcessRunner::firstExecutable(skipped + QStringList{program, link}).value_or(QString())), text(program));
    EXPECT_EQ(text(ProcessRunner::firstExecutable(skipped + QStringList{link, program}).value_or(QString())), text(link));
    EXPECT_EQ(ProcessRunner::firstExecutable(skipped), std::nullopt);
}

TEST(ProcessRunner, TimeLimitStopsTheToolAndKeepsWhatItWrote)
{
    const Output output = runHelper({QStringLiteral("sleep")}, 300ms);
    EXPECT_TRUE(output.timedOut);
    EXPECT_EQ(output.status, SIGTERM);
    EXPECT_EQ(text(output.standardOutput), "started\n");
}

TEST(ProcessRunner, ToolIgnoringTerminationIsKilledWithItsChild)
{
    const Output output = runHelper({QStringLiteral("ignore-term")}, 500ms);
    EXPECT_TRUE(output.timedOut);
    EXPECT_EQ(output.status, SIGKILL);
    bool ok = false;
    const pid_t child = output.standardOutput.trimmed().toInt(&ok);
    ASSERT_TRUE(ok) << output.standardOutput.toStdString();
    EXPECT_TRUE(endsWithin(child, 10s));
}

TEST(ProcessRunner, CancellationFromAnotherThreadStopsTheTool)
{
    TempTree tree;
    const QString marker = tree.path(QStringLiteral("started"));
    CancellationToken cancellation;
    std::thread canceller([&] {
        for (int round = 0; round < 3000 && !QFile::exists(marker); ++round)
            std::this_thread::sleep_for(10ms);
        cancellation.cancel();
    });
    const Output output = runHelper({QStringLiteral("sleep"), marker}, 120s, {}, &cancellation);
    canceller.join();

    EXPECT_FALSE(output.timedOut);
    EXPECT_EQ(output.status, SIGTERM);
    EXPECT_EQ(text(output.standardOutput), "started\n");

    // A caller cancelled before the start stops the tool at once.
    EXPECT_EQ(runHelper({QStringLiteral("sleep")}, 120s, {}, &cancellation).status, SIGTERM);
}

TEST(ProcessRunner, GrandchildHoldingTheOutputDoesNotHoldTheCaller)
{
    const Output output = runHelper({QStringLiteral("leave-grandchild")}, 120s);
    EXPECT_EQ(output.status, 0);
    const QStringList lines = output.standardOutput.split(QLatin1Char('\n'));
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(text(lines[1]), "own output");
    const pid_t grandchild = lines[0].toInt();
    ASSERT_GT(grandchild, 0);
    EXPECT_FALSE(hasEnded(grandchild));  // the call came back while the pipe was still held
    ::kill(grandchild, SIGKILL);
}

TEST(ProcessRunner, CleanedEnvironmentDropsToolChangingVariablesAndFixesPath)
{
    const ProcessRunner::Environment inherited{
        {QStringLiteral("HOME"), QStringLiteral("/Users/ann")},     {QStringLiteral("LANG"), QStringLiteral("en_US.UTF-8")},
        {QStringLiteral("GIT_DIR"), QStringLiteral("/elsewhere")},  {QStringLiteral("LD_PRELOAD"), QStringLiteral("x.so")},
        {QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral("/l")},  {QStringLiteral("DYLD_LIBRARY_PATH"), QStringLiteral("/d")},
        {QStringLiteral("BUILDX_BUILDER"), QStringLiteral("b")},    {QStringLiteral("PATH"), QStringLiteral("/evil")},
        {QStringLiteral("MY_GIT_DIR"), QStringLiteral("kept")},     {QStringLiteral("git_dir"), QStringLiteral("kept")},
    };
    const ProcessRunner::Environment expected{
        {QStringLiteral("HOME"), QStringLiteral("/Users/ann")},
        {QStringLiteral("LANG"), QStringLiteral("en_US.UTF-8")},
        {QStringLiteral("MY_GIT_DIR"), QStringLiteral("kept")},
        {QStringLiteral("git_dir"), QStringLiteral("kept")},
        {QStringLiteral("PATH"),
         QStringLiteral("/usr/bin:/bin:/usr/sbin:/sbin:/usr/local/bin:/opt/homebrew/bin:/Users/ann/.docker/bin")},
    };
    EXPECT_EQ(text(ProcessRunner::cleanedEnvironment(inherited, QStringLiteral("/Users/ann"))), text(expected));
}

TEST(ProcessRunner, ExtraEnvironmentWinsOverTheBase)
{
    const QStringList names{QStringLiteral("environment"), QStringLiteral("PATH"), QStringLiteral("DOCKER_HOST")};
    const QString basePath = ProcessRunner::baseEnvironment().value(QStringLiteral("PATH"));
    EXPECT_TRUE(basePath.endsWith(QDir::homePath() + QStringLiteral("/.docker/bin"))) << basePath.toStdString();
    EXPECT_EQ(text(runHelper(names).standardOutput), "PATH=" + text(basePath) + "\nDOCKER_HOST unset\n");

    const ProcessRunner::Environment extra{{QStringLiteral("PATH"), QStringLiteral("/only/here")},
                                           {QStringLiteral("DOCKER_HOST"), QStringLiteral("unix:///tmp/d.sock")}};
    EXPECT_EQ(text(runHelper(names, 60s, extra).standardOutput), "PATH=/only/here\nDOCKER_HOST=unix:///tmp/d.sock\n");
}

// The base environment is computed once per process, so the inherited variables are given to a
// second run of this test program, where this probe checks what reaches a tool.
TEST(ProcessRunnerEnvironmentProbe, InheritedToolVariablesAreRemoved)
{
    if (qEnvironmentVariable("DUSTLARK_ENVIRONMENT_PROBE") != QLatin1String("1"))
        GTEST_SKIP() << "runs only inside ProcessRunner.InheritedToolVariablesNeverReachTheTool";
    const Output output = runHelper({QStringLiteral("environment"), QStringLiteral("GIT_DIR"),
                                     QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral("DYLD_LIBRARY_PATH"),
                                     QStringLiteral("BUILDX_BUILDER"), QStringLiteral("DUSTLARK_ENVIRONMENT_PROBE")});
    EXPECT_EQ(text(output.standardOutput), "GIT_DIR unset\nLD_LIBRARY_PATH unset\nDYLD_LIBRARY_PATH unset\n"
                                           "BUILDX_BUILDER unset\nDUSTLARK_ENVIRONMENT_PROBE=1\n");
}

TEST(ProcessRunner, InheritedToolVariablesNeverReachTheTool)
{
    const ProcessRunner::Environment inherited{
        {QStringLiteral("DUSTLARK_ENVIRONMENT_PROBE"), QStringLiteral("1")},
        {QStringLiteral("GIT_DIR"), QStringLiteral("/nowhere/.git")},
        {QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral("/nowhere/lib")},
        {QStringLiteral("DYLD_LIBRARY_PATH"), QStringLiteral("/nowhere/lib")},
        {QStringLiteral("BUILDX_BUILDER"), QStringLiteral("nowhere")},
    };
    const ProcessRunner::Result result = ProcessRunner::run(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("--gtest_filter=ProcessRunnerEnvironmentProbe.*")}, 120s, inherited);
    ASSERT_TRUE(result.launched()) << result.launchError.toStdString();
    EXPECT_EQ(result.output->status, 0) << result.output->standardOutput.toStdString();
    EXPECT_THAT(result.output->standardOutput.toStdString(), HasSubstr("[  PASSED  ] 1 test"));
}

QList<pid_t> printedIds(const Output& output)
{
    QList<pid_t> ids;
    for (const QString& line : output.standardOutput.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        bool ok = false;
        const int id = line.toInt(&ok);
        if (ok && id > 0)
            ids.append(id);
    }
    return ids;
}

// A stopped tool's whole tree is gone by the time the call returns, whatever shape it has: a
// grandchild that left the group and lost its parent, or children started while stopping.
void expectNoSurvivors(const QString& shape, std::chrono::milliseconds timeout, int expectedIds)
{
    const Output output = runHelper({shape}, timeout);
    EXPECT_TRUE(output.timedOut) << text(shape);
    const QList<pid_t> ids = printedIds(output);
    EXPECT_GE(ids.size(), expectedIds) << text(shape) << ": " << text(output.standardOutput);
    for (pid_t id : ids) {
        EXPECT_TRUE(hasEnded(id)) << text(shape) << " left " << id << " running";
        ::kill(id, SIGKILL);  // never leave one behind, even when the test fails
    }
}

TEST(ProcessRunner, StopLeavesNoProcessOfTheToolsTree)
{
    expectNoSurvivors(QStringLiteral("double-fork"), 500ms, 1);
    expectNoSurvivors(QStringLiteral("term-trap"), 500ms, 1);  // ignores the stop: killed after the grace period
}

// Ended processes that are ours to collect and belong to one of `groups` (zombies).
int zombiesIn(const QSet<pid_t>& groups)
{
    int zombies = 0;
    for (const Platform::ProcessEntry& entry : Platform::processTable())
        zombies += entry.parent == ::getpid() && entry.ended && groups.contains(entry.group) ? 1 : 0;
    return zombies;
}

TEST(ProcessRunner, BackgroundChildrenThatEndAfterTheirToolAreCollected)
{
    TempTree tree;
    const QString groups = tree.path("groups");
    // The tool names its group (its own id) and leaves a child that ends a little later.
    const QString script = QStringLiteral("echo $$ >> '%1'; sleep 0.3 </dev/null >/dev/null 2>&1 & exit 0").arg(groups);
    for (int run = 0; run < 100; ++run) {
        const ProcessRunner::Result result = ProcessRunner::run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script}, 10s);
        ASSERT_TRUE(result.launched() && result.output->status == 0) << text(result.launchError);
    }
    QFile file(groups);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QSet<pid_t> ids;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (!line.isEmpty())
            ids.insert(pid_t(line.toInt()));
    }
    ASSERT_EQ(ids.size(), 100);
    // Every child has ended after a while; none may be left a zombie.
    EXPECT_TRUE(waitUntil([&] { return zombiesIn(ids) == 0 && !std::any_of(ids.begin(), ids.end(), [](pid_t group) {
        return ::kill(-group, 0) == 0;
    }); })) << zombiesIn(ids) << " zombies";
}

TEST(ProcessRunner, OutputBeyondTheCapIsDroppedAndTheFloodStopped)
{
    const Output output = runHelper({QStringLiteral("flood")}, 4s);
    EXPECT_TRUE(output.timedOut);
    EXPECT_EQ(output.standardOutput.size(), 64 * 1024 * 1024);
    EXPECT_TRUE(output.standardOutput.endsWith(QLatin1Char('x')));
}

// Runs every shape many times, several at once, so orphans of concurrent runs mix. Set
// DUSTLARK_STRESS_RUNS (e.g. 1000) to run it, DUSTLARK_STRESS_SHAPES to pick shapes
// (comma-separated); see docs/reliability.md.
TEST(ProcessRunnerStress, EveryShapeLeavesNoSurvivors)
{
    const int runs = qEnvironmentVariableIntValue("DUSTLARK_STRESS_RUNS");
    if (runs <= 0)
        GTEST_SKIP() << "stress mode: set DUSTLARK_STRESS_RUNS";
    QStringList shapes{QStringLiteral("sleep"), QStringLiteral("ignore-term"), QStringLiteral("double-fork"),
                       QStringLiteral("term-trap"), QStringLiteral("flood")};
    if (qEnvironmentVariableIsSet("DUSTLARK_STRESS_SHAPES"))
        shapes = qEnvironmentVariable("DUSTLARK_STRESS_SHAPES").split(QLatin1Char(','));
    constexpr int parallel = 16;
    for (const QString& shape : shapes) {
        std::atomic<int> next{0};
        std::atomic<int> survivors{0};
        std::vector<std::thread> workers;
        for (int worker = 0; worker < parallel; ++worker) {
            workers.emplace_back([&] {
                while (next++ < runs) {
                    const Output output = runHelper({shape}, 300ms);
                    for (pid_t id : printedIds(output)) {
                        if (!hasEnded(id) && ::kill(id, SIGKILL) == 0)
                            ++survivors;
                    }
                }
            });
        }
        for (std::thread& worker : workers)
            worker.join();
        std::printf("%s: %d runs, %d survivors\n", qPrintable(shape), runs, survivors.load());
        EXPECT_EQ(survivors.load(), 0) << text(shape);
    }
}

TEST(ProcessRunner, RunsLeaveNoDescriptorsOpen)
{
    const auto openDescriptors = [] { return QDir(QStringLiteral("/dev/fd")).entryList(QDir::AllEntries | QDir::System).size(); };
    const qsizetype before = openDescriptors();
    runHelper({QStringLiteral("exit"), QStringLiteral("0")});
    runHelper({QStringLiteral("sleep")}, 100ms);
    EXPECT_FALSE(ProcessRunner::run(QStringLiteral("/no/such/tool"), {}, 10s).launched());
    EXPECT_EQ(openDescriptors(), before);
}
