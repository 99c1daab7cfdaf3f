#pragma once

#include <QFocusEvent>
#include <QPainter>

namespace kinesta {

/// The ring around a widget that the keyboard has reached; a click shows none.
class FocusRing {
  public:
    void follow(const QFocusEvent& event);
    /// A key was pressed in the widget.
    void show() { m_isShown = true; }
    bool isShown() const { return m_isShown; }
    /// Paints it inside the edge of `box`, whose corners have `radius`.
    void paint(QPainter& painter, const QRectF& box, double radius) const;

    /// Room that a widget keeps free for a ring outside of its shape.
    static int room();

  private:
    bool m_isShown = false;
};

}  // namespace kinesta
