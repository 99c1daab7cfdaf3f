#include "ui/editor/RuleHeader.h"

#include <chrono>

#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kGap = 8;
constexpr double kNameHeight = 36;
constexpr double kNameFactor = 1.3;
constexpr double kMore = 28;
constexpr double kAboveReason = 10;
constexpr double kBelow = 14;
/// A narrower line leaves the word beside the switch out: its shape says the same.
constexpr double kWide = 440;
/// The knob of a switch arrives before it goes back.
constexpr std::chrono::milliseconds kSnap{120};
constexpr std::chrono::seconds kReading{6};

}  // namespace

RuleHeader::RuleHeader(const Uuid& rule, RuleEditorModel& model, RuleListModel& list, RuleHistory& history,
                       WindowCommands& commands)
    : m_rule(rule),
      m_model(model),
      m_list(list),
      m_history(history),
      m_commands(commands),
      m_line(new QHBoxLayout),
      m_name(new TextField(tr("Name"), TextField::Form::words)),
      m_state(new Words({}, Words::Size::detail)),
      m_switch(new Switch(tr("On"))),
      m_more(new QToolButton),
      m_menu(new QMenu(m_more)),
      m_reasonCard(new Card),
      m_reason(new Notice(Notice::Kind::caution, {}, {})) {
    auto* column = new QVBoxLayout(this);
    column->addLayout(m_line);
    column->addWidget(m_reasonCard);
    m_reasonCard->add(m_reason);
    m_reasonCard->hide();
    m_reason->hide();
    m_line->addWidget(m_name, 1);
    m_line->addWidget(m_state);
    m_line->addWidget(m_switch);
    m_line->addWidget(m_more);
    m_state->setWordWrap(false);
    m_name->setPlaceholderText(tr("Untitled gesture"));
    connect(m_name, &TextField::typed, this, [this](const QString& text) { m_model.setName(text.toStdString()); });
    connect(m_name, &TextField::left, this, [this] { m_history.endTyping(); });
    connect(m_switch, &Switch::clicked, this, &RuleHeader::turn);
    makeMenu();

    m_snapping.setSingleShot(true);
    m_snapping.setInterval(kSnap);
    connect(&m_snapping, &QTimer::timeout, this, &RuleHeader::snapBack);
    m_reading.setSingleShot(true);
    m_reading.setInterval(kReading);
    connect(&m_reading, &QTimer::timeout, m_reasonCard, &QWidget::hide);
    m_observer = model.content().observe([this](const auto&) { follow(); });
    measure();
    follow();
}

void RuleHeader::makeMenu() {
    m_more->setAutoRaise(true);
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setMenu(m_menu);
    m_more->setAccessibleName(tr("More for this rule"));
    m_more->setToolTip(tr("More for this rule"));
    m_more->setIcon(SymbolIcon::of(windowSymbol(WindowSymbol::more)));
    m_more->setFocusPolicy(Qt::StrongFocus);
    m_menu->addAction(tr("Duplicate"), this, [this] { m_list.duplicateRule(m_rule); });
    QAction* up = m_menu->addAction(tr("Move up"), this, [this] { m_list.moveUp(m_rule); });
    QAction* down = m_menu->addAction(tr("Move down"), this, [this] { m_list.moveDown(m_rule); });
    m_menu->addSeparator();
    QAction* gesture =
        m_menu->addAction(tr("Clear gesture"), this, [this] { m_model.setType(GestureTypeChoice::unconfigured); });
    QAction* action =
        m_menu->addAction(tr("Clear action"), this, [this] { m_model.setActionKind(ActionKind::unconfigured); });
    m_menu->addSeparator();
    m_menu->addAction(tr("Delete…"), this, [this] {
        m_list.select(WindowSelection::rule(m_rule));  // this one alone, even if others are marked
        m_commands.deleteRules();
    });
    connect(m_menu, &QMenu::aboutToShow, this, [=, this] {
        const GestureRule& rule = m_model.content().value().rule;
        up->setEnabled(m_list.canMoveUp(m_rule));
        down->setEnabled(m_list.canMoveDown(m_rule));
        gesture->setEnabled(isConfigured(rule.gesture));
        action->setEnabled(rule.action.kind != ActionKind::unconfigured &&
                           rule.action.kind != ActionKind::adjustVolume);
    });
}

void RuleHeader::focusName() {
    m_name->setFocus(Qt::OtherFocusReason);
    m_name->selectAll();
}

void RuleHeader::setBackButton(QWidget* button) {
    m_line->insertWidget(0, button);
    button->lower();  // first for screen readers, too
    setTabOrder(button, m_name);
}

void RuleHeader::follow() {
    const RuleEditorContent& content = m_model.content().value();
    m_name->follow(QString::fromStdString(content.rule.name));
    m_state->setText(content.rule.isEnabled ? tr("On") : tr("Off"));
    if (!m_snapping.isActive())
        m_switch->setChecked(content.rule.isEnabled);
    if (!content.missing)
        m_reasonCard->hide();
}

void RuleHeader::turn(bool isOn) {
    if (m_model.setEnabled(isOn) != RuleEnablementResult::ruleNotReady)
        return m_switch->setChecked(m_model.content().value().rule.isEnabled);
    if (WindowTheme::reducesMotion())
        snapBack();
    else
        m_snapping.start();
}

void RuleHeader::snapBack() {
    const RuleEditorContent& content = m_model.content().value();
    m_switch->setChecked(content.rule.isEnabled);
    if (!content.missing)
        return;
    m_reason->setWords(QString::fromStdString(*content.missing), {});
    m_reason->hide();
    m_reasonCard->show();
    m_reason->slideIn();
    m_reading.start();
}

void RuleHeader::hideEvent(QHideEvent* event) {
    if (m_snapping.isActive())
        snapBack();
    m_snapping.stop();
    m_reading.stop();
    m_reasonCard->hide();
    QWidget::hideEvent(event);
}

void RuleHeader::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    m_state->setVisible(width() >= Unit::of(kWide));
}

void RuleHeader::measure() {
    m_line->setSpacing(Unit::of(kGap));
    layout()->setSpacing(Unit::of(kAboveReason));
    layout()->setContentsMargins(0, 0, 0, Unit::of(kBelow));
    m_name->setFont(Unit::font(kNameFactor, QFont::DemiBold));
    m_name->setMinimumHeight(Unit::of(kNameHeight));
    m_more->setFixedSize(Unit::of(kMore, kMore));
}

void RuleHeader::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

}  // namespace kinesta
