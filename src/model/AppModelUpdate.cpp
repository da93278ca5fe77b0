#include "model/AppModel.h"

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
