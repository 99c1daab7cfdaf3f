#include "ui/sidebar/ListHeading.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QToolTip>

#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kPadding = 10;
constexpr double kPaddingAtEnd = 2;
constexpr double kAbove = 12;
constexpr double kBelow = 4;
constexpr double kButton = 28;
constexpr double kSymbol = 16;

QToolButton* iconButton(WindowSymbol symbol, const QString& name) {
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIcon(SymbolIcon::of(windowSymbol(symbol)));
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

}  // namespace

ListHeading::ListHeading(QWidget* parent)
    : QWidget(parent),
      m_words(new Words(tr("Gestures"), Words::Size::caption)),
      m_add(iconButton(WindowSymbol::add, tr("Add gesture"))),
      m_more(iconButton(WindowSymbol::more, tr("More"))) {
    auto* line = new QHBoxLayout(this);
    line->setSpacing(0);
    line->addWidget(m_words, 1);
    line->addWidget(m_add);
    line->addWidget(m_more);
    measure();
    connect(m_add, &QToolButton::clicked, this, &ListHeading::addWanted);
    connect(m_more, &QToolButton::clicked, this, [this] {
        const bool isMirrored = layoutDirection() == Qt::RightToLeft;
        Q_EMIT menuWanted(m_more->mapToGlobal(isMirrored ? m_more->rect().bottomRight() : m_more->rect().bottomLeft()));
    });
}

void ListHeading::setAdding(bool isPossible, const QString& help) {
    m_add->setEnabled(isPossible);
    m_add->setToolTip(help);
    m_add->setAccessibleDescription(help);
}

void ListHeading::showAddHelp() {
    QToolTip::showText(m_add->mapToGlobal(QPoint(0, m_add->height() / 2)), m_add->toolTip(), m_add);
}

void ListHeading::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        measure();
}

void ListHeading::measure() {
    const int begin = Unit::of(kPadding);
    const int end = Unit::of(kPaddingAtEnd);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    layout()->setContentsMargins(isMirrored ? end : begin, Unit::of(kAbove), isMirrored ? begin : end,
                                 Unit::of(kBelow));
    for (QToolButton* button : {m_add, m_more}) {
        button->setFixedSize(Unit::of(kButton, kButton));
        button->setIconSize(Unit::of(kSymbol, kSymbol));
    }
}

/// A button that is off lets presses through.
void ListHeading::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_add->isEnabled() && m_add->geometry().contains(event->pos()))
        showAddHelp();
    else
        QWidget::mousePressEvent(event);
}

}  // namespace kinesta
