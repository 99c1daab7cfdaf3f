#include "feedback/ActionCuePosition.h"

#include <array>

namespace kinesta {

template <>
std::span<const EnumRow<ActionCuePosition>> enumTable() {
    using enum ActionCuePosition;
    static constexpr std::array<EnumRow<ActionCuePosition>, 3> kTable{{
        {center, "center", "Center"},
        {topRight, "topRight", "Top right"},
        {bottomRight, "bottomRight", "Bottom right"},
    }};
    return kTable;
}

}  // namespace kinesta
