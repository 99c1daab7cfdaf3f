#include "ui/settings/PalmsCard.h"

#include <QEvent>

#include "ui/widgets/Row.h"
#include "ui/widgets/Unit.h"

namespace kinesta {
namespace {

constexpr double kGap = 20;
/// Below the panel, besides what a row keeps free.
constexpr double kBottom = 6;
constexpr double kSmallGap = 4;
/// A narrower card has the slider below the picture.
constexpr double kNarrow = 440;
constexpr int kPage = 10;
constexpr double kPercent = 100;

}  // namespace

PalmsCard::PalmsCard(SettingsModel& model)
    : m_palms(new Switch(tr("Ignore touches that start in a corner"))),
      m_picture(new PalmPicture),
      m_size(new MeasuredSlider(tr("Size of the corners"), SettingsModel::palmRange, kPage,
                                MeasuredSlider::Value::spoken, [](int percent) { return tr("%1 %").arg(percent); })),
      m_panel(makePanel()) {
    auto* palms = new Row(tr("Ignore touches that start in a corner"),
                          tr("Where a palm or the ball of the thumb comes to rest."));
    palms->setControl(m_palms);
    add(palms);
    auto* panel = new Row({});
    panel->title().hide();
    panel->setWideControl(m_panel);
    add(panel);
    place();
    connect(m_palms, &Switch::clicked, this, [&model](bool isOn) { model.setIgnoresPalms(isOn); });
    connect(m_size, &MeasuredSlider::moved, m_picture,
            [this](int percent) { m_picture->setSensitivity(percent / kPercent); });
    connect(m_size, &MeasuredSlider::settled, this, [&model](int percent) { model.setPalmPercent(percent); });
}

QWidget* PalmsCard::makePanel() {
    auto* panel = new QWidget;
    m_columns = new QBoxLayout(QBoxLayout::LeftToRight, panel);
    m_columns->addWidget(m_picture, 0, Qt::AlignTop | Qt::AlignLeading);
    auto* words = new QVBoxLayout;
    words->setSpacing(Unit::of(kSmallGap));
    auto* title = new Words(tr("Size of the corners"), Words::Size::rowTitle);
    title->setBuddy(&m_size->slider());
    auto* ends = new QHBoxLayout;
    ends->addWidget(new Words(tr("Small"), Words::Size::detail));
    auto* large = new Words(tr("Large"), Words::Size::detail);
    large->alignTo(Qt::AlignTrailing | Qt::AlignVCenter);
    ends->addWidget(large);
    words->addWidget(title);
    words->addWidget(m_size);
    words->addLayout(ends);
    words->addSpacing(Unit::of(kSmallGap));
    words->addWidget(new Words(tr("A touch that starts in a filled square is ignored until it lifts. Corner drawings "
                                  "begin inside the dashed line, beside the square."),
                               Words::Size::detail));
    words->addStretch();
    m_columns->addLayout(words, 1);
    return panel;
}

void PalmsCard::load(const SettingsContent& content) {
    m_palms->setChecked(content.ignoresPalms);
    m_panel->setEnabled(content.ignoresPalms);
    m_size->setValue(content.palmPercent);
    m_picture->setSensitivity(m_size->slider().value() / kPercent);
}

void PalmsCard::changeEvent(QEvent* event) {
    Card::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        place();
}

void PalmsCard::resizeEvent(QResizeEvent* event) {
    Card::resizeEvent(event);
    place();
}

void PalmsCard::place() {
    m_columns->setDirection(width() < Unit::of(kNarrow) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_columns->setSpacing(Unit::of(kGap));
    m_columns->setContentsMargins(0, 0, 0, Unit::of(kBottom));
}

}  // namespace kinesta
