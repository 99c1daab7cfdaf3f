#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/ShortcutModifiers.h"

namespace kinesta {

/// A well-known system shortcut: offered as a preset, and the name of a shortcut that equals it.
struct CommonMacShortcut {
    std::string_view category;
    std::string_view title;
    std::uint16_t keyCode;
    ShortcutModifiers modifiers;
    std::optional<int> minimumMacOSMajorVersion;

    /// Every preset, in the order in which they are offered.
    static std::span<const CommonMacShortcut> all();

    /// The categories, in the order in which they are offered.
    static std::span<const std::string_view> categoryOrder();

    /// The categories that have a preset available on a system of this major version, in that order.
    static std::vector<std::string_view> availableCategoryOrder(int macOSMajorVersion);

    /// The title of the first preset with exactly this key and these modifiers.
    static std::optional<std::string_view> actionTitle(std::uint16_t keyCode, ShortcutModifiers modifiers);

    /// A stable identifier made of the preset's fields.
    std::string id() const;

    /// Whether a system of this major version has the shortcut.
    bool isAvailable(int macOSMajorVersion) const;
};

}  // namespace kinesta
