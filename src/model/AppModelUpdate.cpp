#include "model/AppModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QThreadPool>

void AppModel::checkForUpdates()
{
    if (m_isCheckingForUpdates)
        return;
    m_isCheckingForUpdates = true;
    emit updateStateChanged();
    // The model is the context: a check still under way when it is destroyed reports nothing.
    UpdateChecker::check(m_services.updateSite, UpdateChecker::currentBuild(), this,
                         [this](UpdateChecker::Result result) {
                             m_isCheckingForUpdates = false;
                             m_updateResult = std::move(result);
                             emit updateStateChanged();
                         });
}

QUrl AppModel::releasePage(const UpdateChecker::Release& release) const
{
    return release.downloadURL(m_services.updateSite);
}

QString AppModel::runningAppBundle()
{
    QDir folder(QCoreApplication::applicationDirPath());  // Dustlark.app/Contents/MacOS
    if (folder.dirName() != QLatin1String("MacOS") || !folder.cdUp() || folder.dirName() != QLatin1String("Contents")
        || !folder.cdUp() || !folder.dirName().endsWith(QLatin1String(".app")))
        return {};
    return folder.absolutePath();
}

bool AppModel::canInstallUpdate() const
{
    return !m_services.runningApp.isEmpty() && Updater::canInstallHere(m_services.runningApp);
}

void AppModel::installUpdate()
{
    const auto* available = m_updateResult ? m_updateResult->as<UpdateChecker::Result::Available>() : nullptr;
    if (m_isInstallingUpdate || !available || !canInstallUpdate())
        return;
    const UpdateChecker::Release release = available->release;
    const std::optional<QUrl> image = release.dmgURL(m_services.updateSite);
    m_isInstallingUpdate = true;
    m_updateInstallError.clear();
    emit updateStateChanged();
    if (!image) {
        //: Inside "Couldn't install the update (...)" when the release names no disk image on the maker's site
        finishInstall(Updater::couldNotInstall(tr("the release has no disk image on the maker's site")));
        return;
    }
    Updater::download(m_services.updateSite, *image, this, [this, release](Updater::Download download) {
        installDownloaded(download, release);
    });
}

void AppModel::installDownloaded(const Updater::Download& download, const UpdateChecker::Release& release)
{
    if (!download.image) {
        finishInstall(Updater::couldNotInstall(download.error));
        return;
    }
    const QString appPath = m_services.runningApp;
    const ImageInstall::Tools tools = m_services.updateTools;
    QPointer<AppModel> guard(this);
    // The image file lives until the worker is done with it; the model may be gone by then.
    QThreadPool::globalInstance()->start([guard, download, release, appPath, tools] {
        std::optional<QString> error = Updater::checkImage(download.image->fileName(), release.sha256);
        if (!error) {
            const ImageInstall::Identity own{UpdateChecker::bundleIdentifier(), ImageInstall::ownTeam(appPath, tools).value_or(QString())};
            error = ImageInstall::install(download.image->fileName(), appPath, own, tools);
        }
        QMetaObject::invokeMethod(qApp, [guard, error] {
            if (guard)
                guard->finishInstall(error);
        }, Qt::QueuedConnection);
    });
}

void AppModel::finishInstall(const std::optional<QString>& error)
{
    m_isInstallingUpdate = false;
    if (!error && !m_services.relaunch(m_services.runningApp))
        //: Shown when the update is in place but Dustlark couldn't ask macOS to open the new copy
        m_updateInstallError = tr("The update is installed, but Dustlark couldn't ask macOS to open it. Open Dustlark again.");
    else
        m_updateInstallError = error.value_or(QString());
    emit updateStateChanged();
}
