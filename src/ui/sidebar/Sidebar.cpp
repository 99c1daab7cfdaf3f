#include "ui/sidebar/Sidebar.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "platform/qt/ThemePalette.h"
#include "ui/sidebar/CautionLine.h"
#include "ui/sidebar/DeletionQuestion.h"
#include "ui/sidebar/EmptyList.h"
#include "ui/sidebar/ListHeading.h"
#include "ui/sidebar/PageRow.h"
#include "ui/sidebar/RowPainter.h"
#include "ui/sidebar/RuleListView.h"
#include "ui/sidebar/RuleMenu.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kPadding = 8;
constexpr double kFilterHeight = 30;
constexpr double kBelowFilter = 6;

}  // namespace

Sidebar::Sidebar(RuleListModel& model, WindowCommands& commands, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_overview(new PageRow(WindowSymbol::overview, tr("Overview"))),
      m_heading(new ListHeading),
      m_filter(new QLineEdit),
      m_middle(new QWidget),
      m_lists(new QStackedLayout(m_middle)),
      m_list(new RuleListView(model, commands)),
      m_empty(new EmptyList),
      m_refusal(new CautionLine(m_middle)),
      m_settings(new PageRow(WindowSymbol::settings, tr("Settings"))),
      m_top(new QVBoxLayout),
      m_bottom(new QVBoxLayout) {
    m_filter->setPlaceholderText(tr("Filter gestures"));
    m_filter->setAccessibleName(tr("Filter gestures"));
    m_filter->setClearButtonEnabled(true);
    m_filter->addAction(SymbolIcon::of(windowSymbol(WindowSymbol::search)), QLineEdit::LeadingPosition);
    m_filter->installEventFilter(this);
    m_lists->addWidget(m_list);
    m_lists->addWidget(m_empty);
    layOut();
    connectParts(commands);
    new DeletionQuestion(model, this);
    m_observers.push_back(model.rows().observe([this](const auto&) { followRows(); }));
    m_observers.push_back(model.selection().observe([this](const auto&) { followSelection(); }));
    m_observers.push_back(model.commands().observe([this](const auto&) { followCommands(); }));
    m_observers.push_back(model.filter().observe([this](const std::string& filter) {
        if (const QString text = QString::fromStdString(filter); text != m_filter->text())
            m_filter->setText(text);
        m_empty->setFilter(QString::fromStdString(filter));  // the rows need not change with it
    }));
    followCommands();
    followRows();
    followSelection();
}

void Sidebar::layOut() {
    for (QWidget* part : std::initializer_list<QWidget*>{m_overview, m_heading, m_filter})
        m_top->addWidget(part);
    m_top->setSpacing(0);
    m_bottom->addWidget(m_settings);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addLayout(m_top);
    all->addWidget(m_middle, 1);
    all->addLayout(m_bottom);
    measure();
}

void Sidebar::connectParts(WindowCommands& commands) {
    const auto open = [this, &commands](const WindowSelection& page) {
        commands.select(page);
        Q_EMIT opened();
    };
    connect(m_overview, &PageRow::clicked, this, [open] { open(WindowSelection::overview()); });
    connect(m_settings, &PageRow::clicked, this, [open] { open(WindowSelection::settings()); });
    connect(m_heading, &ListHeading::addWanted, this, [&commands] { commands.addRule(); });
    connect(m_heading, &ListHeading::menuWanted, this,
            [this, &commands](const QPoint& corner) { (new RulesMenu(m_model, commands, this))->popup(corner); });
    connect(m_filter, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_model.setFilter(text.toStdString()); });
    connect(m_empty, &EmptyList::addWanted, this, [&commands] { commands.addRule(); });
    connect(m_empty, &EmptyList::clearWanted, this, [this] {
        m_filter->clear();
        focusFilter();
    });
    connect(m_list, &RuleListView::opened, this, &Sidebar::opened);
    connect(m_list, &RuleListView::nameWanted, this, &Sidebar::nameWanted);
    connect(m_list, &RuleListView::refused, this, &Sidebar::showRefusal);
    connect(m_list, &RuleListView::arranged, this, &Sidebar::placeRefusal);
    connect(m_refusal, &CautionLine::roomChanged, this,
            [this] { m_list->setRoomBelow(m_refused, m_refusal->room(m_list->rowOf(m_refused).width())); });
    connect(m_refusal, &CautionLine::dismissed, this, [this] { m_list->setRoomBelow(m_refused, 0); });
}

void Sidebar::focusList() { m_lists->currentWidget()->setFocus(Qt::ShortcutFocusReason); }

void Sidebar::focusFilter() {
    if (!m_filter->isHidden())
        m_filter->setFocus(Qt::ShortcutFocusReason);
}

void Sidebar::showAddHelp() { m_heading->showAddHelp(); }

void Sidebar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void Sidebar::measure() {
    const int padding = Unit::of(kPadding);
    m_top->setContentsMargins(padding, padding, padding, m_filter->isHidden() ? 0 : Unit::of(kBelowFilter));
    m_bottom->setContentsMargins(padding, padding, padding, padding);
    m_filter->setFixedHeight(Unit::of(kFilterHeight));
}

bool Sidebar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_filter || (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isLeaving = key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return;
    if (!isLeaving)
        return false;
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();  // before Escape closes the window
        return true;
    }
    if (key == Qt::Key_Escape)
        m_filter->clear();
    focusList();
    return true;
}

void Sidebar::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.fillRect(rect(), asQColor(theme.sidebar));
    painter.fillRect(0, m_settings->y() - Unit::of(kPadding), width(), 1, asQColor(theme.border));
}

void Sidebar::followRows() {
    const bool isEmpty = m_model.rows().value().empty();
    QWidget* shown = isEmpty ? static_cast<QWidget*>(m_empty) : m_list;
    if (m_lists->currentWidget() != shown) {
        const bool hadFocus = m_middle->isAncestorOf(focusWidget());
        m_lists->setCurrentWidget(shown);
        if (hadFocus)
            focusList();
    }
    // A rule that was finished or deleted has nothing to say any more.
    const auto& rows = m_model.rows().value();
    const auto refused = std::ranges::find(rows, m_refused, &RuleRow::id);
    if (refused == rows.end() || refused->mark != RuleMark::unfinished)
        m_refusal->dismiss();
}

void Sidebar::followSelection() {
    m_overview->setShown(m_model.selection().value() == WindowSelection::overview());
    m_settings->setShown(m_model.selection().value() == WindowSelection::settings());
}

void Sidebar::followCommands() {
    const RuleListCommands& commands = m_model.commands().value();
    m_heading->setAdding(commands.canAddNewGesture, QString::fromStdString(commands.addGestureHelp));
    if (commands.isFilterOffered != m_filter->isHidden())
        return;
    if (!commands.isFilterOffered && m_filter->hasFocus())
        focusList();
    m_filter->setVisible(commands.isFilterOffered);
    measure();
}

void Sidebar::showRefusal(const Uuid& rule) {
    const auto& rows = m_model.rows().value();
    const auto row = std::ranges::find(rows, rule, &RuleRow::id);
    if (row == rows.end())
        return;
    m_refusal->dismiss();
    m_refused = rule;
    m_refusal->tell(QString::fromStdString(row->reason));
    m_list->showWhole(rule);
}

void Sidebar::placeRefusal() {
    if (!m_refusal->isTelling())
        return;
    const QRect row = m_list->rowOf(m_refused);
    const QRect line(row.left(), row.bottom() + 1, row.width(), m_refusal->room(row.width()));
    const QPoint origin = m_list->viewport()->mapTo(m_middle, QPoint());
    m_refusal->place(line.translated(origin), m_list->viewport()->rect().translated(origin));
}

}  // namespace kinesta
