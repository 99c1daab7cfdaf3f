#include "ui/sidebar/RuleDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

#include "platform/qt/PicturePainter.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/PadGesture.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/sidebar/RowPainter.h"
#include "ui/widgets/PadPainter.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kHeight = 56;
constexpr double kPadding = 10;
constexpr double kGap = 10;
constexpr double kPad = 32;
constexpr double kMark = 14;
constexpr double kMarkGap = 6;
constexpr double kSwitchWidth = 31;
constexpr double kSwitchHeight = 17;
constexpr double kSwitchArea = 44;
constexpr double kDetail = 0.92;
constexpr double kNameLine = 18;
constexpr double kDetailLine = 16;
/// Beside a scroll bar, which takes most of the inset.
constexpr int kLeastInset = 2;

int nameHeight(const QFontMetrics& metrics) { return std::max(Unit::of(kNameLine), metrics.height()); }

int detailHeight(const QFontMetrics& metrics) { return std::max(Unit::of(kDetailLine), metrics.height()); }

QFont nameFont(bool isStrong) { return Unit::font(1, isStrong ? QFont::DemiBold : QFont::Medium); }

/// Keeps what has a direction of its own, such as an address or the keys of a shortcut, apart from the words around it.
QString isolated(const std::string& text) {
    return QChar(0x2068) + QString::fromStdString(text) + QChar(0x2069);  // first strong isolate … pop
}

}  // namespace

/// Where things stand in a row, and its words.
struct RuleDelegate::Parts {
    QRect row;
    QRect pad;
    QRect nameLine;
    QRect detailLine;
    QRect mark;
    QRect toggle;
    QFont nameFont;
    QString name;
    QString detail;
    bool isElided = false;
};

RuleDelegate::RuleDelegate(Sources sources, QObject* parent) : QAbstractItemDelegate(parent), m_sources(sources) {}

int RuleDelegate::rowHeight() {
    const int words = nameHeight(QFontMetrics(nameFont(true))) + detailHeight(QFontMetrics(Unit::font(kDetail)));
    return std::max(Unit::of(kHeight), words + Unit::of(kPadding));
}

QRect RuleDelegate::rowBox(const QStyleOptionViewItem& option) const {
    int atEnd = RowPainter::inset();
    if (const auto* view = qobject_cast<const QAbstractItemView*>(option.widget))
        if (const QScrollBar* bar = view->verticalScrollBar(); bar->isVisible())
            atEnd = std::max(kLeastInset, atEnd - bar->width());
    const QRect box(option.rect.left() + RowPainter::inset(), option.rect.top(),
                    option.rect.width() - RowPainter::inset() - atEnd, rowHeight());
    return QStyle::visualRect(option.direction, option.rect, box);
}

QRect RuleDelegate::switchArea(const QStyleOptionViewItem& option) const {
    const QRect row = rowBox(option);
    const int width = Unit::of(kSwitchArea);
    const int atEnd = Unit::of(kPadding) - (width - Unit::of(kSwitchWidth)) / 2;
    return QStyle::visualRect(option.direction, row, {row.right() + 1 - atEnd - width, row.top(), width, row.height()});
}

void RuleDelegate::setRoomBelow(const QModelIndex& index, int room) {
    m_roomy = index;
    m_room = room;
}

RuleDelegate::Parts RuleDelegate::partsOf(const QStyleOptionViewItem& option, const RuleRow& row) const {
    Parts parts;
    parts.row = rowBox(option);
    const int padding = Unit::of(kPadding);
    const auto centred = [&parts](int x, int width, int height) {
        return QRect(x, parts.row.top() + (parts.row.height() - height) / 2, width, height);
    };
    parts.pad = centred(parts.row.left() + padding, Unit::of(kPad), Unit::of(kPad * PadGeometry::padHeight));
    const int switchWidth = Unit::of(kSwitchWidth);
    parts.toggle = centred(parts.row.right() + 1 - padding - switchWidth, switchWidth, Unit::of(kSwitchHeight));

    const GestureRule* rule = m_sources.rules.rule(row.id);
    parts.nameFont = nameFont(row.isEnabled && rule != nullptr && !rule->name.empty());
    const QFontMetrics nameMetrics(parts.nameFont);
    const QFontMetrics detailMetrics(Unit::font(kDetail));
    const int left = parts.pad.right() + 1 + Unit::of(kGap);
    const int width = std::max(0, parts.toggle.left() - Unit::of(kGap) - left);
    const int top = parts.row.top() + (parts.row.height() - nameHeight(nameMetrics) - detailHeight(detailMetrics)) / 2;
    parts.nameLine = {left, top, width, nameHeight(nameMetrics)};
    parts.detailLine = {left, parts.nameLine.bottom() + 1, width, detailHeight(detailMetrics)};

    const int markRoom = row.mark == RuleMark::none ? 0 : Unit::of(kMarkGap + kMark);
    parts.name = QString::fromStdString(row.name);
    const int nameWidth = nameMetrics.horizontalAdvance(parts.name) + 1;
    parts.nameLine.setWidth(std::min(width - markRoom, nameWidth));
    const int side = Unit::of(kMark);
    parts.mark = {left + parts.nameLine.width() + Unit::of(kMarkGap),
                  parts.nameLine.top() + (parts.nameLine.height() - side) / 2, side, side};

    parts.detail = option.direction == Qt::LeftToRight
                       ? RuleItemModel::detail(row)
                       : RuleItemModel::tr("%1 · %2").arg(isolated(row.gesture), isolated(row.action));
    parts.isElided = parts.nameLine.width() < nameWidth || detailMetrics.horizontalAdvance(parts.detail) > width;
    for (QRect* part : {&parts.pad, &parts.nameLine, &parts.detailLine, &parts.mark, &parts.toggle})
        *part = QStyle::visualRect(option.direction, parts.row, *part);
    return parts;
}

void RuleDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const AppTheme& theme = WindowTheme::current();
    const RuleRow& row = m_sources.rows.row(index.row());
    const Parts parts = partsOf(option, row);
    painter->save();
    RowPainter::paintGround(*painter, parts.row,
                            {.isSelected = option.state.testFlag(QStyle::State_Selected),
                             .isHovered = option.state.testFlag(QStyle::State_MouseOver),
                             .isShown = m_sources.rules.selection().value() == WindowSelection::rule(row.id),
                             .direction = option.direction});
    if (const GestureRule* rule = m_sources.rules.rule(row.id))
        PadPainter::paintStill(*painter, parts.pad.topLeft(), PadGesture::of(*rule), parts.pad.width(), theme);
    painter->setPen(asQColor(parts.nameFont.weight() == QFont::DemiBold ? theme.text : theme.text2));
    RowPainter::paintWords(*painter, parts.nameLine, parts.nameFont, parts.name, option.direction);
    painter->setPen(asQColor(theme.text2));
    RowPainter::paintWords(*painter, parts.detailLine, Unit::font(kDetail), parts.detail, option.direction);
    if (row.mark != RuleMark::none) {
        const auto symbol = row.mark == RuleMark::clash ? WindowSymbol::clash : WindowSymbol::caution;
        PicturePainter::paint(*painter, parts.mark, windowSymbol(symbol), asQColor(theme.caution));
    }
    Switch::paint(*painter, parts.toggle,
                  {.position = m_sources.switches.position(row.id, row.isEnabled),
                   .isEnabled = true,
                   .direction = option.direction},
                  theme);
    if (option.state.testFlag(QStyle::State_HasFocus))
        m_sources.ring.paint(*painter, parts.row, RowPainter::radius());
    painter->restore();
}

QSize RuleDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    return {0, rowHeight() + (m_room > 0 && m_roomy == index ? m_room : 0)};
}

bool RuleDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return false;
    const RuleRow& row = m_sources.rows.row(index.row());
    const Parts parts = partsOf(option, row);
    QString text;
    if (row.mark != RuleMark::none && parts.mark.contains(event->pos()))
        text = QString::fromStdString(row.reason);
    else if (parts.isElided && parts.row.contains(event->pos()))
        text = QString::fromStdString(row.name) + QLatin1Char('\n') + RuleItemModel::detail(row);
    // A name may look like markup.
    QToolTip::showText(event->globalPos(),
                       text.isEmpty() ? text : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()), view,
                       parts.row);
    return true;
}

}  // namespace kinesta
