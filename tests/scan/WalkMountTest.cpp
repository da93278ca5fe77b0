// Mount points are checked with a real tmpfs mounted inside the tree. The mount is made in a
// private mount namespace (unshare(1)), so nothing outside this test sees it; the test binary
// re-runs itself there to walk and measure, and prints what it saw for the parent to check.

#include "machinery/FileSizer.h"
#include "scan/Walk.h"
#include "support/PrivateMount.h"
#include "support/TempTree.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char* const treeVariable = "DUSTLARK_MOUNTED_TREE";
const char* const mountVariable = "DUSTLARK_MOUNT_POINT";

dev_t deviceOf(const QByteArray& path)
{
    struct stat info {};
    ::lstat(path.constData(), &info);
    return info.st_dev;
}

}  // namespace

// The side that runs inside the namespace; disabled so that it runs only when asked for.
TEST(MountedTree, DISABLED_ReportFromInsideTheNamespace)
{
    const QByteArray root = qgetenv(treeVariable);
    if (root.isEmpty())
        GTEST_SKIP() << "runs only inside the mount namespace made by MountPoints.AreNotCrossed";
    const bool mounted = deviceOf(qgetenv(mountVariable)) != deviceOf(root);
    Walk walk(ScanContext{});
    walk.run(QFile::decodeName(root));
    const FileSizer::Measurement measurement = FileSizer::measure(QFile::decodeName(root));
    std::printf("REPORT mounted=%d files=%lld candidates=%lld repositories=%lld\n", mounted ? 1 : 0,
                static_cast<long long>(measurement.files),
                static_cast<long long>(walk.duplicateCandidates().size()),
                static_cast<long long>(walk.mainRepositories().size()));
    std::fflush(stdout);
}

TEST(MountPoints, AreNotCrossed)
{
    TempTree tree;
    tree.sparseFile("top/outside", 2'000'000);
    const QString mountPoint = tree.dir("top/mnt");
    const QString script = QStringLiteral(
        "mount -t tmpfs dustlark-test \"$1\" || exit 77; echo MOUNTED; "
        "mkdir \"$1/folder\" \"$1/.git\" && truncate -s 2000000 \"$1/inside\" \"$1/folder/deep\" || exit 78; "
        "exec \"$2\" --gtest_also_run_disabled_tests --gtest_filter=MountedTree.*");

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(treeVariable, tree.path("top"));
    environment.insert(mountVariable, mountPoint);
    const auto run = runInPrivateMount(script, mountPoint, environment);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);

    EXPECT_EQ(run->report().toStdString(), "mounted=1 files=1 candidates=1 repositories=0") << qPrintable(run->output);
}
