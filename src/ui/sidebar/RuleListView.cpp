#include "ui/sidebar/RuleListView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>

#include "platform/qt/ThemePalette.h"
#include "ui/sidebar/RowPainter.h"
#include "ui/sidebar/RuleMenu.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kScrollStep = 28;

bool isMovement(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home || key == Qt::Key_End;
}

}  // namespace

RuleListView::RuleListView(RuleListModel& rules, WindowCommands& commands, QWidget* parent)
    : QListView(parent),
      m_rules(rules),
      m_commands(commands),
      m_rows(new RuleItemModel(rules, this)),
      m_switches(new SwitchMotion(this)),
      m_delegate(new RuleDelegate({*m_rows, rules, *m_switches, m_ring}, this)),
      m_drag(new RowDrag(*this)) {
    setAccessibleName(tr("Gestures"));
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setItemDelegate(m_delegate);
    setModel(m_rows);
    connect(m_switches, &SwitchMotion::moved, viewport(), qOverload<>(&QWidget::update));
    connect(m_rows, &RuleItemModel::willFollow, this, &RuleListView::rememberPlace);
    connect(m_rows, &RuleItemModel::followed, this, &RuleListView::restorePlace);
    m_markedObserver = rules.markedRules().observe([this](const auto&) { followSelection(); });
    m_selectionObserver = rules.selection().observe([this](const auto&) { followSelection(); });
    followSelection();
}

void RuleListView::setRoomBelow(const Uuid& rule, int room) {
    m_delegate->setRoomBelow(m_rows->indexOf(rule), room);
    scheduleDelayedItemsLayout();
}

QStyleOptionViewItem RuleListView::optionFor(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return option;
}

std::optional<Uuid> RuleListView::ruleAt(const QModelIndex& index) const {
    return index.isValid() ? std::optional(m_rows->row(index.row()).id) : std::nullopt;
}

QModelIndex RuleListView::switchAt(const QPoint& point) const {
    const QModelIndex index = indexAt(point);
    return index.isValid() && m_delegate->switchArea(optionFor(index)).contains(point) ? index : QModelIndex();
}

bool RuleListView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && m_drag->isActive() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QListView::event(event);
}

void RuleListView::keyPressEvent(QKeyEvent* event) {
    m_ring.show();
    viewport()->update();
    if (takeKey(*event))
        return event->accept();
    // Tab brought the focus to a row that is not selected: the first key selects it instead of the one beside it.
    if (isMovement(event->key()) && event->modifiers() == Qt::NoModifier && currentIndex().isValid() &&
        selectionModel()->selectedIndexes().isEmpty() && event->key() != Qt::Key_Home && event->key() != Qt::Key_End)
        return selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
    if (!event->text().trimmed().isEmpty())
        m_letter.start();
    QListView::keyPressEvent(event);
}

bool RuleListView::takeKey(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const std::optional<Uuid> current = ruleAt(currentIndex());
    switch (event.key()) {
        case Qt::Key_Escape:
            if (!m_drag->isActive())
                return false;
            m_drag->cancel();
            m_pressed.reset();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (modifiers != Qt::AltModifier)
                return false;
            event.key() == Qt::Key_Up ? m_rules.moveMarkedUp() : m_rules.moveMarkedDown();
            if (const GestureRule* rule = m_rules.selectedRule())
                scrollTo(m_rows->indexOf(rule->id));
            return true;
        case Qt::Key_F10:
            if (modifiers != Qt::ShiftModifier || !current)
                return false;
            showMenu(viewport()->mapToGlobal(visualRect(currentIndex()).center()));
            return true;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:  // the only such key of small keyboards
            if (modifiers == Qt::NoModifier)
                m_commands.deleteRules();
            return modifiers == Qt::NoModifier;
        case Qt::Key_Space: {
            // A space between two letters belongs to the name that is being searched.
            const bool isSearching = m_letter.isValid() && m_letter.elapsed() < QApplication::keyboardInputInterval();
            if (modifiers != Qt::NoModifier || isSearching || !current)
                return false;
            const auto& marked = m_rules.markedRules().value();
            if (!event.isAutoRepeat())
                toggle(*current, marked.contains(*current) ? marked : std::set{*current});
            return true;
        }
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2:
            if (modifiers != Qt::NoModifier || !current)
                return false;
            m_rules.selectRules({}, *current);
            Q_EMIT opened();
            Q_EMIT nameWanted();
            return true;
        default:
            return false;
    }
}

void RuleListView::toggle(const Uuid& pressed, const std::set<Uuid>& rules) {
    const GestureRule* rule = m_rules.rule(pressed);
    if (rule == nullptr)
        return;
    const bool isOn = !rule->isEnabled;
    const std::set<Uuid> unfinished = m_rules.setEnabled(rules, isOn);
    if (unfinished.empty())
        return m_switches->start(rules, isOn);
    m_switches->start(unfinished, false);
    Q_EMIT refused(unfinished.contains(pressed) ? pressed : *unfinished.begin());
}

void RuleListView::mousePressEvent(QMouseEvent* event) {
    m_pressedSwitch = event->button() == Qt::LeftButton ? switchAt(event->pos()) : QModelIndex();
    m_pressed.reset();
    if (m_pressedSwitch.isValid() || !indexAt(event->pos()).isValid())
        return event->accept();
    if (event->button() == Qt::LeftButton)
        m_pressed = event->pos();
    QListView::mousePressEvent(event);
}

void RuleListView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton))
        return QListView::mouseMoveEvent(event);
    const bool isFar = m_pressed && (event->pos() - *m_pressed).manhattanLength() >= QApplication::startDragDistance();
    if (m_drag->isActive() || (isFar && m_rules.commands().value().canReorder))
        m_drag->moveTo(event->pos());
}

void RuleListView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QListView::mouseReleaseEvent(event);
    const std::optional<QPoint> pressed = std::exchange(m_pressed, std::nullopt);
    const QModelIndex pressedSwitch = std::exchange(m_pressedSwitch, QPersistentModelIndex());
    if (m_drag->isActive()) {
        if (const auto place = m_drag->drop())
            m_rules.move(m_rules.markedRules().value(), static_cast<std::size_t>(*place));
        return setState(NoState);
    }
    if (pressedSwitch.isValid()) {
        if (switchAt(event->pos()) == pressedSwitch)
            toggle(*ruleAt(pressedSwitch), {*ruleAt(pressedSwitch)});
        return;
    }
    QListView::mouseReleaseEvent(event);
    if (pressed && event->modifiers() == Qt::NoModifier && indexAt(event->pos()) == indexAt(*pressed))
        Q_EMIT opened();
}

void RuleListView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        return showMenu(viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    if (indexAt(event->pos()).isValid())
        showMenu(event->globalPos());
}

void RuleListView::showMenu(const QPoint& at) {
    const std::optional<Uuid> current = ruleAt(currentIndex());
    if (!current)
        return;
    if (!m_rules.markedRules().value().contains(*current))
        m_rules.selectRules({}, *current);
    (new RuleMenu(*current, m_rules, m_commands, this))->popup(at);
}

void RuleListView::focusInEvent(QFocusEvent* event) {
    m_ring.follow(*event);
    QListView::focusInEvent(event);
    viewport()->update();
}

void RuleListView::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        m_ring.follow(*event);
    QListView::focusOutEvent(event);
    viewport()->update();
}

void RuleListView::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(viewport());
        painter.fillRect(event->rect(), asQColor(WindowTheme::current().sidebar));
    }
    QListView::paintEvent(event);
    if (m_drag->isActive()) {
        QPainter painter(viewport());
        m_drag->paint(painter, RowPainter::inset());
    }
}

void RuleListView::scrollContentsBy(int x, int y) {
    QListView::scrollContentsBy(x, y);
    Q_EMIT arranged();
}

void RuleListView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    Q_EMIT arranged();
}

void RuleListView::updateGeometries() {
    QListView::updateGeometries();
    verticalScrollBar()->setSingleStep(Unit::of(kScrollStep));
    Q_EMIT arranged();
}

void RuleListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    tellSelection();
}

void RuleListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (selectionModel()->isSelected(current))
        tellSelection();
}

void RuleListView::tellSelection() {
    if (m_isFollowing)
        return;
    std::set<Uuid> marked;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    for (const QModelIndex& index : selected)
        marked.insert(m_rows->row(index.row()).id);
    if (marked.empty())
        return followSelection();  // one row stays selected
    const std::optional<Uuid> current = ruleAt(currentIndex());
    const GestureRule* shown = m_rules.selectedRule();
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    if (current && marked.contains(*current))
        m_rules.selectRules(marked, *current);
    else if (shown != nullptr && marked.contains(shown->id))
        m_rules.selectRules(marked, shown->id);
    else
        m_rules.selectRules(marked, *marked.begin());
    viewport()->update();
}

void RuleListView::followSelection() {
    if (m_isFollowing)
        return;
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    const std::set<Uuid>& marked = m_rules.markedRules().value();
    QItemSelection selection;
    for (int i = 0; i < m_rows->rowCount() && !marked.empty(); ++i)
        if (marked.contains(m_rows->row(i).id))
            selection.select(m_rows->index(i), m_rows->index(i));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    // Without a selected rule the current row stays where the keyboard was.
    if (const GestureRule* rule = m_rules.selectedRule())
        if (const QModelIndex index = m_rows->indexOf(rule->id); index.isValid())
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    viewport()->update();
}

void RuleListView::rememberPlace() {
    m_isFollowing = true;
    m_anchor.reset();
    const QModelIndex top = indexAt({viewport()->width() / 2, 0});
    // At the begin of the list its new first rows are welcome.
    if (verticalScrollBar()->value() > 0 && top.isValid())
        m_anchor = Anchor{m_rows->row(top.row()).id, visualRect(top).top()};
}

void RuleListView::restorePlace() {
    m_isFollowing = false;
    followSelection();
    if (!m_anchor)
        return;
    const QModelIndex index = m_rows->indexOf(m_anchor->rule);
    if (index.isValid()) {
        executeDelayedItemsLayout();
        verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(index).top() - m_anchor->top);
    }
}

}  // namespace kinesta
