#include "ui/editor/GestureDetails.h"

#include <QEvent>
#include <algorithm>

#include "support/Translation.h"
#include "ui/models/GestureSentence.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kAbove = 14;
constexpr double kBeside = 16;
constexpr double kGap = 12;

}  // namespace

GestureDetails::GestureDetails(RuleEditorModel& model)
    : m_model(model),
      m_column(new QVBoxLayout(this)),
      m_title(new Words({}, Words::Size::title)),
      m_sentence(new Words({}, Words::Size::detail)),
      m_perform(new QPushButton) {
    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(m_title);
    words->addWidget(m_sentence);
    m_column->addStretch(1);
    m_column->addLayout(words);
    for (const GesturePicker picker : allCases<GesturePicker>()) {
        auto* view = m_pickers.emplace_back(new PickerView(picker));
        view->hide();
        m_column->addWidget(view);
        connect(&view->tiles(), &ChoiceGroup::chose, this, [this, picker](int value) { m_model.pick(picker, value); });
        connect(&view->tiles(), &ChoiceGroup::pointedAt, this, [this, picker](int value) {
            GestureRule rule = m_model.content().value().rule;
            kinesta::pick(rule, picker, value);
            Q_EMIT pointedAt(completed(rule));
        });
        connect(&view->tiles(), &ChoiceGroup::pointedAway, this, &GestureDetails::pointedAway);
    }
    m_column->addWidget(m_perform, 0, Qt::AlignLeading);
    m_column->addStretch(1);
    connect(m_perform, &QPushButton::clicked, this,
            [this] { m_model.setWaitsForGesture(!m_model.content().value().waitsForGesture); });
    measure();
}

void GestureDetails::show(const RuleEditorContent& content) {
    const bool waits = content.waitsForGesture;
    const QString title =
        waits ? tr("Waiting for a gesture…") : QString::fromStdString(translated(kinesta::title(content.type)));
    const bool hasWaited = m_perform->text() == tr("Stop waiting");
    m_title->setText(title);
    m_sentence->setText(waits ? tr("Perform it on the touchpad now. No action runs meanwhile. Escape gives up.")
                              : QString::fromStdString(gestureSentence(content.rule)));
    m_perform->setText(waits ? tr("Stop waiting") : tr("Perform it to choose it"));
    const std::vector<GesturePicker> pickers = pickersOf(content.type);
    for (PickerView* view : m_pickers) {
        const bool isOffered = std::ranges::count(pickers, view->picker()) > 0;
        view->setVisible(isOffered);
        if (isOffered)
            view->show(content.rule);
    }
    if (waits != hasWaited) {
        // It began to wait, or a gesture came: neither moves the focus.
        Announcer::announce(*this, title);
    }
}

void GestureDetails::setListening(bool isListening) {
    m_perform->setEnabled(isListening);
    m_perform->setToolTip(isListening ? QString()
                                      : tr("The trackpad is not being read. Turn gesture recognition on in Settings."));
    if (!isListening)
        m_model.setWaitsForGesture(false);
}

void GestureDetails::measure() {
    m_column->setContentsMargins(Unit::of(kBeside), Unit::of(kAbove), Unit::of(kBeside), Unit::of(kAbove));
    m_column->setSpacing(Unit::of(kGap));
}

void GestureDetails::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

}  // namespace kinesta
