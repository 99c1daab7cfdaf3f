#include "ui/editor/GestureCard.h"

#include <QEvent>

#include "app/Desktop.h"
#include "platform/qt/ThemePalette.h"
#include "recognition/MultitouchService.h"
#include "support/Translation.h"
#include "ui/models/GestureSentence.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kTypesInset = 12;
constexpr double kTypePicture = 48;
constexpr int kTypeColumns = 8;
constexpr double kWidePad = 200;
constexpr double kNarrowPad = 160;
/// The width of the card from which on the pad is wide.
constexpr double kWide = 600;
/// The width of the card from which on the pad stands beside the pickers.
constexpr double kBeside = 440;

QString asText(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

GestureCard::GestureCard(RuleEditorModel& model, const WindowParts& parts, WindowCommands& commands)
    : m_model(model),
      m_parts(parts),
      m_types(new TileGroup(tr("Gesture type"), kTypeColumns)),
      m_body(new QWidget),
      m_line(new QBoxLayout(QBoxLayout::LeftToRight, m_body)),
      m_stage(new GestureStage([&parts] { return parts.service.tapWaitingInterval().value().seconds(); })),
      m_details(new GestureDetails(model)) {
    add(makeTypes());
    add(m_body);
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->setSpacing(0);
    m_line->addWidget(m_stage);
    m_line->addWidget(m_details, 1);
    addNotices(commands);

    const auto perform = [this](const GestureRule& rule) { m_stage->preview(PadGesture::of(rule)); };
    const auto rest = [this] { m_stage->endPreview(); };
    connect(m_types, &ChoiceGroup::chose, this,
            [this](int type) { m_model.setType(static_cast<GestureTypeChoice>(type)); });
    connect(m_types, &ChoiceGroup::pointedAt, this, [this, perform](int type) {
        perform(exampleOf(static_cast<GestureTypeChoice>(type), m_model.content().value().rule));
    });
    connect(m_types, &ChoiceGroup::pointedAway, this, rest);
    connect(m_details, &GestureDetails::pointedAt, this, perform);
    connect(m_details, &GestureDetails::pointedAway, this, rest);
    m_contentObserver = model.content().observe([this](const auto&) { follow(); });
    m_statusObserver = parts.service.status().observe([this](const auto&) { follow(); });
    follow();
}

/// Below the other parts of the card.
void GestureCard::addNotices(WindowCommands& commands) { m_notices = new NoticeStack(*this, m_model, commands); }

QWidget* GestureCard::makeTypes() {
    auto* strip = new QWidget;
    auto* line = new QHBoxLayout(strip);
    const int inset = Unit::of(kTypesInset);
    line->setContentsMargins(inset, inset, inset, inset);
    line->addWidget(m_types);
    for (const GestureTypeChoice type : allCases<GestureTypeChoice>()) {
        if (type == GestureTypeChoice::unconfigured)
            continue;
        m_types->addTile(static_cast<int>(type),
                         Tile::ofGesture(Tile::Form::tall, asText(shortTitle(type)), asText(translated(title(type))),
                                         kTypePicture, PadGesture::of(exampleOf(type))));
    }
    return strip;
}

void GestureCard::follow() {
    const RuleEditorContent& content = m_model.content().value();
    const bool isListening = m_parts.service.status().value().kind == MultitouchService::Status::Kind::listening;
    const bool isChosen = content.type != GestureTypeChoice::unconfigured;
    m_types->setChosen(isChosen ? std::optional(static_cast<int>(content.type)) : std::nullopt);
    m_stage->setGesture(content.waitsForGesture ? PadGesture() : PadGesture::of(content.rule),
                        asText(translated(title(content.type))), asText(gestureSentence(content.rule)));
    m_details->show(content);
    m_details->setListening(isListening);
    // Only a pad that is read reports what it can do.
    m_notices->show(content, !isListening || m_parts.desktop.trackpad().identity().canTellPressure);
}

void GestureCard::arrange() {
    const double units = width() / Unit::pixels();
    m_stage->setPadWidth(units < kWide && units >= kBeside ? kNarrowPad : kWidePad);
    m_line->setDirection(units < kBeside ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void GestureCard::changeEvent(QEvent* event) {
    Card::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrange();
}

void GestureCard::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    arrange();
}

void GestureCard::paintGround(QPainter& painter, const AppTheme& theme) {
    painter.fillRect(QRect(m_stage->mapTo(this, QPoint()), m_stage->size()), asQColor(theme.accentSoft));
}

}  // namespace kinesta
