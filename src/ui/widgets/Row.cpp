#include "ui/widgets/Row.h"

#include <QEvent>

#include "ui/widgets/FocusRing.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kInset = 16;
constexpr double kPadding = 10;
constexpr double kGap = 12;
constexpr double kGapBelow = 7;
constexpr double kHeight = 52;
/// The words keep at least this share of the row beside their control.
constexpr double kWordsShare = 0.4;

/// Whether the control is a switch, or several of which the last one is.
bool endsWithSwitch(const QWidget* control) {
    const QLayout* several = control != nullptr ? control->layout() : nullptr;
    if (several != nullptr && several->count() > 0)
        control = several->itemAt(several->count() - 1)->widget();
    return qobject_cast<const Switch*>(control) != nullptr;
}

}  // namespace

Row::Row(const QString& title, const QString& detail, QWidget* parent)
    : QWidget(parent),
      m_title(new Words(title, Words::Size::rowTitle)),
      m_detail(new Words(detail, Words::Size::detail)),
      m_line(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    auto* words = new QVBoxLayout;
    words->setSpacing(1);
    words->addStretch();
    words->addWidget(m_title);
    words->addWidget(m_detail);
    words->addStretch();
    m_line->addLayout(words, 1);
    m_detail->setVisible(!detail.isEmpty());
    measure();
}

void Row::setControl(QWidget* control) {
    m_control = control;
    m_line->addWidget(control, 0, Qt::AlignVCenter);
    m_title->setBuddy(control);
    measure();
}

void Row::measure() {
    const int padding = Unit::of(kPadding);
    // A switch ends where other controls do; the room for its ring stands out.
    const int atEnd = inset() - (endsWithSwitch(m_control) ? FocusRing::room() : 0);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    m_line->setContentsMargins(isMirrored ? atEnd : inset(), padding, isMirrored ? inset() : atEnd, padding);
    setMinimumHeight(Unit::of(kHeight));
    place();
}

void Row::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void Row::setWideControl(QWidget* control) {
    m_isWide = true;
    m_control = control;
    m_line->addWidget(control);
    m_title->setBuddy(control);
    place();
}

void Row::setDetail(const QString& detail) {
    m_detail->setText(detail);
    m_detail->setVisible(!detail.isEmpty());
}

int Row::inset() { return Unit::of(kInset); }

bool Row::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        place();  // the control may want more or less room than before
    return QWidget::event(event);
}

void Row::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

void Row::place() {
    const double inner = width() - 2 * inset();
    const int wanted = m_control != nullptr ? m_control->sizeHint().width() + Unit::of(kGap) : 0;
    const bool isBelow = m_isWide || wanted > inner * (1 - kWordsShare);
    const auto direction = isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    const int gap = Unit::of(isBelow ? kGapBelow : kGap);
    // What stays the same is not set: Qt answers even that with another request for a layout, and so without end.
    if (m_line->spacing() != gap)
        m_line->setSpacing(gap);
    if (m_line->direction() == direction)
        return;
    m_line->setDirection(direction);
    if (m_control != nullptr && !m_isWide)
        m_line->setAlignment(m_control, isBelow ? Qt::AlignLeading : Qt::AlignVCenter);
}

}  // namespace kinesta
