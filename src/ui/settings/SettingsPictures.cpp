#include "ui/settings/SettingsPictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::SettingsPictures {
namespace {

constexpr double kEdge = 1.5;
/// Lines of text in the small windows.
constexpr double kWords = 0.5;

struct Box {
    double x;
    double y;
    double width;
    double height;
    double radius;
};

/// Paints in units with the origin at the corner of the picture.
class Drawing {
  public:
    Drawing(QPainter& painter, QPointF at) : m_painter(painter) {
        m_painter.save();
        m_painter.translate(at);
        m_painter.scale(Unit::pixels(), Unit::pixels());
    }
    ~Drawing() { m_painter.restore(); }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    void fill(const Box& box, const QColor& colour) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(colour);
        draw(box);
    }

    void frame(const QSizeF& size, double radius, const QColor& colour) {
        m_painter.setPen({colour, kEdge});
        m_painter.setBrush(Qt::NoBrush);
        draw({kEdge / 2, kEdge / 2, size.width() - kEdge, size.height() - kEdge, radius});
    }

  private:
    void draw(const Box& box) {
        m_painter.drawRoundedRect(QRectF(box.x, box.y, box.width, box.height), box.radius, box.radius);
    }

    QPainter& m_painter;
};

void paintWindow(Drawing& drawing, NamedAppearance appearance) {
    const AppTheme theme = AppTheme::of(appearance, ThemeContrast::standard);
    QColor words = asQColor(theme.line);
    words.setAlphaF(kWords);
    drawing.fill({.75, .75, 70.5, 44.5, 5}, asQColor(theme.canvas));
    drawing.fill({8, 9, 14, 4, 2}, asQColor(theme.accent));
    drawing.fill({8, 17, 14, 3, 1.5}, words);
    drawing.fill({8, 24, 14, 3, 1.5}, words);
    drawing.fill({28, 8, 36, 30, 4}, asQColor(theme.surface));
    drawing.fill({33, 14, 20, 3, 1.5}, words);
    drawing.fill({33, 21, 26, 3, 1.5}, words);
}

}  // namespace

Tile::Paint screen(ActionCuePosition position) {
    return [position](QPainter& painter, QPointF at, const AppTheme& theme) {
        Drawing drawing(painter, at);
        drawing.fill({.75, .75, 54.5, 34.5, 4}, asQColor(theme.surface));
        drawing.frame(screenSize, 4, asQColor(theme.line));
        const bool isCentral = position == ActionCuePosition::center;
        const double y = isCentral ? 15 : position == ActionCuePosition::topRight ? 5 : 25;
        drawing.fill({isCentral ? 18.0 : 31.0, y, 20, 6, 3}, asQColor(theme.accent));
    };
}

Tile::Paint window(AppAppearance appearance) {
    return [appearance](QPainter& painter, QPointF at, const AppTheme& theme) {
        Drawing drawing(painter, at);
        paintWindow(drawing, appearance == AppAppearance::dark ? NamedAppearance::darkAqua : NamedAppearance::aqua);
        if (appearance == AppAppearance::system) {
            QPainterPath right;
            right.addPolygon(QPolygonF({{72, 0}, {42, 0}, {30, 46}, {72, 46}}));
            painter.save();
            painter.setClipPath(right, Qt::IntersectClip);
            paintWindow(drawing, NamedAppearance::darkAqua);
            painter.restore();
        }
        drawing.frame(windowSize, 5, asQColor(theme.line));
    };
}

}  // namespace kinesta::SettingsPictures
