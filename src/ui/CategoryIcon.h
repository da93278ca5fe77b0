#pragma once

#include "vocabulary/CategoryID.h"

#include <QIcon>

class QStyle;

// The sidebar icon of a category: the platform style's own icon closest to the category's
// symbol, so the sidebar looks native everywhere without shipping artwork.
namespace CategoryIcon {

QIcon icon(CategoryID category, const QStyle* style);

}  // namespace CategoryIcon
