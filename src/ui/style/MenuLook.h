#pragma once

#include <QPainter>
#include <QRegion>
#include <QStyleOption>
#include <QWidget>

/// Menus, the lists of combos and tool tips.
namespace kinesta::MenuLook {

/// Between the edge of a menu and its entries.
int margin();
void paintPanel(QPainter& painter, const QRect& box);
void paintTip(QPainter& painter, const QRect& box);
/// The shape of a menu or tool tip, for a window that cannot be translucent.
QRegion panelShape(const QRect& box);
QRegion tipShape(const QRect& box);

/// `contents` is as large as the words.
QSize itemSize(const QStyleOptionMenuItem& option, const QSize& contents, const QWidget* widget);
void paintItem(QPainter& painter, const QStyleOptionMenuItem& option, const QWidget* widget, bool showsMnemonic);
void paintScroller(QPainter& painter, const QStyleOptionMenuItem& option);

}  // namespace kinesta::MenuLook
