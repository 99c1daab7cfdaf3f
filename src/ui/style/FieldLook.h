#pragma once

#include <QPainter>
#include <QStyleOption>

/// Fields, sliders, scroll bars and bars of progress.
namespace kinesta::FieldLook {

/// The padding that the words of a field have on each side.
int padding();
/// The ground and edge of anything that words are typed into.
void paintField(QPainter& painter, const QStyleOption& option, bool hasError);

QRect sliderPart(const QStyleOptionSlider& option, QStyle::SubControl part);
void paintSlider(QPainter& painter, const QStyleOptionSlider& option, bool hasRing);

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);
void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option);

void paintProgress(QPainter& painter, const QStyleOptionProgressBar& option);

}  // namespace kinesta::FieldLook
