#include "support/HttpsTestServer.h"
#include "update/UpdateChecker.h"
#include "support/Wait.h"

#include <QObject>

#include <gtest/gtest.h>

#include <memory>

using UpdateChecker::Release;
using UpdateChecker::Result;

namespace {

const QString versionPath = QStringLiteral("/dustlark-mac/version.json");
const QString unavailable = QStringLiteral("The update information isn't available right now. Try again later.");

QByteArray versionFile(qint64 build, const QByteArray& extra = {})
{
    return R"({"version":"2.0","build":)" + QByteArray::number(build) + extra + "}";
}

HttpsTestServer::Response ok(const QByteArray& body)
{
    HttpsTestServer::Response response;
    response.body = body;
    return response;
}

// The checker pointed at a real local HTTPS server whose throw-away certificate it trusts.
class UpdateCheckFixture : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.isListening()) << qPrintable(server.error()); }

    UpdateSite site(int timeoutMs = 5000) const
    {
        UpdateSite site;
        site.origin = QUrl(server.origin());
        site.extraCertificates = server.certificatePem();
        site.timeoutMs = timeoutMs;
        return site;
    }

    std::optional<Result> check(const UpdateSite& where, qint64 currentBuild = 10)
    {
        std::optional<Result> result;
        QObject context;
        UpdateChecker::check(where, currentBuild, &context, [&](Result r) { result = std::move(r); });
        waitUntil([&] { return result.has_value(); }, 20'000);
        return result;
    }

    static QString failure(const std::optional<Result>& result)
    {
        return result && result->as<Result::Failed>() ? result->as<Result::Failed>()->message : QString();
    }
    // The system's own words follow the sentence's start.
    static bool saysWhatTheSystemSaid(const QString& failure)
    {
        const QString start = QStringLiteral("Couldn't check for updates: ");
        return failure.startsWith(start) && failure.size() > start.size();
    }

    HttpsTestServer server;
};

}  // namespace

TEST(UpdateRelease, DecodesOnlyWellFormedVersionFiles)
{
    const auto full = Release::decode(
        R"({"version":"1.4","build":140,"url":"https://dustlark.app/r/1.4","dmg":"https://dustlark.app/d.dmg","sha256":"ab12"})");
    ASSERT_TRUE(full);
    EXPECT_EQ(full->version, QStringLiteral("1.4"));
    EXPECT_EQ(full->build, 140);
    EXPECT_EQ(full->url, QUrl(QStringLiteral("https://dustlark.app/r/1.4")));
    EXPECT_EQ(full->sha256, QStringLiteral("ab12"));

    const auto minimal = Release::decode(R"({"version":"1.4","build":0,"url":null})");
    ASSERT_TRUE(minimal);
    EXPECT_FALSE(minimal->url || minimal->dmg || minimal->sha256);

    for (const char* bad : {R"({"version":"1.4","build":"140"})", R"({"version":"1.4","build":-1})",
                            R"({"version":"1.4","build":1.5})", R"({"build":140})", R"({"version":14,"build":140})",
                            R"({"version":"1.4","build":140,"url":7})", R"({"version":"1.4","build":140,"sha256":[]})",
                            R"([{"version":"1.4","build":140}])", "<html>Moved</html>", "", R"({"version":"1.4","build":14)"})
        EXPECT_FALSE(Release::decode(bad)) << bad;
}

TEST(UpdateRelease, SendsPeopleOnlyToTheMakersOwnHttpsPages)
{
    const UpdateSite site;
    Release release{QStringLiteral("2.0"), 20, {}, {}, {}};
    EXPECT_EQ(release.downloadURL(site), QUrl(QStringLiteral("https://dustlark.app/dustlark-mac/")));

    release.url = QUrl(QStringLiteral("https://DUSTLARK.app/dustlark-mac/2.0"));
    EXPECT_EQ(release.downloadURL(site), *release.url);
    release.dmg = QUrl(QStringLiteral("https://dustlark.app/files/Dustlark-2.0.dmg"));
    EXPECT_EQ(release.dmgURL(site), release.dmg);

    for (const char* foreign : {"http://dustlark.app/dustlark-mac/2.0", "https://dustlark.app.evil.example/x",
                                "https://evil.example/dustlark.app", "https://dustlark.app@evil.example/x",
                                "https://dustlark.app:8443/x", "ftp://dustlark.app/x", "not a url at all"}) {
        release.url = release.dmg = QUrl(QString::fromLatin1(foreign), QUrl::StrictMode);
        EXPECT_EQ(release.downloadURL(site), site.releasePage()) << foreign;
        EXPECT_FALSE(release.dmgURL(site)) << foreign;
    }
}

TEST(UpdateRelease, ComparesBuildNumbersOnly)
{
    // The version text says newer, the build says the same: nothing to offer.
    EXPECT_EQ(UpdateChecker::resultFor(200, R"({"version":"9.9","build":10})", 10), Result{Result::UpToDate{}});
    EXPECT_EQ(UpdateChecker::resultFor(200, R"({"version":"0.1","build":9})", 10), Result{Result::UpToDate{}});
    const Result newer = UpdateChecker::resultFor(200, R"({"version":"0.1","build":11})", 10);
    ASSERT_TRUE(newer.as<Result::Available>());
    EXPECT_EQ(newer.as<Result::Available>()->release.build, 11);
    // A copy whose own build can't be read is build 0 and is offered any release.
    EXPECT_EQ(UpdateChecker::resultFor(200, R"({"version":"1","build":1})", 0).kind(), Result::Kind::available);
    EXPECT_EQ(UpdateChecker::resultFor(203, R"({"version":"1","build":99})", 0), Result{Result::Failed{unavailable}});
}

TEST(UpdateRelease, ReadsTheOwnBuildNumberStrictly)
{
    EXPECT_EQ(UpdateChecker::parseBuild(QStringLiteral("42")), 42);
    EXPECT_EQ(UpdateChecker::parseBuild(QStringLiteral("007")), 7);
    for (const char* bad : {"", "1.2", "-3", " 7", "7 ", "12a", "+5", "99999999999999999999"})
        EXPECT_EQ(UpdateChecker::parseBuild(QString::fromLatin1(bad)), 0) << bad;
    EXPECT_FALSE(UpdateChecker::currentVersion().isEmpty());
    EXPECT_GT(UpdateChecker::currentBuild(), 0);
}

TEST_F(UpdateCheckFixture, AnswersFromTheVersionFileOverHttps)
{
    server.serve(versionPath, ok(versionFile(11, R"(,"url":"https://dustlark.app/x")")));
    const auto newer = check(site(), 10);
    ASSERT_TRUE(newer && newer->as<Result::Available>()) << qPrintable(failure(newer));
    EXPECT_EQ(newer->as<Result::Available>()->release.version, QStringLiteral("2.0"));
    EXPECT_EQ(server.requests(), QStringList{versionPath});

    const auto same = check(site(), 11);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->kind(), Result::Kind::upToDate);
}

TEST_F(UpdateCheckFixture, AnAnswerThatIsNotTheVersionFileIsUnavailable)
{
    EXPECT_EQ(failure(check(site())), unavailable) << "missing file (404)";
    server.serve(versionPath, ok("<html>not json</html>"));
    EXPECT_EQ(failure(check(site())), unavailable) << "not JSON";
    server.serve(versionPath, ok(versionFile(11, ",\"pad\":\"" + QByteArray(70'000, 'x') + "\"")));
    EXPECT_EQ(failure(check(site())), unavailable) << "a file far larger than any version file";
}

TEST_F(UpdateCheckFixture, FollowsRedirectsOnlyWithinTheSite)
{
    HttpsTestServer other;
    ASSERT_TRUE(other.isListening());
    other.serve(versionPath, ok(versionFile(99)));
    HttpsTestServer::Response moved(302, {}, {{"Location", "/dustlark-mac/moved.json"}});
    server.serve(versionPath, moved);
    server.serve(QStringLiteral("/dustlark-mac/moved.json"), ok(versionFile(12)));
    const auto followed = check(site());
    ASSERT_TRUE(followed && followed->as<Result::Available>()) << qPrintable(failure(followed));
    EXPECT_EQ(followed->as<Result::Available>()->release.build, 12);

    moved.headers = {{"Location", (other.origin() + versionPath).toUtf8()}};
    server.serve(versionPath, moved);
    UpdateSite trustingBoth = site();
    trustingBoth.extraCertificates += other.certificatePem();
    const auto refused = check(trustingBoth);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->kind(), Result::Kind::failed);
    EXPECT_TRUE(other.requests().isEmpty());
}

TEST_F(UpdateCheckFixture, ASlowServerIsWaitedForUntilItFallsSilent)
{
    HttpsTestServer::Response dribble = ok(versionFile(11));
    dribble.chunkSize = 4;
    dribble.chunkDelayMs = 60;  // well over a second in all, never silent for long
    server.serve(versionPath, dribble);
    const auto slow = check(site(800));
    ASSERT_TRUE(slow);
    EXPECT_EQ(slow->kind(), Result::Kind::available) << qPrintable(failure(slow));

    HttpsTestServer::Response silent = ok(versionFile(11));
    silent.delayMs = 3000;
    server.serve(versionPath, silent);
    EXPECT_TRUE(saysWhatTheSystemSaid(failure(check(site(500)))));
}

TEST_F(UpdateCheckFixture, TransportFailuresSayWhatTheSystemSaid)
{
    HttpsTestServer::Response cut = ok(versionFile(11));
    cut.announcedLength = 4000;  // the connection closes long before that
    server.serve(versionPath, cut);
    EXPECT_TRUE(saysWhatTheSystemSaid(failure(check(site())))) << "cut short";

    server.serve(versionPath, ok(versionFile(11)));
    UpdateSite untrusted = site();
    untrusted.extraCertificates.clear();
    EXPECT_TRUE(saysWhatTheSystemSaid(failure(check(untrusted)))) << "an untrusted certificate";

    HttpsTestServer otherName(QStringLiteral("dustlark.app"), QStringLiteral("10.9.9.9"));
    otherName.serve(versionPath, ok(versionFile(11)));
    UpdateSite mismatched = site();
    mismatched.origin = QUrl(otherName.origin());
    mismatched.extraCertificates = otherName.certificatePem();
    EXPECT_TRUE(saysWhatTheSystemSaid(failure(check(mismatched)))) << "a trusted certificate for another host";

    UpdateSite nobody = site();
    nobody.origin = QUrl(QStringLiteral("https://127.0.0.1:1"));
    EXPECT_TRUE(saysWhatTheSystemSaid(failure(check(nobody)))) << "refused";
    nobody.origin = QUrl(QStringLiteral("https://no-such-host.invalid"));
    EXPECT_TRUE(saysWhatTheSystemSaid(failure(check(nobody)))) << "DNS";
}

TEST_F(UpdateCheckFixture, NoAnswerReachesAContextThatIsGone)
{
    HttpsTestServer::Response slow = ok(versionFile(11));
    slow.delayMs = 300;
    server.serve(versionPath, slow);
    bool called = false;
    auto context = std::make_unique<QObject>();
    UpdateChecker::check(site(), 10, context.get(), [&](Result) { called = true; });
    context.reset();
    waitUntil([] { return false; }, 600);  // longer than the server's delay
    EXPECT_FALSE(called);
}
