#pragma once

#include "ui/models/SettingsModel.h"
#include "ui/settings/MeasuredSlider.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/TileGroup.h"

namespace kinesta {

/// Whether actions show a cue, and where, how long and how dense.
class CueCard final : public Card {
    Q_OBJECT

  public:
    /// The model must outlive this.
    explicit CueCard(SettingsModel& model);

    void load(const SettingsContent& content);
    void settle();

  private:
    Switch* m_cue;
    TileGroup* m_position;
    MeasuredSlider* m_duration;
    MeasuredSlider* m_background;
};

}  // namespace kinesta
