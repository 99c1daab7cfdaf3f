#include "feedback/ActionCuePosition.h"

#include <array>

#include "support/Translation.h"

namespace kinesta {

template <>
std::span<const EnumRow<ActionCuePosition>> enumTable() {
    using enum ActionCuePosition;
    static constexpr std::array<EnumRow<ActionCuePosition>, 3> kTable{{
        {center, "center", TRANSLATABLE("Center")},
        {topRight, "topRight", TRANSLATABLE("Top right")},
        {bottomRight, "bottomRight", TRANSLATABLE("Bottom right")},
    }};
    return kTable;
}

}  // namespace kinesta
