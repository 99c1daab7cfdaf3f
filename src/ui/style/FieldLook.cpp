#include "ui/style/FieldLook.h"

#include <QStyle>
#include <algorithm>

#include "platform/qt/ThemePalette.h"
#include "ui/style/Shapes.h"
#include "ui/widgets/FocusRing.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::FieldLook {
namespace {

constexpr double kPadding = 10;
constexpr double kErrorEdge = 1.5;
constexpr double kGroove = 3;
constexpr double kHandle = 18;
constexpr double kHandleEdge = 2;
constexpr double kScrollExtent = 10;
constexpr double kScrollHandle = 6;
constexpr double kShortestHandle = 28;
constexpr float kScrollOpacity = 0.6F;
constexpr double kProgress = 4;

bool isAcross(const QStyleOptionSlider& option) { return option.orientation == Qt::Horizontal; }

int length(const QStyleOptionSlider& option) { return isAcross(option) ? option.rect.width() : option.rect.height(); }

/// From `start` and `extent` along the bar, over its whole breadth.
QRect along(const QStyleOptionSlider& option, int start, int extent) {
    const QRect& box = option.rect;
    return isAcross(option) ? QRect(box.left() + start, box.top(), extent, box.height())
                            : QRect(box.left(), box.top() + start, box.width(), extent);
}

}  // namespace

int padding() { return Unit::of(kPadding); }

void paintField(QPainter& painter, const QStyleOption& option, bool hasError) {
    const AppTheme& theme = WindowTheme::current();
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool isFocused = isEnabled && option.state.testFlag(QStyle::State_HasFocus);
    const double radius = Unit::of(Shapes::kRadius);
    Shapes::fill(painter, option.rect, radius, asQColor(isEnabled ? theme.surface : theme.canvas));
    const Rgb ink = hasError ? theme.danger : isFocused ? theme.accent : isEnabled ? theme.line : theme.lip;
    const double width = isFocused ? theme.focusRing : hasError ? kErrorEdge : 1;
    Shapes::edge(painter, option.rect, radius, asQColor(ink), width);
}

QRect sliderPart(const QStyleOptionSlider& option, QStyle::SubControl part) {
    const int handle = Unit::of(kHandle);
    const int room = FocusRing::room();
    if (part == QStyle::SC_SliderGroove)
        return along(option, room, length(option) - 2 * room);
    if (part != QStyle::SC_SliderHandle)
        return {};
    const int at = room + QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                          length(option) - handle - 2 * room, option.upsideDown);
    QRect box = along(option, at, handle);
    if (isAcross(option)) {
        box.setHeight(handle);
        box.moveTop(option.rect.top() + (option.rect.height() - handle) / 2);
    } else {
        box.setWidth(handle);
        box.moveLeft(option.rect.left() + (option.rect.width() - handle) / 2);
    }
    return box;
}

void paintSlider(QPainter& painter, const QStyleOptionSlider& option, bool hasRing) {
    const AppTheme& theme = WindowTheme::current();
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QRectF handle = sliderPart(option, QStyle::SC_SliderHandle);
    const double breadth = Unit::pixels() * kGroove;
    QRectF groove = option.rect;
    QRectF filled;
    if (isAcross(option)) {
        groove = QRectF(groove.left(), handle.center().y() - breadth / 2, groove.width(), breadth);
        filled = groove;
        option.upsideDown ? filled.setLeft(handle.center().x()) : filled.setRight(handle.center().x());
    } else {
        groove = QRectF(handle.center().x() - breadth / 2, groove.top(), breadth, groove.height());
        filled = groove;
        option.upsideDown ? filled.setTop(handle.center().y()) : filled.setBottom(handle.center().y());
    }
    Shapes::fill(painter, groove, breadth / 2, asQColor(isEnabled ? theme.line : theme.lip));
    if (isEnabled)
        Shapes::fill(painter, filled, breadth / 2, asQColor(theme.accent));
    const bool isHeld =
        option.activeSubControls.testFlag(QStyle::SC_SliderHandle) && option.state.testFlag(QStyle::State_Sunken);
    const double radius = handle.width() / 2;
    Shapes::fill(painter, handle, radius, asQColor(isHeld ? theme.accentSoft : theme.surface));
    Shapes::edge(painter, handle, radius, asQColor(isEnabled ? theme.accent : theme.line),
                 kHandleEdge * Unit::pixels());
    if (hasRing) {
        const double room = FocusRing::room();
        Shapes::edge(painter, handle.adjusted(-room, -room, room, room), radius + room, asQColor(theme.accent),
                     theme.focusRing);
    }
}

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part) {
    const int whole = length(option);
    const int range = option.maximum - option.minimum;
    int handle = whole;
    if (range > 0) {
        const auto share = static_cast<double>(option.pageStep) / (static_cast<double>(range) + option.pageStep);
        handle = std::min(whole, std::max(Unit::of(kShortestHandle), static_cast<int>(whole * share)));
    }
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      whole - handle, option.upsideDown);
    QRect box;
    switch (part) {
        case QStyle::SC_ScrollBarGroove:
            box = option.rect;
            break;
        case QStyle::SC_ScrollBarSlider:
            box = along(option, start, handle);
            break;
        case QStyle::SC_ScrollBarSubPage:
            box = along(option, 0, start);
            break;
        case QStyle::SC_ScrollBarAddPage:
            box = along(option, start + handle, whole - start - handle);
            break;
        default:
            return {};
    }
    return Shapes::placed(option, box);
}

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option) {
    if (option.maximum <= option.minimum)
        return;
    const bool isActive =
        option.state.testFlag(QStyle::State_Enabled) &&
        (option.state.testFlag(QStyle::State_MouseOver) || option.state.testFlag(QStyle::State_Sunken));
    const double free = Unit::pixels() * (kScrollExtent - kScrollHandle) / 2;
    const QRectF handle = QRectF(scrollBarPart(option, QStyle::SC_ScrollBarSlider)).adjusted(free, free, -free, -free);
    QColor colour = asQColor(WindowTheme::current().line);
    colour.setAlphaF(isActive ? 1.0F : kScrollOpacity);
    Shapes::fill(painter, handle, std::min(handle.width(), handle.height()) / 2, colour);
}

void paintProgress(QPainter& painter, const QStyleOptionProgressBar& option) {
    const AppTheme& theme = WindowTheme::current();
    const double height = Unit::pixels() * kProgress;
    QRectF groove = option.rect;
    groove = QRectF(groove.left(), groove.center().y() - height / 2, groove.width(), height);
    Shapes::fill(painter, groove, height / 2, asQColor(theme.lip));
    // Without a range the progress is unknown.
    const double range = static_cast<double>(option.maximum) - option.minimum;
    if (range <= 0)
        return;
    QRectF done = groove;
    done.setWidth(groove.width() * std::clamp((static_cast<double>(option.progress) - option.minimum) / range, 0., 1.));
    if (option.direction == Qt::RightToLeft)
        done.moveRight(groove.right());
    Shapes::fill(painter, done, height / 2, asQColor(theme.accent));
}

}  // namespace kinesta::FieldLook
