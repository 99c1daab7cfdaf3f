#pragma once

#include <QPainter>

namespace kinesta::RowPainter {

struct State {
    bool isSelected = false;
    bool isHovered = false;
    /// With a bar at the leading edge: its page is shown.
    bool isShown = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// What lies under a row of the sidebar.
void paintGround(QPainter& painter, const QRect& row, const State& state);

/// One line of words in the painter's colour, elided at its end.
void paintWords(QPainter& painter, const QRect& line, const QFont& font, const QString& words, Qt::LayoutDirection way);

double radius();
/// Between the edges of the sidebar and its rows.
int inset();

}  // namespace kinesta::RowPainter
