#pragma once

#include "actions/RemovalEnvironment.h"
#include "support/TempTree.h"
#include "vocabulary/CleanupItem.h"

#include <QStringList>

#include <gtest/gtest.h>

// A temporary home folder and the real freedesktop trash of the test environment, emptied
// before each test, with the real system's removal environment pointed at that home.
class TrashFixture : public ::testing::Test {
protected:
    void SetUp() override;

    // A Trash item of the targets made for `paths` (each must exist).
    CleanupItem trashItem(const QStringList& paths) const;
    FileTarget target(const QString& path) const;
    // Names in the Trash's files/ folder.
    QStringList trashedNames() const;
    QString trashFolder() const;
    // Asserts that removal is refused with exactly `reason` and that nothing went anywhere.
    void expectRefused(const CleanupItem& item, const QString& reason) const;

    TempTree home;
    RemovalEnvironment environment;
};
