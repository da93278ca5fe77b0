#include "ui/StorageHeader.h"

#include "format/RelativeDate.h"
#include "format/WholeNumber.h"
#include "model/AppModel.h"
#include "model/SettingsStore.h"
#include "ui/PageLabels.h"
#include "vocabulary/PathRules.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

StorageHeader::StorageHeader(AppModel* model, const QString& title, const QString& explanation, QWidget* parent)
    : QWidget(parent), m_model(model), m_status(PageLabels::note({}, this)), m_activity(new QProgressBar(this)),
      m_button(new QPushButton(this)),
      m_notes(new QVBoxLayout)
{
    auto* top = new QHBoxLayout;
    top->addWidget(PageLabels::title(title, this), 1);
    top->addWidget(m_button, 0, Qt::AlignVCenter);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addLayout(top);
    layout->addWidget(PageLabels::body(explanation, this));
    layout->addWidget(m_status);
    m_activity->setRange(0, 0);
    m_activity->setTextVisible(false);
    m_activity->setMaximumHeight(6);
    m_activity->hide();
    layout->addWidget(m_activity);
    m_notes->setSpacing(4);
    layout->addLayout(m_notes);
    m_progressTimer.setInterval(250);
    connect(&m_progressTimer, &QTimer::timeout, this, &StorageHeader::pollProgress);
    connect(m_button, &QPushButton::clicked, this, [this] {
        if (m_model->isAnalyzingStorage())
            m_model->stopStorageAnalysis();
        else
            m_model->startStorageAnalysis();
    });
    connect(m_model, &AppModel::storageChanged, this, &StorageHeader::refresh);
    // "Measured 5 minutes ago." grows older while the screen stays open.
    connect(m_model, &AppModel::clockTicked, this, [this] {
        if (!m_model->isAnalyzingStorage())
            refreshStatus();
    });
    refresh();
}

void StorageHeader::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_model->storageReport() && !m_model->isAnalyzingStorage())
        m_model->startStorageAnalysis();
}

void StorageHeader::refresh()
{
    const bool running = m_model->isAnalyzingStorage();
    //: Button of the storage screens while an analysis runs
    const QString stop = tr("Stop");
    //: Button of the storage screens: measure the disk again
    const QString again = tr("Measure Again");
    //: Button of the storage screens before any analysis
    const QString first = tr("Measure Disk");
    m_button->setText(running ? stop : m_model->storageReport() ? again : first);
    if (running && m_activity->isHidden())
        m_activity->setValue(0);  // a new analysis starts from nothing
    m_activity->setVisible(running);
    if (running) {
        m_progressTimer.start();
        pollProgress();
    } else {
        m_progressTimer.stop();
        refreshStatus();
    }
    refreshNotes();
}

void StorageHeader::refreshStatus()
{
    const auto& report = m_model->storageReport();
    //: Status line of the storage screens; %1 is a relative date ("5 minutes ago")
    const QString measured = report ? tr("Measured %1.").arg(RelativeDate::format(report->date, m_model->now())) : QString();
    //: Added to the status line of the storage screens after a cleanup or move changed the disk
    const QString outdated = tr("Out of date: files were cleaned up or moved since. Measure again to update it.");
    if (report)
        m_status->setText(m_model->isStorageOutdated() ? measured + QLatin1Char(' ') + outdated : measured);
    else
        //: Status line of the storage screens before any analysis
        m_status->setText(tr("Not measured yet. Measuring reads your home folder; it changes nothing."));
}

void StorageHeader::refreshNotes()
{
    while (QLayoutItem* item = m_notes->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    if (!m_model->storageReport())
        return;
    for (const QString& note : m_model->storageReport()->notes) {
        QLabel* label = PageLabels::body(QStringLiteral("⚠ ") + note, this);
        m_notes->addWidget(label);
    }
}

void StorageHeader::pollProgress()
{
    const ScanProgress::Snapshot snapshot = m_model->progress()->snapshot();
    showProgress(snapshot.entries);
    const QString home = m_model->settings()->home();
    const QString folder = PathRules::withTilde(snapshot.currentFolder, home);
    const QString count = WholeNumber::format(snapshot.entries);
    if (const QString& again = m_model->storageFolderMeasured(); !again.isEmpty())
        //: Status line while one folder is measured again; %1 is that folder, %2 a number of files and folders, %3 the folder being read
        m_status->setText(tr("Measuring %1 again… %2 items looked at · %3").arg(PathRules::withTilde(again, home), count, folder));
    else
        //: Status line while the disk is measured; %1 is a number of files and folders, %2 the folder being read
        m_status->setText(tr("Measuring… %1 items looked at · %2").arg(count, folder));
}

// The walk's end is known only afterwards, so the bar shows the share of the entries the last
// report counted, held below the end and never going back; without a guess it only moves.
void StorageHeader::showProgress(qint64 entries)
{
    const std::optional<qint64> expected = m_model->storageEntriesExpected();
    if (!expected) {
        m_activity->setRange(0, 0);
        return;
    }
    constexpr int steps = 1000;
    const int share = int(std::min<qint64>(steps - 10, entries * steps / std::max<qint64>(*expected, 1)));
    if (m_activity->maximum() != steps)
        m_activity->setRange(0, steps);
    m_activity->setValue(std::max(m_activity->value(), share));
}
