// A disk mounted inside the home is not counted, whether it is an entry of the home or lies
// deeper. The mounts are real tmpfs file systems in a private mount namespace (unshare(1)); the
// test binary re-runs itself there to analyse, and prints what it measured for the parent.
#include "StorageFixture.h"
#include "support/PrivateMount.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char* const homeVariable = "DUSTLARK_STORAGE_MOUNTED_HOME";

}  // namespace

// The side that runs inside the namespace; disabled so that it runs only when asked for.
TEST(StorageMountedHome, DISABLED_ReportFromInsideTheNamespace)
{
    const QString home = QString::fromLocal8Bit(qgetenv(homeVariable));
    if (home.isEmpty())
        GTEST_SKIP() << "runs only inside the mount namespace made by StorageMounts.AreNotCounted";
    StorageAnalyzer::Request request;
    request.home = home;
    request.applications.clear();
    const auto report = StorageAnalyzer::analyze(request);
    QStringList roots;
    for (const QByteArray& root : StorageAnalyzer::roots(request))
        roots.append(QString::fromUtf8(root));
    std::printf("REPORT roots=%lld measured-du=%lld\n", static_cast<long long>(roots.size()),
                static_cast<long long>(report ? report->measured() - StorageFixture::du(roots) : -1));
    std::fflush(stdout);
}

TEST(StorageMounts, AreNotCounted)
{
    StorageFixture fixture;
    fixture.file("Documents/a.pdf", 100'000);
    fixture.tree.dir("home/Volumes/disk");
    fixture.tree.dir("home/disk");
    const QString script = QStringLiteral(
        "mount -t tmpfs dustlark-test \"$1/disk\" && mount -t tmpfs dustlark-test \"$1/Volumes/disk\" || exit 77; "
        "echo MOUNTED; head -c 3000000 /dev/zero > \"$1/disk/big\" && head -c 3000000 /dev/zero > \"$1/Volumes/disk/big\" "
        "|| exit 78; exec \"$2\" --gtest_also_run_disabled_tests --gtest_filter=StorageMountedHome.*");

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(homeVariable, fixture.home);
    const auto run = runInPrivateMount(script, fixture.home, environment);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);
    // "disk" is no root at all; "Volumes" is one, measured by its own blocks, as du -s does.
    EXPECT_EQ(run->report().toStdString(), "roots=2 measured-du=0") << qPrintable(run->output);
}
