#include "update/ImageInstall.h"

#include "machinery/ProcessRunner.h"
#include "update/UpdateChecker.h"
#include "update/Updater.h"
#include "vocabulary/SystemError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUuid>

#include <plist/plist.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace ImageInstall {

namespace {

using namespace std::chrono_literals;

// The tool's failure as the message inside "Couldn't install the update (...)"; absent when it ran well.
std::optional<QString> toolFailure(const ProcessRunner::Result& result)
{
    if (!result.launched())
        return result.launchError;
    if (result.output->status != 0 || result.output->timedOut)
        return result.output->errorMessage();
    return std::nullopt;
}

// "Dustlark.app" in the mounted image, else its first ".app" by name; empty when there is none.
QString appIn(const QString& mountPoint)
{
    const QString preferred = mountPoint + QStringLiteral("/Dustlark.app");
    if (QFileInfo(preferred).isDir())
        return preferred;
    const QStringList apps = QDir(mountPoint).entryList({QStringLiteral("*.app")}, QDir::Dirs, QDir::Name);
    return apps.isEmpty() ? QString() : mountPoint + QLatin1Char('/') + apps.first();
}

// Copies the image's app into `staging`; the copy's path, or the failure sentence.
std::optional<QString> copyOut(const QString& mountPoint, const QString& staging, const Tools& tools, QString* copy)
{
    const QString source = appIn(mountPoint);
    if (source.isEmpty())
        //: Inside "Couldn't install the update (...)" when the downloaded disk image holds no app
        return Updater::couldNotInstall(QCoreApplication::translate("ImageInstall", "the disk image holds no app"));
    *copy = staging + QStringLiteral("/Dustlark.app");
    if (const auto failure = toolFailure(ProcessRunner::run(tools.ditto, {source, *copy}, 300s)))
        return Updater::couldNotInstall(*failure);
    return std::nullopt;
}

// Whether `hdiutil imageinfo -plist` says the image shows a licence agreement when attached
// ("Software License Agreement" among its "Properties"). Attaching such an image waits for the
// person to agree in a terminal that isn't there.
bool asksForLicence(const QByteArray& imageInfo)
{
    plist_t root = nullptr;
    plist_from_memory(imageInfo.constData(), uint32_t(imageInfo.size()), &root);
    if (!root)
        return false;
    plist_t properties = plist_get_node_type(root) == PLIST_DICT ? plist_dict_get_item(root, "Properties") : nullptr;
    plist_t licence = properties && plist_get_node_type(properties) == PLIST_DICT
        ? plist_dict_get_item(properties, "Software License Agreement") : nullptr;
    uint8_t value = 0;
    if (licence && plist_get_node_type(licence) == PLIST_BOOLEAN)
        plist_get_bool_val(licence, &value);
    plist_free(root);
    return value != 0;
}

std::optional<QString> licenceProblem(const QString& image, const Tools& tools)
{
    const auto info = ProcessRunner::run(tools.hdiutil, {QStringLiteral("imageinfo"), QStringLiteral("-plist"), image}, 60s);
    if (const auto failure = toolFailure(info))
        return Updater::couldNotInstall(*failure);
    if (!asksForLicence(info.output->standardOutput.toUtf8()))
        return std::nullopt;
    //: Inside "Couldn't install the update (...)" when the downloaded disk image asks to accept a licence first
    return Updater::couldNotInstall(QCoreApplication::translate("ImageInstall", "its disk image asks to accept a licence agreement; download it from the website instead"));
}

bool isGenuine(const QString& app, const Identity& own, const Tools& tools)
{
    if (own.bundleIdentifier.isEmpty() || own.team.isEmpty() || !build(app))
        return false;
    const QString requirement = Updater::requirement(own.bundleIdentifier, own.team);
    const auto result = ProcessRunner::run(tools.codesign, {QStringLiteral("--verify"), QStringLiteral("-R=") + requirement, app}, 120s);
    return !toolFailure(result);
}

// Mounts, copies out and always detaches; the staged copy's path, or the failure sentence.
std::optional<QString> stage(const QString& image, const QString& staging, const Tools& tools, QString* copy)
{
    QTemporaryDir mountPoint;
    if (!mountPoint.isValid())
        return Updater::couldNotInstall(mountPoint.errorString());
    if (const auto refused = licenceProblem(image, tools))
        return refused;
    const auto detach = [&] {
        return ProcessRunner::run(tools.hdiutil, {QStringLiteral("detach"), mountPoint.path(), QStringLiteral("-force")}, 60s);
    };
    const auto attached = ProcessRunner::run(tools.hdiutil,
                                             {QStringLiteral("attach"), image, QStringLiteral("-nobrowse"),
                                              QStringLiteral("-readonly"), QStringLiteral("-noautoopen"),
                                              QStringLiteral("-mountpoint"), mountPoint.path()}, tools.attachTimeLimit);
    if (const auto failure = toolFailure(attached)) {
        if (attached.launched() && attached.output->timedOut)
            detach();  // it may have mounted the image before it was stopped
        return Updater::couldNotInstall(*failure);
    }
    const std::optional<QString> copied = copyOut(mountPoint.path(), staging, tools, copy);
    const auto detached = detach();
    if (copied)
        return copied;
    if (const auto failure = toolFailure(detached))
        return Updater::couldNotInstall(*failure);
    return std::nullopt;
}

QString hiddenBeside(const QString& appPath, const QString& prefix)
{
    return QFileInfo(appPath).absolutePath() + QLatin1Char('/') + prefix
        + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

// Puts `copy` at `appPath`, the old app moved aside first and back when the second move fails.
std::optional<QString> swap(const QString& copy, const QString& appPath)
{
    const QString previous = hiddenBeside(appPath, QStringLiteral(".Dustlark-previous-"));
    if (std::rename(QFile::encodeName(appPath).constData(), QFile::encodeName(previous).constData()) != 0)
        return Updater::couldNotInstall(SystemError::describe(errno));
    if (std::rename(QFile::encodeName(copy).constData(), QFile::encodeName(appPath).constData()) != 0) {
        const QString reason = SystemError::describe(errno);
        std::rename(QFile::encodeName(previous).constData(), QFile::encodeName(appPath).constData());
        return Updater::couldNotInstall(reason);
    }
    QDir(previous).removeRecursively();
    return std::nullopt;
}

}  // namespace

std::optional<QString> install(const QString& image, const QString& appPath, const Identity& own, const Tools& tools)
{
    QTemporaryDir staging(QFileInfo(appPath).absolutePath() + QStringLiteral("/.Dustlark-update-XXXXXX"));
    if (!staging.isValid())
        return Updater::couldNotInstall(staging.errorString());
    QString copy;
    if (const auto failure = stage(image, staging.path(), tools, &copy))
        return failure;
    if (!isGenuine(copy, own, tools))
        return Updater::didNotPassCheck();
    return swap(copy, appPath);
}

std::optional<QString> ownTeam(const QString& appPath, const Tools& tools)
{
    const auto result = ProcessRunner::run(tools.codesign, {QStringLiteral("-d"), QStringLiteral("--verbose=2"), appPath}, 60s);
    if (toolFailure(result))
        return std::nullopt;
    // codesign writes its details to standard error.
    for (const QString& line : result.output->standardError.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String("TeamIdentifier=")) && line != QLatin1String("TeamIdentifier=not set"))
            return line.mid(15).trimmed();
    }
    return std::nullopt;
}

std::optional<qint64> build(const QString& appPath)
{
    QFile file(appPath + QStringLiteral("/Contents/Info.plist"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray data = file.read(4 * 1024 * 1024);
    plist_t root = nullptr;
    plist_from_memory(data.constData(), uint32_t(data.size()), &root);
    if (!root)
        return std::nullopt;
    plist_t node = plist_get_node_type(root) == PLIST_DICT ? plist_dict_get_item(root, "CFBundleVersion") : nullptr;
    char* text = nullptr;
    if (node && plist_get_node_type(node) == PLIST_STRING)
        plist_get_string_val(node, &text);
    const QString value = text ? QString::fromUtf8(text) : QString();
    free(text);
    plist_free(root);
    const qint64 number = UpdateChecker::parseBuild(value);
    return number > 0 ? std::optional<qint64>(number) : std::nullopt;
}

}  // namespace ImageInstall
