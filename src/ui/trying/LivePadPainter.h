#pragma once

#include <QPainter>
#include <vector>

#include "app/AppTheme.h"
#include "input/CornerPalmRejectionSettings.h"
#include "ui/models/LivePadModel.h"

namespace kinesta {

/// Draws the live pad. `pad` is the place of the pad without its lower edge; lengths are in units.
class LivePadPainter {
  public:
    LivePadPainter(const QRectF& pad, const AppTheme& theme);

    /// Room around the pad for the line through a pad that is off, and the lower edge.
    static double margin();
    static double lip();

    void paintGround(QPainter& painter, const CornerPalmRejectionSettings& palms) const;
    void paintOff(QPainter& painter) const;
    void paintTouch(QPainter& painter, const LiveTouch& touch) const;
    void paintGesture(QPainter& painter, const LiveGesture& gesture) const;

    /// Where the touch or the gesture leaves marks.
    QRectF bounds(const LiveTouch& touch) const;
    QRectF bounds(const LiveGesture& gesture) const;

    QPainterPath outline(double inset = 0) const;

  private:
    QPointF at(Point point) const;
    QRectF pill(QPointF middle, const QString& text, QSizeF least) const;
    QRectF idPill(const LiveTouch& touch) const;
    QRectF gesturePill(const LiveGesture& gesture) const;
    std::vector<QRectF> zones(const LiveGesture& gesture) const;
    QRectF corner(bool isLeft, bool isTop, double side) const;
    QColor paper() const;
    void paintTrail(QPainter& painter, const LiveTouch& touch) const;
    void paintPill(QPainter& painter, const QRectF& box, const QString& text, const QColor& ground,
                   const QColor& ink) const;

    QRectF m_pad;
    const AppTheme& m_theme;
    double m_unit;
};

}  // namespace kinesta
