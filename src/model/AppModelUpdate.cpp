#include "model/AppModel.h"

#include "machinery/Background.h"

#include <QCoreApplication>
#include <QDir>

void AppModel::checkForUpdates()
{
    if (m_updates.isChecking)
        return;
    m_updates.isChecking = true;
    emit updateStateChanged();
    // The model is the context: a check still under way when it is destroyed reports nothing.
    UpdateChecker::check(m_services.updateSite, UpdateChecker::currentBuild(), this,
                         [this](UpdateChecker::Result result) {
                             m_updates.isChecking = false;
                             m_updates.result = std::move(result);
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
    const auto* available = m_updates.result ? m_updates.result->as<UpdateChecker::Result::Available>() : nullptr;
    if (m_updates.isInstalling || !available || !canInstallUpdate())
        return;
    const UpdateChecker::Release release = available->release;
    const std::optional<QUrl> image = release.dmgURL(m_services.updateSite);
    m_updates.isInstalling = true;
    m_updates.installError.clear();
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
    // The image file lives until the worker is done with it; the model may be gone by then.
    Background::run(this, [download, release, appPath, tools] {
        std::optional<QString> error = Updater::checkImage(download.image->fileName(), release.sha256);
        if (!error) {
            const ImageInstall::Identity own{UpdateChecker::bundleIdentifier(), ImageInstall::ownTeam(appPath, tools).value_or(QString())};
            error = ImageInstall::install(download.image->fileName(), appPath, own, tools);
        }
        return error;
    }, [this](const std::optional<QString>& error) { finishInstall(error); });
}

void AppModel::finishInstall(const std::optional<QString>& error)
{
    m_updates.isInstalling = false;
    if (!error && !m_services.relaunch(m_services.runningApp))
        //: Shown when the update is in place but Dustlark couldn't ask macOS to open the new copy
        m_updates.installError = tr("The update is installed, but Dustlark couldn't ask macOS to open it. Open Dustlark again.");
    else
        m_updates.installError = error.value_or(QString());
    emit updateStateChanged();
}
