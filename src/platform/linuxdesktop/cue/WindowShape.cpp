#include "platform/linuxdesktop/cue/WindowShape.h"

#include <xcb/xfixes.h>

#include <QBitmap>
#include <QPainter>
#include <QRegion>
#include <vector>

#include "platform/linuxdesktop/ScreenSelection.h"

namespace kinesta {
namespace {

std::vector<xcb_rectangle_t> rectanglesOf(const QPainterPath& path, QSize pixels, double scale) {
    QBitmap bitmap(pixels);
    bitmap.clear();
    QPainter painter(&bitmap);
    painter.scale(scale, scale);
    painter.fillPath(path, Qt::color1);
    painter.end();
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& each : QRegion(bitmap))
        rectangles.push_back({static_cast<std::int16_t>(each.x()), static_cast<std::int16_t>(each.y()),
                              static_cast<std::uint16_t>(each.width()), static_cast<std::uint16_t>(each.height())});
    return rectangles;
}

}  // namespace

void cutWindow(const QWidget& window, const QPainterPath& path) {
    xcb_connection_t* connection = ScreenSelection::connection();
    if (connection == nullptr)
        return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    xcb_xfixes_region_t region = XCB_XFIXES_REGION_NONE;  // the whole window
    if (!path.isEmpty()) {
        const double scale = window.devicePixelRatioF();
        const auto rectangles = rectanglesOf(path, window.size() * scale, scale);
        region = xcb_generate_id(connection);
        xcb_xfixes_create_region(connection, region, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
    }
    xcb_xfixes_set_window_shape_region(connection, id, XCB_SHAPE_SK_BOUNDING, 0, 0, region);
    if (region != XCB_XFIXES_REGION_NONE)
        xcb_xfixes_destroy_region(connection, region);
}

}  // namespace kinesta
