#include "ui/UpdateBox.h"

#include "model/AppModel.h"
#include "ui/PageLabels.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using UpdateChecker::Result;

UpdateBox::UpdateBox(AppModel* model, QWidget* parent)
    : QWidget(parent), m_model(model), m_check(new QPushButton(this)), m_status(PageLabels::body({}, this)),
      m_releasePage(new QPushButton(this)), m_install(new QPushButton(this)), m_open([](const QUrl& url) { QDesktopServices::openUrl(url); })
{
    //: Button that asks the maker's web site whether a newer build exists
    m_check->setText(tr("Check for Updates"));
    //: Button that opens the web page of an available update
    m_releasePage->setText(tr("Open Release Page"));
    //: Button that downloads, checks and installs an available update, then starts it
    m_install->setText(tr("Install and Relaunch"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_check);
    buttons->addWidget(m_install);
    buttons->addWidget(m_releasePage);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(buttons);
    layout->addWidget(m_status);
    connect(m_check, &QPushButton::clicked, m_model, &AppModel::checkForUpdates);
    connect(m_releasePage, &QPushButton::clicked, this, &UpdateBox::openReleasePage);
    connect(m_install, &QPushButton::clicked, m_model, &AppModel::installUpdate);
    connect(m_model, &AppModel::updateStateChanged, this, &UpdateBox::refresh);
    refresh();
}

void UpdateBox::refresh()
{
    const auto& result = m_model->updateState().result;
    const Result::Available* available = result ? result->as<Result::Available>() : nullptr;
    const bool busy = m_model->updateState().isChecking || m_model->updateState().isInstalling;
    m_check->setEnabled(!busy);
    m_releasePage->setVisible(available != nullptr);
    m_install->setVisible(available && m_model->canInstallUpdate());
    m_install->setEnabled(!busy);
    if (m_model->updateState().isInstalling)
        //: Shown while an update downloads, is checked and installed
        m_status->setText(tr("Installing the update…"));
    else if (!m_model->updateState().installError.isEmpty())
        m_status->setText(m_model->updateState().installError);
    else if (m_model->updateState().isChecking)
        //: Shown while the update check runs
        m_status->setText(tr("Checking for updates…"));
    else if (!result)
        m_status->clear();
    else if (available)
        //: Shown when a newer build exists; %1 is its version, e.g. 1.4
        m_status->setText(tr("Dustlark %1 is available.").arg(available->release.version));
    else if (const auto* failed = result->as<Result::Failed>())
        m_status->setText(failed->message);
    else
        //: Shown when the update check found no newer build
        m_status->setText(tr("This is the newest build of Dustlark."));
}

void UpdateBox::openReleasePage()
{
    const auto& result = m_model->updateState().result;
    if (const auto* available = result ? result->as<Result::Available>() : nullptr)
        m_open(m_model->releasePage(available->release));
}
