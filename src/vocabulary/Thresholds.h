#pragma once

#include <QtGlobal>

// Numbers that several categories share, so the explanations and the scanners agree.
namespace Thresholds {

// Files below this logical length are neither duplicates nor large files.
inline constexpr qint64 duplicateMinimumSize = 1'000'000;
// A file of at least this logical length is a large file.
inline constexpr qint64 largeFileSize = 200'000'000;
// A removed app's data must be this quiet before it is offered.
inline constexpr int leftoversQuietDays = 30;
// Downloads this old are offered as old downloads.
inline constexpr int oldDownloadsDays = 90;

}  // namespace Thresholds
