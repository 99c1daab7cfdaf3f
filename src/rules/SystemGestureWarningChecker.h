#pragma once

#include <optional>
#include <string>

#include "rules/GestureRule.h"
#include "support/EnumTable.h"

namespace kinesta {

/// Systems and desktops whose own trackpad gestures are known. `none` stands for all others.
enum class GestureSystem { none, macOS, gnome, kde };

template <>
std::span<const EnumRow<GestureSystem>> enumTable();

/// A notice that the system may also act on a rule's gesture.
struct SystemGestureWarning {
    std::string title;
    std::string detail;

    friend bool operator==(const SystemGestureWarning&, const SystemGestureWarning&) = default;
};

/// Warns if a rule's gesture is likely to collide with one of the system.
struct SystemGestureWarningChecker {
    static std::optional<SystemGestureWarning> warning(const GestureRule& rule, GestureSystem system);
};

}  // namespace kinesta
