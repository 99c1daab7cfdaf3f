#include "ui/overview/MarkedRow.h"

#include <QEvent>

#include "ui/widgets/Card.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/TabOrder.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kPadding = 10;
constexpr double kGap = 12;
constexpr double kBeforeEnd = 16;
/// The words keep at least this much of the row.
constexpr double kWordsShare = 0.55;

}  // namespace

MarkedRow::MarkedRow(QWidget* mark, double height, QWidget* parent)
    : QWidget(parent),
      m_height(height),
      m_mark(mark),
      m_what(new Words({}, Words::Size::rowTitle)),
      m_why(new Words({}, Words::Size::detail)),
      m_remedy(new Words({}, Words::Size::detail)),
      m_line(new QHBoxLayout(this)),
      m_words(new QVBoxLayout) {
    setProperty(Card::kInsetLine, true);
    m_remedy->setForegroundRole(QPalette::WindowText);
    m_words->addStretch();
    for (Words* words : {m_what, m_why, m_remedy})
        m_words->addWidget(words);
    m_words->addStretch();
    m_line->addWidget(mark);
    m_line->addLayout(m_words, 1);
    setWords({}, {});
    measure();
}

void MarkedRow::setWords(const QString& what, const QString& why, const QString& remedy) {
    m_what->setText(what);
    m_why->setText(why);
    m_why->setVisible(!why.isEmpty());
    m_remedy->setText(remedy);
    m_remedy->setVisible(!remedy.isEmpty());
    place();
}

void MarkedRow::addBelow(QWidget* part) {
    m_hasBelow = true;
    m_words->insertWidget(m_words->count() - 1, part);
    TabOrder::place(*part);
    place();
}

void MarkedRow::setAtEnd(QWidget* part) {
    m_atEnd = part;
    m_isEndBelow = false;
    m_line->addWidget(part);
    place();
}

void MarkedRow::measure() {
    const int padding = Unit::of(kPadding);
    m_line->setContentsMargins(Row::inset(), padding, Row::inset(), padding);
    m_line->setSpacing(Unit::of(kGap));
    m_words->setSpacing(Unit::of(1));
    setMinimumHeight(Unit::of(m_height));
    place();
}

void MarkedRow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void MarkedRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

void MarkedRow::place() {
    if (m_atEnd != nullptr) {
        const int inner = width() - 2 * Row::inset() - m_mark->sizeHint().width() - Unit::of(kGap);
        const bool isBelow = m_atEnd->sizeHint().width() + Unit::of(kBeforeEnd) > inner * (1 - kWordsShare);
        if (isBelow != m_isEndBelow)
            moveEnd(isBelow);
    }
    // Beside two lines the mark stands in their middle, beside more at the first.
    const bool isTall = m_hasBelow || m_isEndBelow || !m_remedy->isHidden();
    const auto alignment = isTall ? Qt::AlignTop : Qt::AlignVCenter;
    m_line->setAlignment(m_mark, alignment);
    if (m_atEnd != nullptr && !m_isEndBelow)
        m_line->setAlignment(m_atEnd, alignment);
}

void MarkedRow::moveEnd(bool isBelow) {
    m_isEndBelow = isBelow;
    (isBelow ? m_line : m_words)->removeWidget(m_atEnd);
    if (isBelow)
        m_words->insertWidget(m_words->count() - 1, m_atEnd, 0, Qt::AlignLeading);
    else
        m_line->addWidget(m_atEnd);
    // What stands there in a column begins with the words, or ends with the row.
    if (QLayout* column = m_atEnd->layout())
        for (int i = 0; i < column->count(); ++i)
            column->itemAt(i)->setAlignment(isBelow ? Qt::AlignLeading : Qt::AlignTrailing);
}

}  // namespace kinesta
