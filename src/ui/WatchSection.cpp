#include "ui/WatchSection.h"

#include "machinery/Background.h"
#include "model/SettingsStore.h"
#include "ui/PageLabels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

WatchSection::WatchSection(SettingsStore* settings, ScheduledScan::Place place, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_place(std::move(place)), m_warningPicker(new QComboBox(this)),
      m_schedulePicker(new QComboBox(this)),
      //: Settings check box: closing the window leaves the status item running the watch
      m_keepWatching(new QCheckBox(tr("Keep watching when the window is closed"), this)),
      m_scheduleNote(PageLabels::note({}, this))
{
    for (FreeSpaceWarning warning : FreeSpaceWarnings::allCases())
        m_warningPicker->addItem(FreeSpaceWarnings::title(warning), FreeSpaceWarnings::rawValue(warning));
    m_warningPicker->setCurrentIndex(m_warningPicker->findData(FreeSpaceWarnings::rawValue(settings->freeSpaceWarning())));
    for (ScanSchedule schedule : ScanSchedules::allCases())
        m_schedulePicker->addItem(ScanSchedules::title(schedule), ScanSchedules::rawValue(schedule));
    m_schedulePicker->setCurrentIndex(m_schedulePicker->findData(ScanSchedules::rawValue(settings->scanSchedule())));
    m_scheduleNote->hide();

    auto* rows = new QFormLayout;
    //: Settings row: a notification when the disk's free space drops below the chosen amount
    rows->addRow(tr("Warn me when free space falls below:"), m_warningPicker);
    //: Settings row: a background scan on a schedule that only reports, never removes
    rows->addRow(tr("Scan for me:"), m_schedulePicker);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    //: Heading of the free-space warning and the scheduled scan in the settings
    layout->addWidget(PageLabels::heading(tr("Watch Quietly"), this));
    //: Explanation of the free-space warning and the scheduled scan in the settings
    layout->addWidget(PageLabels::note(tr("Dustlark tells you what it found or that space runs low. "
                                          "It never selects or removes anything on its own."), this));
    layout->addLayout(rows);
    layout->addWidget(m_keepWatching);
    layout->addWidget(m_scheduleNote);

    connect(m_warningPicker, &QComboBox::activated, this, [this](int index) {
        m_settings->setFreeSpaceWarning(FreeSpaceWarnings::fromRawValue(m_warningPicker->itemData(index).toString()));
    });
    connect(m_schedulePicker, &QComboBox::activated, this, [this](int index) {
        chooseSchedule(ScanSchedules::fromRawValue(m_schedulePicker->itemData(index).toString()));
    });
    connect(m_keepWatching, &QCheckBox::toggled, m_settings, &SettingsStore::setKeepsWatchingWhenClosed);
    connect(m_settings, &SettingsStore::watchChanged, this, &WatchSection::refreshKeepWatching);
    refreshKeepWatching();
    followTheApp();
}

// Made once as the app starts: a schedule the app wrote from another place (before it was moved
// or updated) would run that place's report tool, or nothing at all.
void WatchSection::followTheApp()
{
    const ScanSchedule schedule = m_settings->scanSchedule();
    if (schedule == ScanSchedule::never)
        return;
    writeSchedule([schedule, place = m_place] { return ScheduledScan::follow(schedule, place); });
}

// One write at a time, the latest asked for last: writes side by side (the start's follow-up and
// a choice, or two quick choices) could end in either order and leave a timer for "never".
void WatchSection::writeSchedule(ScheduleWrite write)
{
    if (m_writingSchedule) {
        m_nextScheduleWrite = std::move(write);
        return;
    }
    m_writingSchedule = true;
    Background::run(this, [write = std::move(write)] { return write().value_or(QString()); }, [this](const QString& said) {
        m_writingSchedule = false;
        showScheduleNote(said);
        emit scheduleApplied(said);
        if (ScheduleWrite next = std::exchange(m_nextScheduleWrite, {}))
            writeSchedule(std::move(next));
    });
}

void WatchSection::showScheduleNote(const QString& said)
{
    m_scheduleNote->setText(said);
    m_scheduleNote->setVisible(!said.isEmpty());
}

// Only a watch keeps the app running once the window is closed: with nothing to watch the
// choice has no meaning and closing quits.
void WatchSection::refreshKeepWatching()
{
    const QSignalBlocker blocker(m_keepWatching);
    m_keepWatching->setChecked(m_settings->keepsWatchingWhenClosed());
    m_keepWatching->setEnabled(m_settings->isWatching());
}

void WatchSection::chooseSchedule(ScanSchedule schedule)
{
    m_settings->setScanSchedule(schedule);
    writeSchedule([schedule, place = m_place] { return ScheduledScan::apply(schedule, place); });
}
