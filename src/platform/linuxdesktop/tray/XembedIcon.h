#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>

#include "app/StatusItem.h"
#include "platform/linuxdesktop/tray/XembedTray.h"

namespace kinesta {

/// An icon in the tray of an X11 panel: a window that the panel takes in (XEmbed). Shows itself whenever such a tray
/// appears. Does nothing on a display of another kind. Main thread only.
class XembedIcon final : private QAbstractNativeEventFilter {
  public:
    struct Handlers {
        std::function<void(StatusItemClick)> clicked;
        /// Called when isDocked() changes.
        std::function<void()> dockingChanged;
    };

    explicit XembedIcon(Handlers handlers);
    ~XembedIcon() override;

    /// Whether it wants to be in a tray.
    void open();
    void close();

    /// Whether a tray shows it.
    bool isDocked() const { return m_isDocked; }
    /// Its place on the screen, in Qt's units.
    QRect place() const;

    /// `isDarkPanel` counts only where the ground cannot be seen.
    void setGlyph(bool isEnabled, bool isDarkPanel);
    void setTexts(const QString& toolTip, const QString& description);

  private:
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
    void handleTrayEvent(const xcb_generic_event_t& event);
    void handleWindowEvent(const xcb_generic_event_t& event);

    void dock();
    void undock();
    void setDocked(bool isDocked);
    void createWindow();
    void nameWindow();
    void paint();
    std::optional<QImage> readGround() const;
    QImage draw() const;

    Handlers m_handlers;
    xcb_connection_t* m_connection = nullptr;
    xcb_screen_t* m_screen = nullptr;
    std::optional<XembedTray> m_tray;
    bool m_isOpen = false;
    bool m_isDocked = false;

    xcb_window_t m_window = XCB_WINDOW_NONE;
    xcb_colormap_t m_colormap = XCB_NONE;
    XembedTray::Visual m_visual;
    QSize m_size;

    bool m_isEnabled = false;
    bool m_isDarkPanel = true;
    QString m_toolTip;
    QString m_description;
    QTimer m_hover;
};

}  // namespace kinesta
