#pragma once

#include "storage/StorageBucket.h"

#include <QColor>
#include <QIcon>

// How a storage bucket looks on the screens: a colour of its own (the remainder is grey) and a
// round swatch of it as its icon, so the legend, the chart and the lists match at a glance.
namespace StorageBucketStyle {

QColor colour(StorageBucket bucket);
QColor remainderColour();
// A filled circle of `colour`, for list rows.
QIcon swatch(const QColor& colour);

}  // namespace StorageBucketStyle
