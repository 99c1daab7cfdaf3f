#include "ui/action/ArgumentDelegate.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/action/TextField.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/FieldUndo.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kHeight = 34;
constexpr double kSide = 10;
constexpr double kSymbol = 14;
constexpr double kText = 32;
constexpr double kRemove = 34;
constexpr double kSize = 0.92;

QFont mono() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(Unit::font(kSize).pixelSize());
    return font;
}

QRect mirrored(const QRect& row, Qt::LayoutDirection direction, const QRect& box) {
    return QStyle::visualRect(direction, row, box);
}

QRect textBox(const QRect& row, Qt::LayoutDirection direction) {
    return mirrored(row, direction, row.adjusted(Unit::of(kText), 0, -Unit::of(kRemove), 0));
}

QRectF symbolBox(const QRect& box) {
    const double side = Unit::of(kSymbol);
    return {box.center().x() + 0.5 - side / 2, box.center().y() + 0.5 - side / 2, side, side};
}

}  // namespace

int ArgumentDelegate::rowHeight() { return Unit::of(kHeight); }

QRect ArgumentDelegate::removeBox(const QRect& row, Qt::LayoutDirection direction) {
    return mirrored(row, direction, row.adjusted(row.width() - Unit::of(kRemove), 0, 0, 0));
}

QSize ArgumentDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const {
    return {0, rowHeight()};
}

void ArgumentDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const AppTheme& theme = WindowTheme::current();
    painter->save();
    if ((option.state & QStyle::State_Selected) != 0)
        painter->fillRect(option.rect, asQColor(theme.accentSoft));
    if (index.row() > 0)
        painter->fillRect(QRect(option.rect.topLeft(), QSize(option.rect.width(), 1)), asQColor(theme.border));
    const int side = Unit::of(kSide);
    const QRect grip =
        mirrored(option.rect, option.direction,
                 QRect(option.rect.left() + side, option.rect.top(), Unit::of(kSymbol), option.rect.height()));
    PicturePainter::paint(*painter, symbolBox(grip), windowSymbol(WindowSymbol::grip), asQColor(theme.line));
    PicturePainter::paint(*painter, symbolBox(removeBox(option.rect, option.direction)),
                          windowSymbol(WindowSymbol::clear), asQColor(theme.text));
    painter->setFont(mono());
    painter->setPen(asQColor(theme.text));
    painter->setLayoutDirection(Qt::LeftToRight);
    const QRect box = textBox(option.rect, option.direction);
    const QString text =
        QFontMetrics(painter->font()).elidedText(index.data().toString(), Qt::ElideMiddle, box.width());
    painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    painter->restore();
}

QWidget* ArgumentDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                        const QModelIndex& /*index*/) const {
    auto* field = new TextField(tr("Argument"), TextField::Form::code, parent);
    field->setFont(mono());
    field->setFrame(false);
    FieldUndo::setRecorded(*field, false);  // the list does not follow while it is typed in
    // Each keystroke is saved.
    connect(field, &TextField::typed, this,
            [self = const_cast<ArgumentDelegate*>(this), field] { Q_EMIT self->commitData(field); });
    return field;
}

void ArgumentDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    // Also called after each keystroke, when the text is the same and the cursor must stay.
    static_cast<TextField*>(editor)->follow(index.data(Qt::EditRole).toString());
}

void ArgumentDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& /*index*/) const {
    editor->setGeometry(textBox(option.rect, option.direction).adjusted(-2, 2, 0, -2));
}

}  // namespace kinesta
