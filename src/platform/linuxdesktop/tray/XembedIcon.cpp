#include "platform/linuxdesktop/tray/XembedIcon.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "platform/linux/x11/XcbEvent.h"
#include "platform/linux/x11/XcbPointer.h"
#include "platform/linuxdesktop/tray/StatusGlyph.h"

namespace kinesta {
namespace {

constexpr int kUsualSide = 22;
/// In pixels. Nothing that a panel does on purpose is larger.
constexpr int kLargestSide = 512;
constexpr auto kHoverTime = std::chrono::milliseconds(700);

/// The window that an event was delivered to. Nothing for other kinds of events than those of windows of ours.
xcb_window_t windowOf(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7FU) {
        case XCB_EXPOSE:
            return eventAs<xcb_expose_event_t>(event).window;
        case XCB_CONFIGURE_NOTIFY:
            return eventAs<xcb_configure_notify_event_t>(event).event;
        case XCB_REPARENT_NOTIFY:
            return eventAs<xcb_reparent_notify_event_t>(event).event;
        case XCB_DESTROY_NOTIFY:
            return eventAs<xcb_destroy_notify_event_t>(event).event;
        case XCB_BUTTON_RELEASE:
            return eventAs<xcb_button_release_event_t>(event).event;
        case XCB_ENTER_NOTIFY:
        case XCB_LEAVE_NOTIFY:
            return eventAs<xcb_enter_notify_event_t>(event).event;
        default:
            return XCB_WINDOW_NONE;
    }
}

/// The format in which the server keeps the pixels of a window of this depth.
QImage::Format formatOf(std::uint8_t depth) {
    switch (depth) {
        case 16:
            return QImage::Format_RGB16;
        case 30:
            return QImage::Format_RGB30;
        case 32:
            return QImage::Format_ARGB32_Premultiplied;
        default:
            return QImage::Format_RGB32;
    }
}

/// From the server's pixels to Qt's units, which differ from screen to screen.
QRect inQtUnits(const QRect& pixels) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        const double ratio = screen->devicePixelRatio();
        const QPoint origin = screen->geometry().topLeft();
        if (QRect(origin, screen->geometry().size() * ratio).contains(pixels.center()))
            return {origin + (pixels.topLeft() - origin) / ratio, pixels.size() / ratio};
    }
    return pixels;
}

}  // namespace

XembedIcon::XembedIcon(Handlers handlers) : m_handlers(std::move(handlers)) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr)
        return;
    m_connection = x11->connection();
    int number = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &number) != 0)
        std::free(host);
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (int i = 0; i < number && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    m_screen = screens.data;
    m_tray.emplace(m_connection, m_screen, number);
    m_hover.setSingleShot(true);
    m_hover.setInterval(kHoverTime);
    m_hover.callOnTimeout([this] { QToolTip::showText(QCursor::pos(), m_toolTip); });
    QCoreApplication::instance()->installNativeEventFilter(this);
}

XembedIcon::~XembedIcon() {
    m_handlers.dockingChanged = [] {};
    close();
}

void XembedIcon::open() {
    if (!m_tray || std::exchange(m_isOpen, true))
        return;
    dock();
}

void XembedIcon::close() {
    if (!std::exchange(m_isOpen, false))
        return;
    undock();
    m_tray->forget();
}

QRect XembedIcon::place() const {
    const XcbPointer<xcb_translate_coordinates_reply_t> reply(xcb_translate_coordinates_reply(
        m_connection, xcb_translate_coordinates(m_connection, m_window, m_screen->root, 0, 0), nullptr));
    return reply ? inQtUnits({QPoint(reply->dst_x, reply->dst_y), m_size}) : QRect();
}

void XembedIcon::setGlyph(bool isEnabled, bool isDarkPanel) {
    m_isEnabled = isEnabled;
    m_isDarkPanel = isDarkPanel;
    paint();
}

void XembedIcon::setTexts(const QString& toolTip, const QString& description) {
    m_toolTip = toolTip;
    m_description = description;
    nameWindow();
}

bool XembedIcon::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (!m_isOpen || type != "xcb_generic_event_t")
        return false;
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    handleTrayEvent(event);
    if (m_window != XCB_WINDOW_NONE && windowOf(event) == m_window)
        handleWindowEvent(event);
    // Qt reads the time of clicks, too: without it a window that they open would stay in the background.
    return false;
}

void XembedIcon::handleTrayEvent(const xcb_generic_event_t& event) {
    if (m_tray->isArrival(event)) {
        undock();
        dock();
    } else if (m_tray->isDeparture(event)) {
        undock();
        m_tray->forget();
    } else if (m_tray->isColourChange(event)) {
        paint();
    }
}

void XembedIcon::handleWindowEvent(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7FU) {
        case XCB_EXPOSE:
            if (eventAs<xcb_expose_event_t>(event).count == 0)
                paint();
            return;
        case XCB_CONFIGURE_NOTIFY: {
            const auto& place = eventAs<xcb_configure_notify_event_t>(event);
            if (std::exchange(m_size, QSize(place.width, place.height)) != m_size)
                paint();
            return;
        }
        case XCB_REPARENT_NOTIFY:
            // Of a tray that ends the server gives us the window back, and it would stand alone on the screen.
            if (eventAs<xcb_reparent_notify_event_t>(event).parent == m_screen->root)
                return undock();
            return setDocked(true);
        case XCB_DESTROY_NOTIFY:
            m_window = XCB_WINDOW_NONE;
            return undock();
        case XCB_ENTER_NOTIFY:
            return m_hover.start();
        case XCB_LEAVE_NOTIFY:
            m_hover.stop();
            return QToolTip::hideText();
        case XCB_BUTTON_RELEASE: {
            const auto& click = eventAs<xcb_button_release_event_t>(event);
            m_hover.stop();
            if (!QRect({}, m_size).contains(click.event_x, click.event_y))
                return;
            const bool isControlHeld = (click.state & XCB_MOD_MASK_CONTROL) != 0;
            if (click.detail == XCB_BUTTON_INDEX_1)
                m_handlers.clicked({StatusItemClick::Button::left, isControlHeld});
            else if (click.detail == XCB_BUTTON_INDEX_3)
                m_handlers.clicked({StatusItemClick::Button::right, isControlHeld});
            return;
        }
        default:
            return;
    }
}

void XembedIcon::dock() {
    if (!m_tray->find())
        return;
    createWindow();
    m_tray->dock(m_window);
}

void XembedIcon::undock() {
    m_hover.stop();
    if (m_window != XCB_WINDOW_NONE)
        xcb_destroy_window(m_connection, std::exchange(m_window, XCB_WINDOW_NONE));
    if (m_colormap != XCB_NONE)
        xcb_free_colormap(m_connection, std::exchange(m_colormap, XCB_NONE));
    xcb_flush(m_connection);
    setDocked(false);
}

void XembedIcon::setDocked(bool isDocked) {
    if (std::exchange(m_isDocked, isDocked) != isDocked)
        m_handlers.dockingChanged();
}

void XembedIcon::createWindow() {
    m_visual = m_tray->visual();
    const auto side = static_cast<std::uint16_t>(kUsualSide * qGuiApp->devicePixelRatio());
    m_size = {side, side};
    m_window = xcb_generate_id(m_connection);
    m_colormap = xcb_generate_id(m_connection);
    xcb_create_colormap(m_connection, XCB_COLORMAP_ALLOC_NONE, m_colormap, m_screen->root, m_visual.id);
    const bool hasParentsGround = m_visual.depth == m_screen->root_depth && !m_visual.hasAlpha;
    const std::uint32_t ground = hasParentsGround ? XCB_CW_BACK_PIXMAP : XCB_CW_BACK_PIXEL;
    const std::array<std::uint32_t, 4> values{hasParentsGround ? std::uint32_t{XCB_BACK_PIXMAP_PARENT_RELATIVE} : 0, 0,
                                              XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                                  XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                                  XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW,
                                              m_colormap};
    xcb_create_window(m_connection, m_visual.depth, m_window, m_screen->root, 0, 0, side, side, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, m_visual.id,
                      ground | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values.data());
    const auto set = [this](xcb_atom_t property, xcb_atom_t type, const auto& numbers) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, property, type, 32,
                            static_cast<std::uint32_t>(numbers.size()), numbers.data());
    };
    const xcb_atom_t embedInformation = m_tray->atom("_XEMBED_INFO");
    set(embedInformation, embedInformation, std::array<std::uint32_t, 2>{0 /* version */, 1 /* to be mapped */});
    constexpr std::uint32_t kHasMinimumSize = 1U << 4U;
    set(XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS,
        std::array<std::uint32_t, 18>{kHasMinimumSize, 0, 0, 0, 0, side, side});
    nameWindow();
}

/// Panels list their icons by these.
void XembedIcon::nameWindow() {
    if (m_window == XCB_WINDOW_NONE)
        return;
    const auto set = [this](xcb_atom_t property, xcb_atom_t type, const QByteArray& text) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, property, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.constData());
    };
    set(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, QByteArray("kinesta\0Kinesta\0", 16));
    for (const xcb_atom_t name : {m_tray->atom("_NET_WM_NAME"), xcb_atom_t{XCB_ATOM_WM_NAME}})
        set(name, m_tray->atom("UTF8_STRING"), m_description.toUtf8());
    xcb_flush(m_connection);
}

void XembedIcon::paint() {
    if (!m_isDocked || m_size.isEmpty() || std::max(m_size.width(), m_size.height()) > kLargestSide)
        return;
    const QImage image = draw().convertToFormat(formatOf(m_visual.depth));
    const xcb_gcontext_t context = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, context, m_window, 0, nullptr);
    xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, context, static_cast<std::uint16_t>(image.width()),
                  static_cast<std::uint16_t>(image.height()), 0, 0, 0, m_visual.depth,
                  static_cast<std::uint32_t>(image.sizeInBytes()), image.constBits());
    xcb_free_gc(m_connection, context);
    xcb_flush(m_connection);
}

QImage XembedIcon::draw() const {
    if (m_visual.hasAlpha) {
        const auto colour = m_tray->foreground();
        return colour ? StatusGlyph::inColour(m_isEnabled, m_size, *colour)
                      : StatusGlyph::onGround(m_isEnabled, m_size, m_isDarkPanel);
    }
    QImage image = readGround().value_or(QImage());
    bool isDark = m_isDarkPanel;
    if (image.isNull()) {
        image = QImage(m_size, QImage::Format_ARGB32_Premultiplied);
        image.fill(isDark ? Qt::black : Qt::white);
    } else {
        isDark =
            StatusGlyph::isDark(image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0));
    }
    QPainter(&image).drawImage(0, 0, StatusGlyph::onGround(m_isEnabled, m_size, isDark));
    return image;
}

/// What the parent window shows through ours. Nothing while the window is not wholly on the screen.
std::optional<QImage> XembedIcon::readGround() const {
    const auto width = static_cast<std::uint16_t>(m_size.width());
    const auto height = static_cast<std::uint16_t>(m_size.height());
    xcb_clear_area(m_connection, 0, m_window, 0, 0, width, height);
    const auto cookie =
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, 0, 0, width, height, ~std::uint32_t{0});
    xcb_generic_error_t* error = nullptr;
    const XcbPointer<xcb_get_image_reply_t> reply(xcb_get_image_reply(m_connection, cookie, &error));
    const XcbPointer<xcb_generic_error_t> ownedError(error);
    if (!reply)
        return std::nullopt;
    const QImage view(xcb_get_image_data(reply.get()), m_size.width(), m_size.height(), formatOf(m_visual.depth));
    if (xcb_get_image_data_length(reply.get()) < view.sizeInBytes())
        return std::nullopt;
    return view.convertToFormat(QImage::Format_ARGB32_Premultiplied);  // a copy: the reply ends here
}

}  // namespace kinesta
