#pragma once

#include <QColor>
#include <QImage>

namespace kinesta {

/// The picture of the status item, in a colour that is legible on the panel behind it.
class StatusGlyph {
  public:
    /// Light on a dark ground and dark on a light one, with a faint edge in the opposite colour: the ground may be
    /// another colour than its owner set, or a wallpaper.
    static QImage onGround(bool isEnabled, QSize size, bool isDarkGround);
    /// In the very colour that the panel asks for.
    static QImage inColour(bool isEnabled, QSize size, const QColor& colour);

    static bool isDark(const QColor& ground);
};

}  // namespace kinesta
