#pragma once

#include "vocabulary/CleanupItem.h"

#include <gtest/gtest.h>

// Rows of a scan found the way the tests name them: by id (the path, for files) or by title.

// The first row with `id`, or null.
inline const CleanupItem* findRow(const QList<CleanupItem>& rows, const QString& id)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const CleanupItem& row) { return row.id == id; });
    return found == rows.end() ? nullptr : &*found;
}

// The first row with `id`; a test failure, and an empty row, when there is none.
inline const CleanupItem& rowWithId(const QList<CleanupItem>& rows, const QString& id)
{
    static const CleanupItem none;
    const CleanupItem* row = findRow(rows, id);
    if (!row)
        ADD_FAILURE() << "no row " << qPrintable(id);
    return row ? *row : none;
}

// The first row titled `title`, or null and a test failure.
inline const CleanupItem* rowTitled(const QList<CleanupItem>& rows, const QString& title)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const CleanupItem& row) { return row.title == title; });
    if (found == rows.end())
        ADD_FAILURE() << "no row titled " << qPrintable(title);
    return found == rows.end() ? nullptr : &*found;
}

inline QStringList titlesOf(const QList<CleanupItem>& rows)
{
    QStringList titles;
    for (const CleanupItem& row : rows)
        titles.append(row.title);
    return titles;
}
