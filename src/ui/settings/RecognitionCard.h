#pragma once

#include <QComboBox>

#include "ui/models/SettingsModel.h"
#include "ui/widgets/Card.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/Segments.h"
#include "ui/widgets/Switch.h"

namespace kinesta {

/// Whether gestures are recognized, how long a tap waits for another one, and which trackpad is read.
class RecognitionCard final : public Card {
    Q_OBJECT

  public:
    /// The model must outlive this.
    explicit RecognitionCard(SettingsModel& model);

    void load(const SettingsContent& content);

  private:
    void loadTrackpads(const TrackpadChoices& trackpads);

    Switch* m_recognition;
    Notice* m_problem;
    Segments* m_interval;
    Row* m_trackpadRow;
    QComboBox* m_trackpad;
    TrackpadChoices m_trackpads;
};

}  // namespace kinesta
