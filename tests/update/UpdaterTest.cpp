#include "support/HttpsTestServer.h"
#include "support/PrivateMount.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "update/Updater.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <gtest/gtest.h>

namespace {

const QString didNotPass = QStringLiteral("The downloaded update didn't pass the check. This copy wasn't changed.");

// A one-character change at `index` of a hexadecimal digest.
QString changedAt(QString digest, int index)
{
    digest[index] = digest[index] == QLatin1Char('0') ? QLatin1Char('1') : QLatin1Char('0');
    return digest;
}

// Downloads `path` from the server with `limits` and waits for the outcome.
Updater::Download fetch(const HttpsTestServer& server, const QString& path, const Updater::DownloadLimits& limits)
{
    UpdateSite site;
    site.origin = QUrl(server.origin());
    site.extraCertificates = server.certificatePem();
    std::optional<Updater::Download> result;
    QObject context;
    Updater::download(site, QUrl(server.origin() + path), &context, [&](Updater::Download done) { result = done; }, limits);
    EXPECT_TRUE(waitUntil([&] { return result.has_value(); }, 30'000));
    return result.value_or(Updater::Download{nullptr, QStringLiteral("no answer")});
}

}  // namespace

TEST(Updater, OnlyACopyInAWritableFolderOfItsOwnMayReplaceItself)
{
    TempTree tree;
    const QString app = tree.dir(QStringLiteral("Applications/Dustlark.app"));
    EXPECT_TRUE(Updater::canInstallHere(app));
    EXPECT_FALSE(Updater::canInstallHere(
        QStringLiteral("/private/var/folders/x/T/AppTranslocation/1A2B/d/Dustlark.app")));
    EXPECT_FALSE(Updater::canInstallHere(QStringLiteral("/Volumes/Dustlark 1.4/Dustlark.app")));

    QFile::setPermissions(tree.path(QStringLiteral("Applications")), QFile::ReadOwner | QFile::ExeOwner
                                                                          | QFile::ReadOther | QFile::ExeOther);
    const auto readOnly = tree.runUnprivileged([&] { return QByteArray(Updater::canInstallHere(app) ? "yes" : "no"); });
    ASSERT_TRUE(readOnly);
    EXPECT_EQ(*readOnly, QByteArray("no"));
}

TEST(Updater, DemandsOurIdentifierAndTeamInTheSignature)
{
    EXPECT_EQ(Updater::requirement(QStringLiteral("app.dustlark.Dustlark"), QStringLiteral("AB12CD34EF")),
              QStringLiteral("anchor apple generic and identifier \"app.dustlark.Dustlark\" and certificate "
                             "leaf[field.1.2.840.113635.100.6.1.13] exists and certificate leaf[subject.OU] = \"AB12CD34EF\""));
}

TEST(Updater, AnImageMustMatchItsDigestExactly)
{
    TempTree tree;
    QByteArray content(3'000'000, 'd');  // spans several read chunks
    content[2'500'000] = 'e';
    const QString image = tree.file(QStringLiteral("Dustlark-update-1update.dmg"), content);
    const QString digest = QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());

    EXPECT_EQ(Updater::checkImage(image, digest), std::nullopt);
    EXPECT_EQ(Updater::checkImage(image, digest.toUpper()), std::nullopt);
    EXPECT_EQ(Updater::checkImage(image, changedAt(digest, 0)), didNotPass);
    EXPECT_EQ(Updater::checkImage(image, changedAt(digest, 63)), didNotPass);
    EXPECT_EQ(Updater::checkImage(image, digest.left(63)), didNotPass);
    EXPECT_EQ(Updater::checkImage(image, std::nullopt), didNotPass) << "no digest: refused";
    EXPECT_EQ(Updater::checkImage(image, QString()), didNotPass);

    const auto missing = Updater::checkImage(tree.path(QStringLiteral("gone.dmg")), digest);
    ASSERT_TRUE(missing);
    EXPECT_TRUE(missing->startsWith(QStringLiteral("Couldn't install the update (")));
    EXPECT_TRUE(missing->endsWith(QStringLiteral("). This copy wasn't changed.")));
    EXPECT_GT(missing->size(), QStringLiteral("Couldn't install the update (). This copy wasn't changed.").size());
}

TEST(UpdaterDownload, StopsAtItsOwnSizeLimitAndSaysSo)
{
    HttpsTestServer server;
    ASSERT_TRUE(server.isListening()) << qPrintable(server.error());
    HttpsTestServer::Response big(200, QByteArray(300'000, 'i'));
    big.chunkSize = 16'384;
    server.serve(QStringLiteral("/big.dmg"), big);
    server.serve(QStringLiteral("/fits.dmg"), HttpsTestServer::Response(200, QByteArray(200'000, 'i')));
    TempTree tree;
    const Updater::DownloadLimits limits{tree.dir(QStringLiteral("tmp")), 200'000};

    const Updater::Download cut = fetch(server, QStringLiteral("/big.dmg"), limits);
    EXPECT_FALSE(cut.image);
    EXPECT_EQ(cut.error, QStringLiteral("the download is larger than 200 KB, more than any update"));
    EXPECT_TRUE(waitUntil([&] { return QDir(limits.folder).isEmpty(); })) << "the partial image is removed";

    const Updater::Download whole = fetch(server, QStringLiteral("/fits.dmg"), limits);
    ASSERT_TRUE(whole.image) << qPrintable(whole.error);
    EXPECT_EQ(QFileInfo(whole.image->fileName()).size(), 200'000);
}

// Runs inside the private mount namespace of the test below, downloading into a tiny tmpfs.
TEST(UpdaterFullDisk, DISABLED_DownloadIntoTheFullFolder)
{
    const QString folder = qEnvironmentVariable("DUSTLARK_SMALL_FOLDER");
    if (folder.isEmpty())
        GTEST_SKIP() << "runs only inside UpdaterDownload.AFullDiskGivesItsCauseNotCanceled";
    HttpsTestServer server;
    ASSERT_TRUE(server.isListening()) << qPrintable(server.error());
    server.serve(QStringLiteral("/image.dmg"), HttpsTestServer::Response(200, QByteArray(2'000'000, 'i')));
    const Updater::Download download = fetch(server, QStringLiteral("/image.dmg"), {folder, 1'000'000'000});
    std::printf("REPORT %s\n", download.image ? "downloaded" : qPrintable(download.error));
    std::fflush(stdout);
}

TEST(UpdaterDownload, AFullDiskGivesItsCauseNotCanceled)
{
    TempTree tree;
    const QString folder = tree.dir(QStringLiteral("small"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DUSTLARK_SMALL_FOLDER"), folder);
    const QString script = QStringLiteral(
        "mount -t tmpfs -o size=256k dustlark-test \"$1\" || exit 77; echo MOUNTED; "
        "exec \"$2\" --gtest_also_run_disabled_tests --gtest_filter=UpdaterFullDisk.*");
    const auto run = runInPrivateMount(script, folder, environment);
    if (const QString why = whyNotMounted(run); !why.isEmpty())
        GTEST_SKIP() << qPrintable(why);
    EXPECT_EQ(run->report(), QStringLiteral("No space left on device")) << qPrintable(run->output);
}
