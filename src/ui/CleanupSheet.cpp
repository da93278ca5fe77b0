#include "ui/CleanupSheet.h"

#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/CleanupConfirmation.h"
#include "ui/CleanupProgress.h"
#include "ui/CleanupResults.h"

#include <QStackedWidget>
#include <QVBoxLayout>

CleanupSheet::CleanupSheet(AppModel* model, CleanupSession* session, QWidget* parent)
    : QDialog(parent, Qt::Sheet), m_model(model), m_session(session), m_pages(new QStackedWidget(this)),
      m_confirmation(new CleanupConfirmation(session, model->settings()->home(), this))
{
    //: Window title of the cleanup sheet (shown where sheets have a title bar)
    setWindowTitle(tr("Clean"));
    setMinimumWidth(520);
    m_pages->addWidget(m_confirmation);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 18);
    layout->addWidget(m_pages);

    connect(m_confirmation, &CleanupConfirmation::confirmed, m_model, &AppModel::startCleanup);
    connect(m_confirmation, &CleanupConfirmation::cancelled, m_model, &AppModel::closeCleanup);
    connect(session, &CleanupSession::changed, this, &CleanupSheet::followPhase);
    connect(m_model, &AppModel::cleanupChanged, this, &CleanupSheet::modelDidChange);
    followPhase();
}

void CleanupSheet::followPhase()
{
    if (!m_session)
        return;
    if (m_session->phase() == CleanupSession::Phase::running && !m_progress) {
        m_progress = new CleanupProgress(m_model, m_session, this);
        m_pages->addWidget(m_progress);
        m_pages->setCurrentWidget(m_progress);
    }
    if (m_session->phase() == CleanupSession::Phase::finished && !m_results) {
        m_results = new CleanupResults(m_model, m_session, this);
        connect(m_results, &CleanupResults::done, m_model, &AppModel::closeCleanup);
        m_pages->addWidget(m_results);
        m_pages->setCurrentWidget(m_results);
        adjustSize();
    }
}

void CleanupSheet::modelDidChange()
{
    followPhase();
    // A discarded session is gone already, which ends this sheet just the same.
    if (!m_session || m_model->cleanup() != m_session)
        accept();
}

void CleanupSheet::reject()
{
    if (m_session && m_session->phase() == CleanupSession::Phase::running)
        return;
    m_model->closeCleanup();  // closes this sheet through modelDidChange
    if (isVisible())
        QDialog::reject();
}
