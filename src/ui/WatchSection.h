#pragma once

#include "actions/ScheduledScan.h"

#include <QWidget>

#include <functional>
#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class SettingsStore;

// The settings' "Watch quietly" rows: "Warn me when free space falls below" and "Scan for me",
// both off until the person chooses, and whether closing the window keeps Dustlark watching.
// Choosing a schedule writes or removes the system's timer for it off the GUI thread and shows
// what the system said; made as the app starts, it points a schedule written by a copy of the app
// in another place at this copy's report tool. GUI thread only.
class WatchSection : public QWidget {
    Q_OBJECT

public:
    // `place` says where the schedule's files go and which report tool they run.
    WatchSection(SettingsStore* settings, ScheduledScan::Place place, QWidget* parent = nullptr);

    QComboBox* warningPicker() const { return m_warningPicker; }
    QComboBox* schedulePicker() const { return m_schedulePicker; }
    QCheckBox* keepWatchingBox() const { return m_keepWatching; }
    QLabel* scheduleNote() const { return m_scheduleNote; }

signals:
    // A write of the system's timer ended (a choice, or the start's follow-up); `said` is empty
    // when all went well.
    void scheduleApplied(const QString& said);

private:
    using ScheduleWrite = std::function<std::optional<QString>()>;

    void chooseSchedule(ScanSchedule schedule);
    void followTheApp();
    void writeSchedule(ScheduleWrite write);
    void showScheduleNote(const QString& said);
    void refreshKeepWatching();

    SettingsStore* m_settings;
    ScheduledScan::Place m_place;
    QComboBox* m_warningPicker;
    QComboBox* m_schedulePicker;
    QCheckBox* m_keepWatching;
    QLabel* m_scheduleNote;
    bool m_writingSchedule = false;
    ScheduleWrite m_nextScheduleWrite;  // the latest one asked for while another ran
};
