#include "ui/AppIcon.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

// The pixel at a point given as parts of the icon's side.
QColor pixelAt(const QImage& image, double x, double y)
{
    return image.pixelColor(static_cast<int>(x * image.width()), static_cast<int>(y * image.height()));
}

}  // namespace

// The icon is the SVG built into the app: a tile that leaves the corners clear, the dusk blue,
// the golden arc and the white specks land where the drawing puts them at every size and
// pixel density, so a drawing that is missing, clipped or scaled wrong shows here.
TEST(AppIcon, DrawsTheBuiltInDrawingAtEverySizeAndDensity)
{
    for (const auto& [size, ratio] : {std::pair(16, 1.0), std::pair(96, 1.0), std::pair(96, 2.0), std::pair(512, 1.0)}) {
        const QPixmap pixmap = AppIcon::pixmap(size, ratio);
        const QImage image = pixmap.toImage();
        SCOPED_TRACE(testing::Message() << size << " px at " << ratio);
        ASSERT_EQ(image.size(), QSize(size, size) * ratio);
        EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
        EXPECT_EQ(pixelAt(image, 0.02, 0.02).alpha(), 0);
        EXPECT_EQ(pixelAt(image, 0.98, 0.98).alpha(), 0);
        if (size < 64)
            continue;  // the finer parts blur together at the smallest sizes
        const QColor tile = pixelAt(image, 0.3, 0.15);
        EXPECT_EQ(tile.alpha(), 255);
        EXPECT_GT(tile.blue(), tile.red() + 60);
        const QColor arc = pixelAt(image, 0.5, 0.78);
        EXPECT_GT(arc.red(), 200);
        EXPECT_LT(arc.blue(), 150);
        const QColor speck = pixelAt(image, 0.68, 0.36);
        EXPECT_GT(speck.red(), 200);
        EXPECT_GT(speck.blue(), 200);
    }
}
