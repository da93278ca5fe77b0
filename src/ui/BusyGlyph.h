#pragma once

#include <QColor>
#include <QIcon>

// A small drawn activity indicator: an open ring turned a little further in every frame.
// Drawn rather than animated by a widget so one timer can drive it in any number of list rows.
namespace BusyGlyph {

inline constexpr int frameCount = 12;
inline constexpr int frameIntervalMs = 80;

QIcon frame(int step, const QColor& color, int size = 14);

}  // namespace BusyGlyph
