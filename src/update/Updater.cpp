#include "update/Updater.h"

#include <QCoreApplication>
#include <QFile>
#include <QDir>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>

#include <openssl/evp.h>

#include <memory>
#include <unistd.h>

namespace Updater {

namespace {

// The file's SHA-256 in lower-case hexadecimal; absent with `error` set when it can't be read.
std::optional<QByteArray> sha256Of(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return std::nullopt;
    }
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    EVP_DigestInit_ex(context.get(), EVP_sha256(), nullptr);
    QByteArray chunk(1 << 20, Qt::Uninitialized);
    qint64 read = 0;
    while ((read = file.read(chunk.data(), chunk.size())) > 0)
        EVP_DigestUpdate(context.get(), chunk.constData(), size_t(read));
    if (read < 0) {
        *error = file.errorString();
        return std::nullopt;
    }
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_DigestFinal_ex(context.get(), digest, &length);
    return QByteArray(reinterpret_cast<const char*>(digest), int(length)).toHex();
}

}  // namespace

void download(const UpdateSite& site, const QUrl& url, QObject* context, std::function<void(Download)> done)
{
    auto image = std::make_shared<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/Dustlark-update-XXXXXXupdate.dmg"));
    if (!image->open()) {
        done({nullptr, image->errorString()});
        return;
    }
    auto* manager = new QNetworkAccessManager(context);
    QNetworkReply* reply = manager->get(site.request(url));
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, image] {
        if (image->write(reply->readAll()) < 0)
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, manager, [manager, reply, image, done] {
        image->write(reply->readAll());
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        QString error = reply->error() != QNetworkReply::NoError ? reply->errorString() : QString();
        if (error.isEmpty() && status != 200)
            error = QStringLiteral("HTTP %1").arg(status);
        if (error.isEmpty() && !image->flush())
            error = image->errorString();
        reply->deleteLater();
        manager->deleteLater();
        done(error.isEmpty() ? Download{image, {}} : Download{nullptr, error});
    });
}

bool canInstallHere(const QString& appPath)
{
    if (appPath.contains(QLatin1String("/AppTranslocation/")) || appPath.startsWith(QLatin1String("/Volumes/")))
        return false;
    const QString folder = QFileInfo(appPath).absolutePath();
    return ::access(QFile::encodeName(folder).constData(), W_OK) == 0;
}

QString requirement(const QString& bundleIdentifier, const QString& team)
{
    return QStringLiteral("anchor apple generic and identifier \"%1\" and certificate "
                          "leaf[field.1.2.840.113635.100.6.1.13] exists and certificate leaf[subject.OU] = \"%2\"")
        .arg(bundleIdentifier, team);
}

std::optional<QString> checkImage(const QString& imagePath, const std::optional<QString>& sha256)
{
    if (!sha256 || sha256->trimmed().isEmpty())
        return didNotPassCheck();
    QString error;
    const std::optional<QByteArray> actual = sha256Of(imagePath, &error);
    if (!actual)
        return couldNotInstall(error);
    if (*actual != sha256->trimmed().toLower().toLatin1())
        return didNotPassCheck();
    return std::nullopt;
}

QString didNotPassCheck()
{
    //: Install and Relaunch error when the downloaded image or app fails its digest or signature check
    return QCoreApplication::translate("Updater", "The downloaded update didn't pass the check. This copy wasn't changed.");
}

QString couldNotInstall(const QString& message)
{
    //: Install and Relaunch error. The placeholder is the system's or a tool's message.
    return QCoreApplication::translate("Updater", "Couldn't install the update (%1). This copy wasn't changed.").arg(message);
}

}  // namespace Updater
