#include "ui/style/ButtonLook.h"

#include <QCheckBox>
#include <QComboBox>
#include <QToolButton>
#include <algorithm>

#include "platform/qt/ThemePalette.h"
#include "ui/style/FieldLook.h"
#include "ui/style/Shapes.h"
#include "ui/widgets/Ground.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::ButtonLook {
namespace {

constexpr double kPadding = 14;
constexpr double kLeastPadding = 4;
constexpr double kToolSide = 28;
constexpr double kToolRadius = 7;
constexpr double kToolPadding = 10;
constexpr double kLinkHeight = 24;
constexpr double kSmallRadius = 5;
constexpr double kBesideTick = 6;
constexpr double kAboveWords = 6;

Ground::State ground(const QStyleOption& option) {
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    return {.isDown = option.state.testFlag(QStyle::State_Sunken) || option.state.testFlag(QStyle::State_On),
            .isHovered = isEnabled && option.state.testFlag(QStyle::State_MouseOver)};
}

/// Accent, nearer to the words of the window under the pointer and while held down.
QColor primaryColour(const Ground::State& state, const AppTheme& theme) {
    const double share = state.isDown ? 0.2 : state.isHovered ? 0.1 : 0;
    return Shapes::mixed(asQColor(theme.text), asQColor(theme.accent), share);
}

QColor wordColour(const QStyleOption& option, const QWidget* widget) {
    const AppTheme& theme = WindowTheme::current();
    if (!option.state.testFlag(QStyle::State_Enabled))
        return asQColor(theme.line);
    if (Shapes::has(widget, "primary"))
        return asQColor(theme.onAccent);
    if (Shapes::has(widget, "destructive"))
        return asQColor(theme.danger);
    // A toast is dark in both themes and has a palette of its own.
    return Shapes::has(widget, "link") ? option.palette.color(QPalette::Link) : asQColor(theme.text);
}

QFont wordFont(const QWidget* widget) {
    return Shapes::font(widget, Shapes::has(widget, "primary") ? QFont::DemiBold : QFont::Medium);
}

int controlHeight(const QFontMetrics& metrics) {
    return std::max(Unit::of(Shapes::kControlHeight), metrics.height() + 2 * Unit::of(kAboveWords));
}

struct Label {
    const QIcon& icon;
    const QString& text;
    bool hasChevrons = false;
    bool showsMnemonic = false;
    /// At the beginning instead of in the middle.
    bool isLeading = false;
    bool mayWrap = false;
};

int width(const Label& label, const QFontMetrics& metrics) {
    const int symbol = label.icon.isNull() ? 0 : Unit::of(Shapes::kSymbol);
    const int words = label.text.isEmpty() ? 0 : metrics.size(Qt::TextShowMnemonic, label.text).width();
    const int gap = symbol > 0 && words > 0 ? Unit::of(Shapes::kSymbolGap) : 0;
    return symbol + gap + words;
}

int chevronsWidth() { return Unit::of(Shapes::kChevrons + Shapes::kChevronsGap); }

/// Icon and words in `box`, in the font of the painter.
void paintLabel(QPainter& painter, const QStyleOption& option, QRect box, const Label& label, const QColor& colour) {
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    if (label.hasChevrons) {
        const int side = Unit::of(Shapes::kChevrons);
        const QRect place(box.right() + 1 - side, box.center().y() - (side - 1) / 2, side, side);
        Shapes::symbol(painter, WindowSymbol::chevrons, Shapes::placed(option, place), colour);
        box.setRight(box.right() - chevronsWidth());
    }
    const int whole = std::min(width(label, painter.fontMetrics()), box.width());
    if (!label.isLeading)
        box.setLeft(box.left() + (box.width() - whole) / 2);
    if (!label.icon.isNull()) {
        const int side = Unit::of(Shapes::kSymbol);
        const QRect place(box.left(), box.top() + (box.height() - side) / 2, side, side);
        Shapes::icon(painter, label.icon, Shapes::placed(option, place), isEnabled, colour);
        box.setLeft(box.left() + side + Unit::of(Shapes::kSymbolGap));
    }
    painter.setPen(colour);
    const Qt::Alignment align = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    if (label.mayWrap && painter.fontMetrics().size(Qt::TextShowMnemonic, label.text).width() > box.width()) {
        const int mnemonic = label.showsMnemonic ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
        const int across = label.isLeading ? static_cast<int>(align.toInt()) : Qt::AlignCenter;
        painter.drawText(Shapes::placed(option, box), across | mnemonic | Qt::TextWordWrap, label.text);
        return;
    }
    Shapes::text(painter, Shapes::placed(option, box), align, label.text, label.showsMnemonic);
}

int heightOfWords(const QString& text, int width, const QFontMetrics& metrics) {
    const QRect room(0, 0, std::max(width, 1), QWIDGETSIZE_MAX);
    return metrics.boundingRect(room, Qt::TextWordWrap | Qt::TextShowMnemonic, text).height();
}

Label labelOf(const QStyleOptionButton& option) {
    return {
        .icon = option.icon, .text = option.text, .hasChevrons = option.features.testFlag(QStyleOptionButton::HasMenu)};
}

bool isBare(const QStyleOption& option) { return option.state.testFlag(QStyle::State_AutoRaise); }

/// Not on bare buttons: their symbol says that there is more.
bool hasChevrons(const QStyleOptionToolButton& option) {
    return option.features.testFlag(QStyleOptionToolButton::HasMenu) && !isBare(option);
}

QString words(const QStyleOptionToolButton& option) {
    const bool isIconOnly = option.toolButtonStyle == Qt::ToolButtonIconOnly && !option.icon.isNull();
    return isIconOnly ? QString() : option.text;
}

}  // namespace

double radius(const QWidget& widget) {
    if (Shapes::has(&widget, "link") || qobject_cast<const QCheckBox*>(&widget) != nullptr)
        return Unit::of(kSmallRadius);
    const auto* tool = qobject_cast<const QToolButton*>(&widget);
    return Unit::of(tool != nullptr && tool->autoRaise() ? kToolRadius : Shapes::kRadius);
}

QSize pushButtonSize(const QStyleOptionButton& option, const QWidget* widget) {
    const QFontMetrics metrics(wordFont(widget));
    const Label label = labelOf(option);
    const int inner = width(label, metrics) + (label.hasChevrons ? chevronsWidth() : 0);
    const bool isLink = Shapes::has(widget, "link");
    const int padding = isLink ? 0 : Unit::of(kPadding);
    const int height = isLink ? std::max(Unit::of(kLinkHeight), metrics.height()) : controlHeight(metrics);
    const int missing = Shapes::has(widget, kIsNarrow) ? inner + 2 * padding - widget->width() : 0;
    if (missing <= 0)
        return {inner + 2 * padding, height};
    // The words wrap in the width that there is, with less room around them.
    const int words = metrics.size(Qt::TextShowMnemonic, label.text).width();
    const int room = words - missing + 2 * (padding - std::min(padding, Unit::of(kLeastPadding)));
    return {inner + 2 * padding, height + heightOfWords(label.text, room, metrics) - metrics.height()};
}

void paintPushButton(QPainter& painter, const QStyleOptionButton& option, const QWidget* widget) {
    const AppTheme& theme = WindowTheme::current();
    const Ground::State state = ground(option);
    const bool isFlat = option.features.testFlag(QStyleOptionButton::Flat) && !state.isDown && !state.isHovered;
    if (Shapes::has(widget, "link") || isFlat)
        return;
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool isPrimary = Shapes::has(widget, "primary") && isEnabled;
    const double corner = Unit::of(Shapes::kRadius);
    QColor colour = Ground::controlColour(state, theme);
    if (isPrimary)
        colour = primaryColour(state, theme);
    else if (Shapes::has(widget, "destructive") && isEnabled && (state.isDown || state.isHovered))
        // Danger could not be read on the grounds of other buttons.
        colour = Shapes::mixed(asQColor(theme.danger), asQColor(theme.dangerSoft), state.isDown ? 0.08 : 0);
    Shapes::fill(painter, option.rect, corner, colour);
    // What Return presses.
    if (option.features.testFlag(QStyleOptionButton::DefaultButton) && !isPrimary)
        Shapes::edge(painter, option.rect, corner, asQColor(theme.line));
}

void paintPushButtonLabel(QPainter& painter, const QStyleOptionButton& option, const QWidget* widget,
                          bool showsMnemonic) {
    const bool isLink = Shapes::has(widget, "link");
    QFont font = wordFont(widget);
    if (isLink && ground(option).isHovered)
        font.setUnderline(true);
    painter.setFont(font);
    Label label = labelOf(option);
    label.showsMnemonic = showsMnemonic;
    label.isLeading = isLink || label.hasChevrons;
    label.mayWrap = true;
    // As much as its size hint has; in a narrower button the words come first.
    const int padding = isLink ? 0 : Unit::of(kPadding);
    const int inner = width(label, painter.fontMetrics()) + (label.hasChevrons ? chevronsWidth() : 0);
    const int side = std::clamp((option.rect.width() - inner) / 2, std::min(padding, Unit::of(kLeastPadding)), padding);
    paintLabel(painter, option, option.rect.adjusted(side, 0, -side, 0), label, wordColour(option, widget));
}

QSize toolButtonSize(const QStyleOptionToolButton& option, const QSize& contents) {
    const QString text = words(option);
    const bool isSquare = text.isEmpty() && !hasChevrons(option);
    if (isSquare) {
        const int side =
            std::max(Unit::of(kToolSide), option.iconSize.height() + Unit::of(kToolSide - Shapes::kSymbol));
        return {side, side};
    }
    if (option.toolButtonStyle == Qt::ToolButtonTextUnderIcon)
        return contents + Unit::of(kToolPadding, kToolPadding);
    const QFontMetrics metrics(Shapes::font(nullptr, QFont::Medium));
    const int inner = width({.icon = option.icon, .text = text}, metrics);
    return {inner + 2 * Unit::of(kToolPadding) + (hasChevrons(option) ? chevronsWidth() : 0),
            isBare(option) ? std::max(Unit::of(kToolSide), metrics.height()) : controlHeight(metrics)};
}

void paintToolButton(QPainter& painter, const QStyleOptionToolButton& option, const QWidget* widget,
                     bool showsMnemonic) {
    const AppTheme& theme = WindowTheme::current();
    const Ground::State state = ground(option);
    if (!isBare(option) || state.isDown || state.isHovered)
        Shapes::fill(painter, option.rect, Unit::of(isBare(option) ? kToolRadius : Shapes::kRadius),
                     Ground::controlColour(state, theme));
    const QColor colour = wordColour(option, widget);
    const QString text = words(option);
    painter.setFont(Shapes::font(widget, QFont::Medium));
    if (text.isEmpty() && !hasChevrons(option)) {
        const QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, option.iconSize, option.rect);
        return Shapes::icon(painter, option.icon, place, option.state.testFlag(QStyle::State_Enabled), colour);
    }
    const int side = Unit::of(kToolPadding);
    paintLabel(painter, option, option.rect.adjusted(side, 0, -side, 0),
               {.icon = option.icon,
                .text = text,
                .hasChevrons = hasChevrons(option),
                .showsMnemonic = showsMnemonic,
                .isLeading = hasChevrons(option)},
               colour);
}

QSize comboSize(const QStyleOptionComboBox& option, const QSize& contents, const QWidget* widget) {
    // The words are a little heavier than those measured, and the list needs room for its tick.
    const int inner = contents.width() + contents.width() / 24 + Unit::of(kBesideTick);
    const int around = 2 * Unit::of(kPadding) + chevronsWidth();
    const int height = std::max(controlHeight(option.fontMetrics), contents.height());
    const auto* combo = qobject_cast<const QComboBox*>(widget);
    if (combo == nullptr || !Shapes::has(widget, kIsNarrow))
        return {inner + around, height};
    // The longest words wrap in the width that there is, so that choosing moves nothing.
    const QFontMetrics metrics(Shapes::font(widget, QFont::Medium));
    const int line = metrics.height();
    int words = line;
    for (int i = 0; i < combo->count(); ++i) {
        const int symbol = combo->itemIcon(i).isNull() ? 0 : Unit::of(Shapes::kSymbol + Shapes::kSymbolGap);
        words = std::max(words, heightOfWords(combo->itemText(i), combo->width() - around - symbol, metrics));
    }
    return {inner + around, height + words - line};
}

QRect comboPart(const QStyleOptionComboBox& option, QStyle::SubControl part) {
    const QRect& box = option.rect;
    const int padding = Unit::of(kPadding);
    switch (part) {
        case QStyle::SC_ComboBoxFrame:
        case QStyle::SC_ComboBoxListBoxPopup:
            return box;
        case QStyle::SC_ComboBoxArrow:
            return Shapes::placed(option, box.adjusted(box.width() - padding - chevronsWidth(), 0, 0, 0));
        case QStyle::SC_ComboBoxEditField:
            return Shapes::placed(option, box.adjusted(padding, 1, -padding - chevronsWidth(), -1));
        default:
            return {};
    }
}

void paintCombo(QPainter& painter, const QStyleOptionComboBox& option) {
    if (!option.editable)
        return Shapes::fill(painter, option.rect, Unit::of(Shapes::kRadius),
                            Ground::controlColour(ground(option), WindowTheme::current()));
    FieldLook::paintField(painter, option, false);
    const QRect end = option.rect.adjusted(0, 0, -Unit::of(kPadding), 0);
    paintLabel(painter, option, end, {.icon = {}, .text = {}, .hasChevrons = true}, wordColour(option, nullptr));
}

void paintComboLabel(QPainter& painter, const QStyleOptionComboBox& option, const QWidget* widget) {
    if (option.editable)
        return;
    const int padding = Unit::of(kPadding);
    painter.setFont(Shapes::font(widget, QFont::Medium));
    paintLabel(painter, option, option.rect.adjusted(padding, 0, -padding, 0),
               {.icon = option.currentIcon,
                .text = option.currentText,
                .hasChevrons = true,
                .isLeading = true,
                .mayWrap = true},
               wordColour(option, nullptr));
}

void paintCheckMark(QPainter& painter, const QStyleOption& option) {
    const AppTheme& theme = WindowTheme::current();
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const bool isOn = option.state.testFlag(QStyle::State_On);
    const bool isPartly = option.state.testFlag(QStyle::State_NoChange);
    const double corner = Unit::of(kSmallRadius);
    if (!isOn && !isPartly) {
        const bool isTouched = isEnabled && (ground(option).isDown || ground(option).isHovered);
        Shapes::fill(painter, option.rect, corner, isTouched ? asQColor(theme.control) : asQColor(theme.surface));
        return Shapes::edge(painter, option.rect, corner, asQColor(isEnabled ? theme.line : theme.lip), 1.5);
    }
    Shapes::fill(painter, option.rect, corner,
                 isEnabled ? primaryColour({.isDown = option.state.testFlag(QStyle::State_Sunken),
                                            .isHovered = option.state.testFlag(QStyle::State_MouseOver)},
                                           theme)
                           : asQColor(theme.line));
    const QColor mark = asQColor(isEnabled ? theme.onAccent : theme.surface);
    if (isOn) {
        const int inset = Unit::of(2);
        return Shapes::symbol(painter, WindowSymbol::tick, option.rect.adjusted(inset, inset, -inset, -inset), mark);
    }
    const QRectF dash(option.rect.left() + Unit::of(5), option.rect.top() + option.rect.height() / 2.0 - 1,
                      option.rect.width() - 2 * Unit::of(5), 2);
    Shapes::fill(painter, dash, 1, mark);
}

}  // namespace kinesta::ButtonLook
