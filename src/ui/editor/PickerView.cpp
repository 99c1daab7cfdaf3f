#include "ui/editor/PickerView.h"

#include <QVBoxLayout>
#include <utility>

#include "support/Translation.h"
#include "ui/widgets/PadPainter.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/Words.h"

namespace kinesta {
namespace {

constexpr double kGap = 7;
constexpr double kPicture = 32;
constexpr double kCornerPicture = 40;
constexpr double kCornerHeight = 36;
/// The figure of a pattern in the middle of its picture.
constexpr double kFigure = 26;

int columnsOf(GesturePicker picker) {
    switch (picker) {
        case GesturePicker::repetition:
        case GesturePicker::side:
            return 3;
        case GesturePicker::fingers:
        case GesturePicker::corner:
            return 4;
        case GesturePicker::pattern:
            return 5;
    }
    return 1;
}

Tile* patternTile(const QString& title, DrawPattern pattern) {
    return new Tile(Tile::Form::flat, {}, title, {kPicture, kPicture},
                    [pattern](QPainter& painter, QPointF at, const AppTheme& theme) {
                        const double inset = Unit::of(kPicture) - Unit::of(kFigure);
                        PadPainter::paint(painter, at + QPointF(inset, inset) / 2,
                                          PadDrawing::figure(pattern, Unit::of(kFigure)), theme);
                    });
}

Tile* cornerTile(const QString& title, AnchorCorner corner) {
    PadGesture gesture{GestureKind::anchorDraw};
    gesture.corner = corner;
    const double above = (kCornerHeight - kCornerPicture * PadGeometry::padHeight) / 2;
    return new Tile(Tile::Form::flat, {}, title, {kCornerPicture, kCornerHeight},
                    [gesture, above](QPainter& painter, QPointF at, const AppTheme& theme) {
                        PadPainter::paintStill(painter, at + QPointF(0, Unit::of(above)), gesture,
                                               Unit::of(kCornerPicture), theme);
                    });
}

Tile* tileOf(GesturePicker picker, const PickerChoice& choice) {
    const QString title = QString::fromStdString(choice.title);
    if (picker == GesturePicker::corner)
        return cornerTile(title, static_cast<AnchorCorner>(choice.value));
    if (picker == GesturePicker::pattern)
        return patternTile(title, static_cast<DrawPattern>(choice.value));
    return Tile::ofGesture(Tile::Form::flat, title, title, kPicture, {});
}

}  // namespace

PickerView::PickerView(GesturePicker picker)
    : m_picker(picker),
      m_choices(choicesOf(picker)),
      m_tiles(new TileGroup(QString::fromStdString(translated(title(picker))), columnsOf(picker))) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Unit::of(kGap));
    column->addWidget(new Words(m_tiles->accessibleName(), Words::Size::caption));
    column->addWidget(m_tiles);
    for (const PickerChoice& choice : m_choices)
        m_tiles->addTile(choice.value, tileOf(picker, choice));
}

void PickerView::show(const GestureRule& rule) {
    const PadGesture gesture = PadGesture::of(rule);
    if (std::exchange(m_shown, gesture) == gesture)
        return;
    m_tiles->setChosen(pickedValue(rule, m_picker));
    if (m_picker == GesturePicker::corner || m_picker == GesturePicker::pattern)
        return;
    for (std::size_t i = 0; i < m_choices.size(); ++i) {
        GestureRule picked = rule;
        pick(picked, m_picker, m_choices[i].value);
        m_tiles->tile(i)->setGesture(kPicture, PadGesture::of(completed(picked)));
    }
}

}  // namespace kinesta
