#include "actions/Remover.h"
#include "scan/TrashScanner.h"
#include "support/ModelFixture.h"
#include "support/TempTree.h"
#include "support/Wait.h"
#include "vocabulary/SystemPlaces.h"

#include <QDir>

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
    ModelFixture fixture({std::make_shared<TrashScanner>()}, tree.root(), [&](AppModel::Services& services) {
        services.emptyTrash = [&]() -> std::optional<QString> {
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

    model.emptyTrash();
    EXPECT_TRUE(waitUntil([&] { return !model.trashState().isEmptying && trashRowSize(model) == 0; }));
}
