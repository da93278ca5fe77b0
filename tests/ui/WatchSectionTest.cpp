#include "model/SettingsStore.h"
#include "support/Wait.h"
#include "ui/WatchSection.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct WatchFixture {
    QTemporaryDir dir;
    QSettings preferences{dir.filePath("prefs.ini"), QSettings::IniFormat};
    SettingsStore settings{&preferences, dir.filePath("home")};
    ScheduledScan::Place place{Platform::Desktop::freedesktop, dir.filePath("home"), dir.filePath("config"),
                               QStringLiteral(DUSTLARK_CLI), 1000};

    void choose(QComboBox* picker, const QString& raw) const
    {
        const int index = picker->findData(raw);
        picker->setCurrentIndex(index);
        emit picker->activated(index);
    }
};

}  // namespace

TEST(WatchSection, BothRowsStartOffAndTheWarningIsStored)
{
    WatchFixture fixture;
    WatchSection section(&fixture.settings, fixture.place);
    EXPECT_EQ(section.warningPicker()->currentText(), "Off");
    EXPECT_EQ(section.schedulePicker()->currentText(), "Never");

    fixture.choose(section.warningPicker(), "20GB");
    EXPECT_EQ(fixture.settings.freeSpaceWarning(), FreeSpaceWarning::twentyGB);
    EXPECT_EQ(WatchSection(&fixture.settings, fixture.place).warningPicker()->currentText(), "20 GB");
}

TEST(WatchSection, TurningScanForMeOnWritesTheTimerAndOffRemovesIt)
{
    WatchFixture fixture;
    WatchSection section(&fixture.settings, fixture.place);
    QSignalSpy applied(&section, &WatchSection::scheduleApplied);
    const QString timer = fixture.dir.filePath("config/systemd/user/dustlark-scan.timer");

    fixture.choose(section.schedulePicker(), "weekly");
    EXPECT_EQ(fixture.settings.scanSchedule(), ScanSchedule::weekly);
    ASSERT_TRUE(waitUntil([&] { return applied.size() == 1; }));
    EXPECT_TRUE(QFile::exists(timer));
    // What the system said is shown, and only then (here, typically: no user manager runs).
    const QString said = applied.at(0).at(0).toString();
    EXPECT_EQ(section.scheduleNote()->isVisibleTo(&section), !said.isEmpty());
    EXPECT_EQ(section.scheduleNote()->text(), said);

    // The app moved: at its next start the schedule runs the report tool of its new place.
    ScheduledScan::Place moved = fixture.place;
    moved.cli = fixture.dir.filePath("moved/dustlark-cli");
    const WatchSection afterTheMove(&fixture.settings, moved);
    QSignalSpy followed(&afterTheMove, &WatchSection::scheduleApplied);
    ASSERT_TRUE(waitUntil([&] { return followed.size() == 1; }));
    EXPECT_EQ(ScheduledScan::scheduledTool(moved), moved.cli);

    fixture.choose(section.schedulePicker(), "never");
    ASSERT_TRUE(waitUntil([&] { return applied.size() == 2; }));
    EXPECT_FALSE(QFile::exists(timer));
    EXPECT_FALSE(section.scheduleNote()->isVisibleTo(&section));
}

TEST(WatchSection, KeepWatchingCanBeChosenOnlyWhileSomethingIsWatched)
{
    WatchFixture fixture;
    WatchSection section(&fixture.settings, fixture.place);
    QCheckBox* keep = section.keepWatchingBox();
    EXPECT_FALSE(keep->isChecked());
    EXPECT_FALSE(keep->isEnabled()) << "nothing is watched, so closing quits";

    fixture.choose(section.warningPicker(), "10%");
    ASSERT_TRUE(keep->isEnabled());
    keep->click();
    EXPECT_TRUE(fixture.settings.keepsWatchingWhenClosed());

    fixture.choose(section.warningPicker(), "off");
    EXPECT_FALSE(keep->isEnabled());
    EXPECT_TRUE(keep->isChecked()) << "the choice is kept for when a watch is on again";
}
