#include "platform/qt/PicturePainter.h"

#include <gtest/gtest.h>

#include "app/TrayIcon.h"

namespace kinesta::testing {

// A stroke between two rows of pixels would look grey and twice as wide.
TEST(PicturePainter, PutsStraightStrokesOntoWholePixels) {
    for (const int side : {16, 22, 24, 32, 44, 48, 64}) {
        const QImage image = PicturePainter::image(TrayIcon::image(true), {side, side}, Qt::black);
        // Through the upper edge of the box, and through the left one, up to the fingers.
        for (int i = 0; i < side / 5; ++i) {
            EXPECT_EQ(qAlpha(image.pixel(side / 2, i)) % 255, 0) << side;
            EXPECT_EQ(qAlpha(image.pixel(i, side / 2)) % 255, 0) << side;
        }
    }
}

TEST(PicturePainter, ErasesOnlyThePictureItself) {
    QImage page(100, 100, QImage::Format_RGB32);
    page.setDevicePixelRatio(2);
    page.fill(Qt::red);
    QPainter painter(&page);
    PicturePainter::paint(painter, {10, 5, 40, 40}, TrayIcon::image(false), Qt::blue);
    painter.end();
    EXPECT_EQ(page.pixelColor(60, 50), QColor(Qt::blue));
    EXPECT_EQ(page.pixelColor(54, 45), QColor(Qt::red));  // beside the line, where the picture is cut free
}

}  // namespace kinesta::testing
