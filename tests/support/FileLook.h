#pragma once

#include "vocabulary/FileStatus.h"

#include <QDir>
#include <QFile>

// What a test reads back from the disk after the code under test ran; links are not followed.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

inline mode_t modeOf(const QString& path)
{
    const auto status = FileStatus::of(path);
    return status ? status->st_mode & 07777 : 0;
}

inline QStringList entriesOf(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}
