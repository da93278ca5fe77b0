#pragma once

#include "vocabulary/CategoryID.h"
#include "vocabulary/Removal.h"
#include "vocabulary/Safety.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

// One removable row. Plain value; ids are unique across all categories and key both the
// selection and the Safe List.
struct CleanupItem {
    QString id;
    CategoryID category = CategoryID::projects;
    QString title;
    std::optional<QString> badge;
    QString detail;
    qint64 size = 0;
    Removal removal;
    std::optional<QString> lockedReason;
    std::optional<QDateTime> date;
    std::optional<QString> projectPath;
    QStringList userData;
    std::optional<Safety> safetyLevel;
    std::optional<QString> duplicateGroup;
    bool isOldestCopy = false;

    // The label shown, from the category's rules. `home` is the home folder that decides
    // whether a temporary item is the person's own.
    [[nodiscard]] Safety safety(const QString& home) const;

    bool canMoveToAnotherDisk() const;
    bool isLocked() const { return lockedReason.has_value(); }

    bool operator==(const CleanupItem&) const = default;
};

size_t qHash(const CleanupItem& item, size_t seed = 0);
