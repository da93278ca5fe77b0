#include "support/ModelFixture.h"
#include "support/NotificationBus.h"
#include "support/Wait.h"
#include "ui/StatusItem.h"

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A model whose disk has `free` of 100 GB left.
ModelFixture modelWithFreeSpace(qint64 free)
{
    return ModelFixture({}, QStringLiteral("/Users/a"), [free](AppModel::Services& services) {
        services.readSystemState = [free](const QString&) { return AppModel::SystemState{free, 100'000'000'000, true}; };
    });
}

QStringList entryTexts(const QMenu* menu)
{
    QStringList texts;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator() && action->isVisible())
            texts.append(action->text());
    }
    return texts;
}

}  // namespace

TEST(StatusItem, ShownOnlyWhileDustlarkWatchesWithTheFreeSpaceAtAGlance)
{
    ModelFixture fixture = modelWithFreeSpace(24'000'000'000);
    QTemporaryDir data;
    StatusItem item(&fixture.model(), NoticeLog(data.path()), {Platform::Desktop::freedesktop, "unix:path=/nonexistent"});
    EXPECT_FALSE(item.icon()->isVisible());

    fixture.settings().setScanSchedule(ScanSchedule::weekly);
    EXPECT_TRUE(item.icon()->isVisible());
    fixture.settings().setScanSchedule(ScanSchedule::never);
    fixture.settings().setFreeSpaceWarning(FreeSpaceWarning::fivePercent);
    EXPECT_TRUE(item.icon()->isVisible());
    fixture.settings().setFreeSpaceWarning(FreeSpaceWarning::off);
    EXPECT_FALSE(item.icon()->isVisible());

    QSignalSpy stateChanged(&fixture.model(), &AppModel::systemStateChanged);
    fixture.model().refreshSystemState();
    ASSERT_TRUE(waitUntil([&] { return stateChanged.size() == 1; }));
    EXPECT_EQ(entryTexts(item.menu()), (QStringList{"24 GB free", "Scan Now", "Open Dustlark", "Quit"}));

    QSignalSpy open(&item, &StatusItem::openRequested);
    QSignalSpy quit(&item, &StatusItem::quitRequested);
    item.menu()->actions().at(3)->trigger();  // Open Dustlark
    item.menu()->actions().at(5)->trigger();  // Quit
    EXPECT_EQ(open.size(), 1);
    EXPECT_EQ(quit.size(), 1);
}

TEST(StatusItem, TheOpenAppWarnsOfLowSpaceOnceADayAndItsClickOpensTheOverview)
{
    NotificationBus bus(NotificationBus::Person::clicksWhenTold);
    if (!bus.unavailable().isEmpty())
        GTEST_SKIP() << bus.unavailable().toStdString();
    ModelFixture fixture = modelWithFreeSpace(4'000'000'000);
    QTemporaryDir data;
    StatusItem item(&fixture.model(), NoticeLog(data.path()), {Platform::Desktop::freedesktop, bus.address()});
    QSignalSpy told(&item, &StatusItem::lowSpaceTold);
    QSignalSpy stateChanged(&fixture.model(), &AppModel::systemStateChanged);

    fixture.model().refreshSystemState();  // 4% left, but no warning chosen
    ASSERT_TRUE(waitUntil([&] { return stateChanged.size() == 1; }));
    fixture.settings().setFreeSpaceWarning(FreeSpaceWarning::fivePercent);
    ASSERT_TRUE(waitUntil([&] { return told.size() == 1; }));
    EXPECT_TRUE(told.at(0).at(0).toBool());
    const QList<QJsonObject> calls = bus.calls();
    ASSERT_EQ(calls.size(), 1);
    EXPECT_EQ(calls[0]["body"].toString(), "Only 4 GB (4%) is left on your disk. Dustlark can show you what takes the space.");

    fixture.model().refreshSystemState();
    ASSERT_TRUE(waitUntil([&] { return stateChanged.size() == 2; }));
    EXPECT_FALSE(waitUntil([&] { return told.size() > 1; }, 1000)) << "told twice on one day";
    EXPECT_EQ(bus.calls().size(), 1);

    QSignalSpy open(&item, &StatusItem::openRequested);
    bus.click(calls[0]["id"].toInt());
    EXPECT_TRUE(waitUntil([&] { return open.size() == 1; }));
}
