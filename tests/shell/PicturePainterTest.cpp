#include "platform/qt/PicturePainter.h"

#include <gtest/gtest.h>

#include "app/TrayIcon.h"

namespace kinesta::testing {
namespace {

// A stroke between two rows of pixels would look grey and twice as wide.
TEST(PicturePainter, PutsStraightStrokesOntoWholePixels) {
    for (const int side : {16, 22, 24, 32, 44, 48, 64}) {
        const QImage image = PicturePainter::image(TrayIcon::image(false), {side, side}, Qt::black);
        // Upward through the box's upper edge, left of the line across it, and to the left through its left edge.
        for (int i = 0; i < side / 2; ++i) {
            EXPECT_EQ(qAlpha(image.pixel(side * 2 / 5, i)) % 255, 0) << side;
            EXPECT_EQ(qAlpha(image.pixel(i, side * 2 / 5)) % 255 * (i < side / 4 ? 1 : 0), 0) << side;
        }
        EXPECT_EQ(image.pixel(side / 2, 0), 0U) << side;
    }
    EXPECT_TRUE(PicturePainter::image(TrayIcon::image(true), {}, Qt::black).isNull());
}

TEST(PicturePainter, ErasesOnlyThePictureItself) {
    QImage page(200, 100, QImage::Format_RGB32);
    page.setDevicePixelRatio(2);
    page.fill(Qt::red);
    QPainter painter(&page);
    painter.translate(10, 5);
    PicturePainter::paint(painter, {0, 0, 40, 40}, TrayIcon::image(false), Qt::blue);
    painter.end();
    // 20 pixels from the left and 10 from the top begins a square of 80; its middle is on the line, and cut free.
    EXPECT_EQ(page.pixelColor(60, 50), QColor(Qt::blue));
    EXPECT_EQ(page.pixelColor(54, 45), QColor(Qt::red));
    EXPECT_EQ(page.pixelColor(10, 50), QColor(Qt::red));
}

}  // namespace
}  // namespace kinesta::testing
