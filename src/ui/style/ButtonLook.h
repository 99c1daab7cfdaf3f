#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

/// Push buttons, tool buttons, combos and check boxes.
namespace kinesta::ButtonLook {

/// The property of a push button or combo that is narrower than its words: they wrap.
inline constexpr const char* kIsNarrow = "narrow";

QSize pushButtonSize(const QStyleOptionButton& option, const QWidget* widget);
void paintPushButton(QPainter& painter, const QStyleOptionButton& option, const QWidget* widget);
void paintPushButtonLabel(QPainter& painter, const QStyleOptionButton& option, const QWidget* widget,
                          bool showsMnemonic);

QSize toolButtonSize(const QStyleOptionToolButton& option, const QSize& contents);
void paintToolButton(QPainter& painter, const QStyleOptionToolButton& option, const QWidget* widget,
                     bool showsMnemonic);

QSize comboSize(const QStyleOptionComboBox& option, const QSize& contents, const QWidget* widget);
QRect comboPart(const QStyleOptionComboBox& option, QStyle::SubControl part);
void paintCombo(QPainter& painter, const QStyleOptionComboBox& option);
void paintComboLabel(QPainter& painter, const QStyleOptionComboBox& option, const QWidget* widget);

void paintCheckMark(QPainter& painter, const QStyleOption& option);

/// The corners of the control, for the ring around it.
double radius(const QWidget& widget);

}  // namespace kinesta::ButtonLook
