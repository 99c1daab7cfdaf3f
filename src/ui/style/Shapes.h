#pragma once

#include <QIcon>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "app/AppTheme.h"
#include "ui/pictures/WindowSymbol.h"

namespace kinesta::Shapes {

/// In units.
inline constexpr double kRadius = 8;
inline constexpr double kControlHeight = 32;
inline constexpr double kSymbol = 16;
inline constexpr double kSymbolGap = 7;
inline constexpr double kChevrons = 14;
inline constexpr double kChevronsGap = 8;

bool has(const QWidget* widget, const char* property);
QFont font(const QWidget* widget, QFont::Weight weight);
QColor mixed(const QColor& colour, const QColor& ground, double share);

void fill(QPainter& painter, const QRectF& box, double radius, const QColor& colour);
/// A line inside the edge of `box`.
void edge(QPainter& painter, const QRectF& box, double radius, const QColor& colour, double width = 1);

void symbol(QPainter& painter, WindowSymbol symbol, const QRect& box, const QColor& colour);
/// Masks in the colour, other icons as they are.
void icon(QPainter& painter, const QIcon& icon, const QRect& box, bool isEnabled, const QColor& colour);

/// One line that is shortened where it does not fit.
void text(QPainter& painter, const QRect& box, Qt::Alignment align, const QString& text, bool showsMnemonic);

/// A part of `option.rect` as from left to right, mirrored where the option says so.
QRect placed(const QStyleOption& option, const QRect& part);

}  // namespace kinesta::Shapes
