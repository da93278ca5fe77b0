#include "update/Release.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <cmath>

QNetworkRequest UpdateSite::request(const QUrl& url) const
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setTransferTimeout(timeoutMs);
    if (!extraCertificates.isEmpty()) {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.addCaCertificates(QSslCertificate::fromData(extraCertificates, QSsl::Pem));
        request.setSslConfiguration(tls);
    }
    return request;
}

bool UpdateSite::isOwnAddress(const QUrl& url) const
{
    return url.isValid() && url.scheme() == QLatin1String("https")
        && url.host().compare(origin.host(), Qt::CaseInsensitive) == 0
        && url.port(443) == origin.port(443) && url.userInfo().isEmpty();
}

QUrl UpdateSite::at(const QString& path) const
{
    QUrl url = origin;
    url.setPath(path);
    return url;
}

namespace UpdateChecker {

namespace {

// A JSON number that is a whole, non-negative value (JSON has no integer type of its own).
std::optional<qint64> wholeNumber(const QJsonValue& value)
{
    if (!value.isDouble())
        return std::nullopt;
    const double number = value.toDouble();
    if (number < 0 || number > 9e15 || std::floor(number) != number)
        return std::nullopt;
    return qint64(number);
}

// An optional string field: absent or null is fine, any other type spoils the whole file.
bool optionalText(const QJsonObject& object, const char* key, std::optional<QString>& out)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isUndefined() || value.isNull())
        return true;
    if (!value.isString())
        return false;
    out = value.toString();
    return true;
}

std::optional<QUrl> asUrl(const std::optional<QString>& text)
{
    if (!text)
        return std::nullopt;
    return QUrl(*text, QUrl::StrictMode);
}

}  // namespace

std::optional<Release> Release::decode(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const QJsonValue version = object.value(QLatin1String("version"));
    const std::optional<qint64> build = wholeNumber(object.value(QLatin1String("build")));
    std::optional<QString> url, dmg, sha256;
    if (!version.isString() || !build || !optionalText(object, "url", url)
        || !optionalText(object, "dmg", dmg) || !optionalText(object, "sha256", sha256))
        return std::nullopt;
    return Release{version.toString(), *build, asUrl(url), asUrl(dmg), sha256};
}

QUrl Release::downloadURL(const UpdateSite& site) const
{
    return url && site.isOwnAddress(*url) ? *url : site.releasePage();
}

std::optional<QUrl> Release::dmgURL(const UpdateSite& site) const
{
    if (dmg && site.isOwnAddress(*dmg))
        return dmg;
    return std::nullopt;
}

}  // namespace UpdateChecker
