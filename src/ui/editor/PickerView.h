#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "ui/models/GesturePicker.h"
#include "ui/widgets/TileGroup.h"

namespace kinesta {

/// The tiles of one picker below its name. Each shows the gesture of the rule with its own value.
class PickerView final : public QWidget {
    Q_OBJECT

  public:
    explicit PickerView(GesturePicker picker);

    GesturePicker picker() const { return m_picker; }
    TileGroup& tiles() { return *m_tiles; }
    void show(const GestureRule& rule);

  private:
    GesturePicker m_picker;
    std::vector<PickerChoice> m_choices;
    TileGroup* m_tiles;
    /// All that the tiles depend on.
    std::optional<PadGesture> m_shown;
};

}  // namespace kinesta
