#include "ui/style/MenuLook.h"

#include <QComboBox>
#include <QMenu>
#include <QPainterPath>
#include <QStyle>
#include <algorithm>

#include "platform/qt/ThemePalette.h"
#include "ui/style/Shapes.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::MenuLook {
namespace {

constexpr double kMargin = 5;
constexpr double kPanelRadius = 10;
constexpr double kTipRadius = 6;
constexpr double kItemHeight = 28;
constexpr double kItemRadius = 6;
constexpr double kItemPadding = 10;
constexpr double kAboveWords = 4;
constexpr double kSeparator = 9;
constexpr double kBeforeShortcut = 24;

constexpr double kColumn = Shapes::kSymbol + Shapes::kSymbolGap;

void paintFrame(QPainter& painter, const QRect& box, double radius) {
    const AppTheme& theme = WindowTheme::current();
    Shapes::fill(painter, box, radius, asQColor(theme.surface));
    Shapes::edge(painter, box, radius, asQColor(theme.lip));
}

QRegion shape(const QRect& box, double radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return {path.toFillPolygon().toPolygon()};
}

bool isSeparator(const QStyleOptionMenuItem& option) { return option.menuItemType == QStyleOptionMenuItem::Separator; }

bool isMenu(const QStyleOptionMenuItem& option) { return option.menuItemType == QStyleOptionMenuItem::SubMenu; }

/// Room for symbols before the words. Menus tell it for all entries; entries of combos have a symbol each or none.
bool hasIconColumn(const QStyleOptionMenuItem& option, const QWidget* widget) {
    return !option.icon.isNull() || (option.maxIconWidth > 0 && qobject_cast<const QMenu*>(widget) != nullptr);
}

void paintSeparator(QPainter& painter, const QStyleOptionMenuItem& option) {
    const int padding = Unit::of(kItemPadding);
    const QRect line = option.rect.adjusted(padding, 0, -padding, 0);
    const AppTheme& theme = WindowTheme::current();
    if (option.text.isEmpty())
        return painter.fillRect(QRect(line.left(), line.center().y(), line.width(), 1), asQColor(theme.border));
    painter.setFont(Unit::font(0.92, QFont::DemiBold));
    painter.setPen(asQColor(theme.text2));
    const Qt::Alignment align = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    Shapes::text(painter, line, align, option.text, false);
}

}  // namespace

int margin() { return Unit::of(kMargin); }

void paintPanel(QPainter& painter, const QRect& box) { paintFrame(painter, box, Unit::of(kPanelRadius)); }
void paintTip(QPainter& painter, const QRect& box) { paintFrame(painter, box, Unit::of(kTipRadius)); }
QRegion panelShape(const QRect& box) { return shape(box, Unit::of(kPanelRadius)); }
QRegion tipShape(const QRect& box) { return shape(box, Unit::of(kTipRadius)); }

QSize itemSize(const QStyleOptionMenuItem& option, const QSize& contents, const QWidget* widget) {
    if (isSeparator(option) && option.text.isEmpty())
        return {contents.width(), Unit::of(kSeparator)};
    int width = contents.width() + 2 * Unit::of(kItemPadding);
    if (option.menuHasCheckableItems)
        width += Unit::of(kColumn);
    if (hasIconColumn(option, widget))
        width += Unit::of(kColumn);
    if (isMenu(option))
        width += Unit::of(kColumn);
    if (option.text.contains(QLatin1Char('\t')))
        width += Unit::of(kBeforeShortcut);
    return {width, std::max(Unit::of(kItemHeight), option.fontMetrics.height() + 2 * Unit::of(kAboveWords))};
}

void paintItem(QPainter& painter, const QStyleOptionMenuItem& option, const QWidget* widget, bool showsMnemonic) {
    if (isSeparator(option))
        return paintSeparator(painter, option);
    const AppTheme& theme = WindowTheme::current();
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool isChosen = isEnabled && option.state.testFlag(QStyle::State_Selected);
    if (qobject_cast<const QComboBox*>(widget) != nullptr)  // its list has filled the place with the window's colour
        painter.fillRect(option.rect, asQColor(theme.surface));
    if (isChosen)
        Shapes::fill(painter, option.rect, Unit::of(kItemRadius), asQColor(theme.accent));
    const QColor words = asQColor(!isEnabled ? theme.line : isChosen ? theme.onAccent : theme.text);

    const int padding = Unit::of(kItemPadding);
    const int side = Unit::of(Shapes::kSymbol);
    const int column = Unit::of(kColumn);
    QRect box = option.rect.adjusted(padding, 0, -padding, 0);
    const auto place = [&](int x) {
        return Shapes::placed(option, QRect(x, box.top() + (box.height() - side) / 2, side, side));
    };
    if (option.menuHasCheckableItems) {
        if (option.checked)
            Shapes::symbol(painter, WindowSymbol::tick, place(box.left()), words);
        box.setLeft(box.left() + column);
    }
    if (hasIconColumn(option, widget)) {
        if (!option.icon.isNull())
            Shapes::icon(painter, option.icon, place(box.left()), isEnabled, words);
        box.setLeft(box.left() + column);
    }
    if (isMenu(option)) {
        const bool isMirrored = option.direction == Qt::RightToLeft;
        Shapes::symbol(painter, isMirrored ? WindowSymbol::chevronLeft : WindowSymbol::chevronRight,
                       place(box.right() + 1 - side + Unit::of(2)), words);
        box.setRight(box.right() - column);
    }
    painter.setFont(option.font);
    painter.setPen(words);
    const qsizetype tab = option.text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        const QString shortcut = option.text.mid(tab + 1);
        const int width = painter.fontMetrics().horizontalAdvance(shortcut);
        const QRect end = box.adjusted(box.width() - width, 0, 0, 0);
        painter.setPen(isEnabled && !isChosen ? asQColor(theme.text2) : words);
        painter.drawText(Shapes::placed(option, end), Qt::AlignCenter | Qt::TextSingleLine, shortcut);
        painter.setPen(words);
        box.setRight(end.left() - padding);
    }
    const Qt::Alignment align = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    Shapes::text(painter, Shapes::placed(option, box), align, option.text.left(tab), showsMnemonic);
}

void paintScroller(QPainter& painter, const QStyleOptionMenuItem& option) {
    painter.fillRect(option.rect, asQColor(WindowTheme::current().surface));
    const int side = Unit::of(Shapes::kSymbol);
    const QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {side, side}, option.rect);
    const double across = Unit::pixels() * 3.5;
    const double down = across / 2 * (option.state.testFlag(QStyle::State_DownArrow) ? 1 : -1);
    const QPointF middle = QRectF(place).center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(asQColor(WindowTheme::current().text2), 1.5 * Unit::pixels(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(
        QPolygonF{{middle + QPointF(-across, -down), middle + QPointF(0, down), middle + QPointF(across, -down)}});
}

}  // namespace kinesta::MenuLook
