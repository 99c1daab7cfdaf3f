#include "ui/action/ActionCard.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyleOption>
#include <algorithm>

#include "feedback/ActionCueSettings.h"
#include "feedback/ActionCueSymbol.h"
#include "rules/ShellCommandSettings.h"
#include "support/Translation.h"
#include "ui/action/AddressPart.h"
#include "ui/action/ApplicationPart.h"
#include "ui/action/CleanText.h"
#include "ui/action/CommandPart.h"
#include "ui/action/PathPart.h"
#include "ui/action/ShortcutPart.h"
#include "ui/action/WrappingLine.h"
#include "ui/models/ActionWords.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr int kGap = 6;

/// As wide as the fields below it, unless the chosen words need more.
class KindBox final : public QComboBox {
  public:
    KindBox() { connect(this, &QComboBox::currentIndexChanged, this, &QWidget::updateGeometry); }

    QSize sizeHint() const override {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const int words = option.iconSize.width() + fontMetrics().horizontalAdvance(currentText());
        const QSize wanted = style()->sizeFromContents(QStyle::CT_ComboBox, &option, {words + kGap, 0}, this);
        return {std::max(Unit::of(300), wanted.width()), QComboBox::sizeHint().height()};
    }
};

std::unique_ptr<ActionPart> makePart(ActionKind kind, const ActionEditing& editing) {
    switch (kind) {
        case ActionKind::keyboardShortcut:
            return std::make_unique<ShortcutPart>(editing);
        case ActionKind::openURL:
            return std::make_unique<AddressPart>(editing);
        case ActionKind::openFileOrFolder:
            return std::make_unique<PathPart>(editing);
        case ActionKind::launchApplication:
            return std::make_unique<ApplicationPart>(editing);
        case ActionKind::shellCommand:
            return std::make_unique<CommandPart>(editing);
        default:
            return nullptr;
    }
}

}  // namespace

ActionCard::ActionCard(const ActionEditing& editing)
    : m_editing(editing),
      m_kind(new KindBox),
      m_kindRow(new Row(tr("What happens"))),
      m_cueRow(new Row(tr("Show a cue"))),
      m_cuePicture(new CuePicture),
      m_showsCue(new Switch(tr("Show a cue"))),
      m_cueTextRow(new Row(tr("Cue text"))),
      m_cueText(new TextField(tr("Cue text"), TextField::Form::words)),
      m_missing(new Remark(Remark::Kind::caution)),
      m_run(new QPushButton(SymbolIcon::of(windowSymbol(WindowSymbol::run)), tr("Run action now"))) {
    m_kind->setAccessibleName(tr("What happens"));
    m_kind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_kind->setMinimumContentsLength(8);
    m_kind->setMaxVisibleItems(static_cast<int>(allCases<ActionKind>().size()));
    m_kind->installEventFilter(this);
    connect(m_kind, &QComboBox::activated, this,
            [this](int index) { m_editing.model.setActionKind(m_kinds.at(static_cast<std::size_t>(index))); });
    m_kindRow->setControl(m_kind);
    add(m_kindRow);
    addCueRows();
    addLastRow();
    m_observer = m_editing.model.content().observe([this](const RuleEditorContent& content) { follow(content); });
    follow(m_editing.model.content().value());
}

void ActionCard::addCueRows() {
    auto* cue = new QWidget;
    auto* line = new QHBoxLayout(cue);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Unit::of(kGap));
    line->addWidget(m_cuePicture);
    line->addWidget(m_showsCue);
    m_cueRow->setControl(cue);
    m_cueRow->title().setBuddy(m_showsCue);
    add(m_cueRow);
    connect(m_showsCue, &Switch::clicked, this, [this](bool isOn) { m_editing.model.setShowsCue(isOn); });

    m_cueTextRow->setControl(m_cueText);
    add(m_cueTextRow);
    connect(m_cueText, &TextField::typed, this,
            [this](const QString& label) { m_editing.model.setCueLabel(label.toStdString()); });
    connect(m_cueText, &TextField::left, this, [this] { m_editing.model.endTyping(); });
}

void ActionCard::addLastRow() {
    auto* row = new Row({});
    row->title().hide();
    auto* line = new WrappingLine;
    line->add(m_missing, 1);
    auto* button = new QWidget;
    auto* end = new QHBoxLayout(button);
    end->setContentsMargins(0, 0, 0, 0);
    end->addStretch(1);
    end->addWidget(m_run);
    line->add(button);
    row->setWideControl(line);
    add(row);
    connect(m_run, &QPushButton::clicked, this,
            [this] { m_editing.commands.runAction(m_editing.model.content().value().rule.id); });
}

bool ActionCard::event(QEvent* event) {
    // Files and settings may have changed meanwhile.
    if (event->type() == QEvent::Show || event->type() == QEvent::WindowActivate)
        follow(m_editing.model.content().value());
    return Card::event(event);
}

bool ActionCard::eventFilter(QObject* watched, QEvent* event) {
    // Scrolling the page must not change what is under the pointer.
    if (watched == m_kind && event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return Card::eventFilter(watched, event);
}

void ActionCard::follow(const RuleEditorContent& content) {
    const GestureAction& action = content.rule.action;
    followKinds(content);
    showPart(action.kind);
    if (m_part)
        m_part->follow(content);
    followCue(content.rule, content.cuePlaceholder);
    m_missing->setText(QString::fromStdString(content.missing.value_or("")));
    m_run->setEnabled(action.isConfigured() && ShellCommandSettings::permits(action, m_editing.desktop.defaults()));
}

void ActionCard::followKinds(const RuleEditorContent& content) {
    if (m_kinds != content.actionKinds) {
        m_kinds = content.actionKinds;
        m_kind->clear();
        for (const ActionKind kind : m_kinds)
            m_kind->addItem(SymbolIcon::of(actionCueSymbol(kind)), QString::fromStdString(translated(title(kind))));
    }
    const auto found = std::ranges::find(m_kinds, content.rule.action.kind);
    m_kind->setCurrentIndex(found == m_kinds.end() ? -1 : static_cast<int>(found - m_kinds.begin()));
    m_kind->setEnabled(m_kinds.size() > 1);
    const QString sentence = QString::fromStdString(actionSentence(content.rule.action.kind));
    m_kindRow->setDetail(sentence);
    m_kind->setAccessibleDescription(sentence);
}

void ActionCard::followCue(const GestureRule& rule, const std::string& placeholder) {
    // Without an action there is nothing that a cue could name.
    const bool hasAction = rule.action.kind != ActionKind::unconfigured;
    m_cueRow->setVisible(hasAction);
    m_cueTextRow->setVisible(hasAction);
    const UserDefaults& defaults = m_editing.desktop.defaults();
    const std::int64_t steps = rule.action.kind == ActionKind::adjustVolume ? 1 : 0;
    m_cuePicture->setContent(ActionCueContent::of(rule.action, steps, rule.resolvedVisualCueMessage()),
                             ActionCueSettings::backgroundOpacity(defaults));
    m_cueRow->setDetail(ActionCueSettings::isEnabled(defaults)
                            ? tr("A small label names what was done.")
                            : tr("Cues are switched off in Settings, so none is shown."));
    m_showsCue->setChecked(rule.shouldShowActionCue());
    m_cueText->setPlaceholderText(shownText(placeholder));
    m_cueText->follow(QString::fromStdString(rule.action.customCueLabel.value_or("")));
}

void ActionCard::showPart(ActionKind kind) {
    if (m_partKind == kind)
        return;
    m_partKind = kind;
    if (m_part) {
        for (QWidget* row : m_part->rows()) {
            row->hide();
            row->deleteLater();
        }
        m_part.release()->deleteLater();
    }
    m_part = makePart(kind, m_editing);
    if (!m_part)
        return;
    int index = 1;
    for (QWidget* row : m_part->rows()) {
        insert(index++, row);
        row->show();
    }
}

}  // namespace kinesta
