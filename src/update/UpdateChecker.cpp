#include "update/UpdateChecker.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSslConfiguration>

namespace UpdateChecker {

namespace {

constexpr qint64 maxVersionFileBytes = 64 * 1024;

QString unavailable()
{
    //: Check for Updates error when the web site answered with something other than the version file
    return QCoreApplication::translate("UpdateChecker",
                                       "The update information isn't available right now. Try again later.");
}

Result finished(QNetworkReply* reply, qint64 currentBuild)
{
    if (reply->property("tooLarge").toBool())
        return {Result::Failed{unavailable()}};
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // Qt numbers the errors of an HTTP answer (404, 500, ...) from 200 up; below that the
    // connection itself failed, also when a status line had arrived before it broke.
    const QNetworkReply::NetworkError error = reply->error();
    if (error != QNetworkReply::NoError && (status == 0 || error < QNetworkReply::ContentAccessDenied))
        return {Result::Failed{transportFailure(reply->errorString())}};
    const QByteArray body = reply->read(maxVersionFileBytes + 1);
    if (body.size() > maxVersionFileBytes)
        return {Result::Failed{unavailable()}};
    return resultFor(status, body, currentBuild);
}

}  // namespace

QString currentVersion()
{
    return Platform::bundleValue(QStringLiteral("CFBundleShortVersionString"));
}

QString bundleIdentifier()
{
    return Platform::bundleValue(QStringLiteral("CFBundleIdentifier"));
}

qint64 currentBuild()
{
    return parseBuild(Platform::bundleValue(QStringLiteral("CFBundleVersion")));
}

qint64 parseBuild(const QString& text)
{
    if (text.isEmpty() || text.size() > 15)
        return 0;
    for (QChar c : text)
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return 0;
    return text.toLongLong();
}

Result resultFor(int httpStatus, const QByteArray& body, qint64 currentBuild)
{
    const std::optional<Release> release = httpStatus == 200 ? Release::decode(body) : std::nullopt;
    if (!release)
        return {Result::Failed{unavailable()}};
    if (currentBuild >= release->build)
        return {Result::UpToDate{}};
    return {Result::Available{*release}};
}

QString transportFailure(const QString& description)
{
    //: Check for Updates error. The placeholder is the system's error message.
    return QCoreApplication::translate("UpdateChecker", "Couldn't check for updates: %1").arg(description);
}

void check(const UpdateSite& site, qint64 currentBuild, QObject* context, std::function<void(Result)> done)
{
    // A manager per check: its cookie jar and connections end with it.
    auto* manager = new QNetworkAccessManager(context);
    QNetworkReply* reply = manager->get(site.request(site.versionFile()));
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received <= maxVersionFileBytes)
            return;
        reply->setProperty("tooLarge", true);
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, manager, [manager, reply, currentBuild, done] {
        const Result result = finished(reply, currentBuild);
        reply->deleteLater();
        manager->deleteLater();
        done(result);
    });
}

}  // namespace UpdateChecker
