#include "ui/window/Panes.h"

#include <QEvent>
#include <algorithm>

#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kOnePaneBelow = 720;
constexpr double kSidebar = 284;
constexpr double kNarrowest = 220;
constexpr double kWidest = 380;

}  // namespace

Panes::Panes(QWidget* sidebar, QStackedWidget* pages)
    : m_sidebar(sidebar), m_pages(pages), m_sidebarWidth(Unit::of(kSidebar)) {
    addWidget(m_sidebar);
    addWidget(m_pages);
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    setChildrenCollapsible(false);
    setHandleWidth(1);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_sidebarWidth = m_sidebar->width(); });
    arrange();
}

void Panes::setPageInFront(bool isInFront) {
    if (std::exchange(m_isPageInFront, isInFront) != isInFront && m_isOnePane)
        arrange();
}

void Panes::setSidebarWidth(int width) {
    m_sidebarWidth = width;
    arrange();
}

void Panes::resizeEvent(QResizeEvent* event) {
    const bool isOnePane = width() < Unit::of(kOnePaneBelow);
    if (std::exchange(m_isOnePane, isOnePane) != isOnePane)
        arrange();
    QSplitter::resizeEvent(event);
}

void Panes::changeEvent(QEvent* event) {
    QSplitter::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrange();
}

void Panes::arrange() {
    m_isOnePane = width() < Unit::of(kOnePaneBelow);
    m_sidebar->setMinimumWidth(m_isOnePane ? 0 : Unit::of(kNarrowest));
    m_sidebar->setMaximumWidth(m_isOnePane ? QWIDGETSIZE_MAX : Unit::of(kWidest));
    m_sidebar->setVisible(isListShown());
    m_pages->setVisible(!m_isOnePane || m_isPageInFront);
    if (!m_isOnePane) {
        m_sidebarWidth = std::clamp(m_sidebarWidth, Unit::of(kNarrowest), Unit::of(kWidest));
        setSizes({m_sidebarWidth, std::max(1, width() - m_sidebarWidth - handleWidth())});
    }
    Q_EMIT arranged();
}

}  // namespace kinesta
