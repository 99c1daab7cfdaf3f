#pragma once

#include <QImage>
#include <QPainterPath>

#include "feedback/ActionCueContent.h"

namespace kinesta {

/// Draws the cue: a capsule with a symbol and a line of text, the same in light and dark.
class CuePainter {
  public:
    struct Look {
        /// 0…1; 1 is solid.
        double groundOpacity = 1;
        /// Without a compositor the cue is solid, also in its corners: the window is cut to shape there.
        bool hasCompositor = true;
        Qt::LayoutDirection direction = Qt::LeftToRight;
    };

    /// As large as ActionCuePanel, with `ratio` pixels a point.
    static QImage image(const ActionCueContent& content, const Look& look, double ratio);
    /// The edge of the capsule, or a line within it.
    static QPainterPath outline(double inset);
};

}  // namespace kinesta
