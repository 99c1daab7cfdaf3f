#pragma once

#include <QAbstractScrollArea>
#include <QWidget>

/// Widgets of Qt that are recognized by more than their class.
namespace kinesta::StockWidgets {

/// The frame around the open list of a combo.
inline bool isComboList(const QWidget* widget) {
    return widget != nullptr && widget->inherits("QComboBoxPrivateContainer");
}

inline bool isTip(const QWidget* widget) { return widget != nullptr && widget->inherits("QTipLabel"); }

/// A list or text with the edge of a field.
inline bool isField(const QWidget* widget) {
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget);
    return area != nullptr && area->frameShape() == QFrame::StyledPanel;
}

inline bool isBlended(const QWidget* widget) {
    return widget != nullptr && widget->testAttribute(Qt::WA_TranslucentBackground);
}

}  // namespace kinesta::StockWidgets
