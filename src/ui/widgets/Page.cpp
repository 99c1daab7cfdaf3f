#include "ui/widgets/Page.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "ui/widgets/Unit.h"
#include "ui/widgets/Words.h"

namespace kinesta {
namespace {

constexpr double kWidest = 680;
constexpr double kPadding = 24;
constexpr double kAboveHeading = 20;
constexpr double kBelowHeading = 8;
constexpr double kHeadingInset = 2;

}  // namespace

Page::Page(QWidget* parent) : QScrollArea(parent), m_ground(new QWidget), m_column(new QVBoxLayout(m_ground)) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    m_column->setSpacing(0);
    m_column->addStretch(1);
    // Nothing scrolls sideways: parts get the width that there is, and arrange themselves in it.
    m_ground->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setWidget(m_ground);
    measure();
    // A scroll area follows Tab only inside itself, and not the focus that comes from the sidebar or from a key of the
    // window. What is pressed stays below the pointer.
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*former*/, QWidget* now) {
        if (now != nullptr && widget() != nullptr && widget()->isAncestorOf(now) &&
            QApplication::mouseButtons() == Qt::NoButton)
            ensureWidgetVisible(now);
    });
}

void Page::add(QWidget* part) { m_column->insertWidget(m_column->count() - 1, part); }

void Page::addHeading(const QString& text, QWidget* atEnd) {
    auto* heading = new QWidget;
    auto* line = new QHBoxLayout(heading);
    const bool isFirst = m_column->count() == 1;
    line->setContentsMargins(Unit::of(kHeadingInset), isFirst ? 0 : Unit::of(kAboveHeading), Unit::of(kHeadingInset),
                             Unit::of(kBelowHeading));
    line->addWidget(new Words(text, Words::Size::section), 1);
    if (atEnd != nullptr)
        line->addWidget(atEnd);
    add(heading);
}

void Page::setBackButton(QWidget* button) {
    m_belowBack = new QSpacerItem(0, 0);
    m_column->insertWidget(0, button, 0, Qt::AlignLeading);
    button->lower();  // first for screen readers, too
    m_column->insertItem(1, m_belowBack);
    button->installEventFilter(this);
}

bool Page::eventFilter(QObject* watched, QEvent* event) {
    // The gap comes and goes with the button.
    if (m_belowBack != nullptr && (event->type() == QEvent::Show || event->type() == QEvent::Hide) &&
        watched == m_column->itemAt(0)->widget()) {
        m_belowBack->changeSize(0, event->type() == QEvent::Show ? Unit::of(kBelowHeading) : 0);
        m_column->invalidate();
    }
    return QScrollArea::eventFilter(watched, event);
}

void Page::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void Page::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    measure();
}

void Page::measure() {
    const int padding = Unit::of(kPadding);
    const int side = std::max(padding, (viewport()->width() - Unit::of(kWidest)) / 2);
    m_column->setContentsMargins(side, padding, side, padding);
    verticalScrollBar()->setSingleStep(Unit::of(kAboveHeading));
}

}  // namespace kinesta
