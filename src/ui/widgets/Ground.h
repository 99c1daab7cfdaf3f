#pragma once

#include <QPainter>

#include "app/AppTheme.h"

namespace kinesta::Ground {

struct State {
    bool isChosen = false;
    bool isDown = false;
    bool isHovered = false;
};

/// What lies under a tile or button: soft in accent with an edge if it is chosen.
void paintChoice(QPainter& painter, const QRectF& box, double radius, const State& state, const AppTheme& theme);

/// The edge of what is chosen, 2 pixels inside.
void paintChosenEdge(QPainter& painter, const QRectF& box, double radius, const AppTheme& theme);

/// Buttons at rest, under the pointer and held down.
QColor controlColour(const State& state, const AppTheme& theme);

}  // namespace kinesta::Ground
