#include "ui/settings/CueCard.h"

#include <QLocale>

#include "support/Translation.h"
#include "ui/settings/SettingsPictures.h"
#include "ui/widgets/Row.h"

namespace kinesta {
namespace {

constexpr int kPage = 5;
constexpr double kTenths = 10;

}  // namespace

CueCard::CueCard(SettingsModel& model)
    : m_cue(new Switch(tr("Show what was done"))),
      m_position(new TileGroup(tr("Position"), 3)),
      m_duration(
          new MeasuredSlider(tr("Duration"), SettingsModel::durationRange(), kPage, MeasuredSlider::Value::shown,
                             [](int tenths) { return tr("%1 s").arg(QLocale().toString(tenths / kTenths, 'f', 1)); })),
      m_background(new MeasuredSlider(tr("Background"), SettingsModel::opacityRange(), kPage,
                                      MeasuredSlider::Value::shown,
                                      [](int percent) { return tr("%1 %").arg(percent); })) {
    auto* cue = new Row(tr("Show what was done"),
                        tr("A small label on the screen with the pointer. Each rule can switch it off."));
    cue->setControl(m_cue);
    for (const auto& row : enumTable<ActionCuePosition>()) {
        const QString title = QString::fromStdString(translated(row.title));
        m_position->addTile(static_cast<int>(row.value),
                            new Tile(Tile::Form::card, title, title, SettingsPictures::screenSize,
                                     SettingsPictures::screen(row.value)));
    }
    auto* position = new Row(tr("Position"));
    position->setControl(m_position);
    add(cue);
    add(position);
    for (const auto& [title, slider] : {std::pair(tr("Duration"), m_duration), {tr("Background"), m_background}}) {
        auto* row = new Row(title);
        row->setControl(slider);
        row->title().setBuddy(&slider->slider());
        add(row);
    }
    connect(m_cue, &Switch::clicked, this, [&model](bool isOn) { model.setShowsCue(isOn); });
    connect(m_position, &TileGroup::chose, this,
            [&model](int value) { model.setCuePosition(static_cast<ActionCuePosition>(value)); });
    connect(m_duration, &MeasuredSlider::settled, this, [&model](int tenths) { model.setCueDuration(tenths); });
    connect(m_background, &MeasuredSlider::settled, this, [&model](int percent) { model.setCuePercent(percent); });
}

void CueCard::load(const SettingsContent& content) {
    m_cue->setChecked(content.showsCue);
    m_position->setChosen(static_cast<int>(content.cuePosition));
    m_duration->setValue(content.cueDuration);
    m_background->setValue(content.cuePercent);
}

void CueCard::settle() {
    m_duration->settle();
    m_background->settle();
}

}  // namespace kinesta
