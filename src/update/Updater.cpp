#include "update/Updater.h"

#include "format/ByteCount.h"
#include "vocabulary/SystemError.h"

#include <QCoreApplication>
#include <QFile>
#include <QDir>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>

#include <openssl/evp.h>

#include <cerrno>
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

// One download in flight: its file, and the first reason it must end that the transfer itself
// would not tell (a failed write says "canceled" once the reply is aborted).
struct Transfer {
    std::shared_ptr<QTemporaryFile> image;
    qint64 maxBytes = 0;
    qint64 written = 0;
    QString failure;

    // Writes what arrived; false, with `failure` set, when the transfer must end.
    bool take(const QByteArray& bytes)
    {
        if (!failure.isEmpty())
            return false;
        if (written + bytes.size() > maxBytes) {
            failure = tooLarge(maxBytes);
            return false;
        }
        if (const int error = writeAll(image->handle(), bytes)) {
            failure = SystemError::describe(error);
            return false;
        }
        written += bytes.size();
        return true;
    }

    // Written straight to the descriptor: QFile's buffered write reports a full disk as
    // "Unknown error". 0, or the errno of the write that failed.
    static int writeAll(int fd, const QByteArray& bytes)
    {
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t count = ::write(fd, bytes.constData() + done, size_t(bytes.size() - done));
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                return errno;
            done += count;
        }
        return 0;
    }

    QString errorOf(QNetworkReply* reply) const
    {
        if (!failure.isEmpty())
            return failure;
        if (reply->error() != QNetworkReply::NoError)
            return reply->errorString();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (status != 200)
            return QStringLiteral("HTTP %1").arg(status);
        return QString();
    }
};

}  // namespace

void download(const UpdateSite& site, const QUrl& url, QObject* context, std::function<void(Download)> done,
              const DownloadLimits& limits)
{
    const QString folder = limits.folder.isEmpty() ? QDir::tempPath() : limits.folder;
    auto image = std::make_shared<QTemporaryFile>(folder + QStringLiteral("/Dustlark-update-XXXXXXupdate.dmg"));
    if (!image->open()) {
        done({nullptr, image->errorString()});
        return;
    }
    auto transfer = std::make_shared<Transfer>(Transfer{image, limits.maxBytes, 0, {}});
    auto* manager = new QNetworkAccessManager(context);
    QNetworkReply* reply = manager->get(site.request(url));
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, transfer] {
        if (!transfer->take(reply->readAll()))
            reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::finished, manager, [manager, reply, transfer, done] {
        if (reply->error() == QNetworkReply::NoError)
            transfer->take(reply->readAll());
        const QString error = transfer->errorOf(reply);
        reply->deleteLater();
        manager->deleteLater();
        done(error.isEmpty() ? Download{transfer->image, {}} : Download{nullptr, error});
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

QString tooLarge(qint64 maxBytes)
{
    //: Install and Relaunch error, inside "Couldn't install the update (...)"; %1 is a size like "1 GB"
    return QCoreApplication::translate("Updater", "the download is larger than %1, more than any update")
        .arg(ByteCount::format(maxBytes));
}

QString couldNotInstall(const QString& message)
{
    //: Install and Relaunch error. The placeholder is the system's or a tool's message.
    return QCoreApplication::translate("Updater", "Couldn't install the update (%1). This copy wasn't changed.").arg(message);
}

}  // namespace Updater
