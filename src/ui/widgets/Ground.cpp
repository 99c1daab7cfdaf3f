#include "ui/widgets/Ground.h"

#include "platform/qt/ThemePalette.h"

namespace kinesta::Ground {
namespace {

constexpr double kEdge = 2;

}  // namespace

QColor controlColour(const State& state, const AppTheme& theme) {
    const QColor rest = asQColor(theme.control);
    const QColor pressed = asQColor(theme.pressed);
    if (state.isDown)
        return pressed;
    if (!state.isHovered)
        return rest;
    return {(rest.red() + pressed.red()) / 2, (rest.green() + pressed.green()) / 2, (rest.blue() + pressed.blue()) / 2};
}

void paintChosenEdge(QPainter& painter, const QRectF& box, double radius, const AppTheme& theme) {
    const double half = kEdge / 2;
    painter.setPen(QPen(asQColor(theme.accent), kEdge));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void paintChoice(QPainter& painter, const QRectF& box, double radius, const State& state, const AppTheme& theme) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(state.isChosen ? asQColor(theme.accentSoft) : controlColour(state, theme));
    painter.drawRoundedRect(box, radius, radius);
    if (state.isChosen)
        paintChosenEdge(painter, box, radius, theme);
}

}  // namespace kinesta::Ground
