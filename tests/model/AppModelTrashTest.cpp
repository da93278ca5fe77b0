#include "actions/Remover.h"
#include "scan/TrashScanner.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "vocabulary/SystemPlaces.h"

#include <QDir>

#include <atomic>
#include <gtest/gtest.h>

namespace {

// The Trash row's size once its category is done; 0 when it has no row.
std::optional<qint64> trashRowSize(const AppModel& model)
{
    const CategoryResult result = model.result(CategoryID::trash);
    if (result.state != CategoryResult::State::done)
        return std::nullopt;
    return result.items.isEmpty() ? 0 : result.items.first().size;
}

}  // namespace

// The real Trash scanner, remover and freedesktop trash (in the test's private data folder):
// after a cleanup and after Empty Trash, the Trash row is the scanner's, measured again.
TEST(AppModelTrash, TheTrashRowFollowsCleanupsAndEmptying)
{
    TempTree tree;
    const QString trash = SystemPlaces::trashFolder(tree.root());
    QDir(trash).removeRecursively();
    const QString file = tree.file(QStringLiteral("Downloads/old.zip"), 4000);
    std::atomic<int> reads = 0;
    ModelFixture fixture({std::make_shared<TrashScanner>()}, tree.root(), [&](AppModel::Services& services) {
        services.readSystemState = [&reads](const QString&) {
            AppModel::SystemState state;
            state.freeBytes = 1'000'000 + ++reads;
            return state;
        };
        services.emptyTrash = [&](const FreedesktopTrash::EmptyProgress&, const CancellationToken&) -> std::optional<QString> {
            QDir(trash).removeRecursively();
            return std::nullopt;
        };
    });
    AppModel& model = fixture.model();
    model.startScan();
    ASSERT_TRUE(waitUntil([&] { return !model.isBusyScanning(); }));
    EXPECT_EQ(trashRowSize(model), 0);

    CleanupItem row = rowAt(CategoryID::oldDownloads, file, 4000);
    row.removal = Removal::trash({*FileTarget::make(file)});
    ScanOutputs outputs;
    outputs[CategoryID::oldDownloads].items = {row};
    model.apply(outputs, false);
    model.setSelected(row, true);
    model.prepareCleanup();
    model.startCleanup();
    ASSERT_TRUE(waitUntil([&] { return trashRowSize(model) >= 4000; })) << trashRowSize(model).value_or(-1);

    // Once the last read has landed, a new figure can only come from a new read.
    ASSERT_TRUE(waitUntil([&] { return model.systemState().freeBytes == 1'000'000 + reads; }));
    const std::optional<qint64> freeBefore = model.systemState().freeBytes;
    model.emptyTrash();
    EXPECT_TRUE(model.isChangingFiles()) << "emptying the Trash changes files";
    EXPECT_TRUE(waitUntil([&] { return !model.trashState().isEmptying && trashRowSize(model) == 0; }));
    EXPECT_TRUE(waitUntil([&] { return model.systemState().freeBytes != freeBefore; })) << "free space not read again";
}
