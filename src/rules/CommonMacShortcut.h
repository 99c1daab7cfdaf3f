#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/ShortcutModifiers.h"
#include "support/SystemVersion.h"

namespace kinesta {

/// A well-known system shortcut: a preset to choose, and the title of any equal shortcut.
struct CommonMacShortcut {
    std::string_view category;
    std::string_view title;
    std::uint16_t keyCode;
    ShortcutModifiers modifiers;
    std::optional<int> minimumMacOSMajorVersion;

    /// Every preset, in display order.
    static std::span<const CommonMacShortcut> all();

    /// The categories, in display order.
    static std::span<const std::string_view> categoryOrder();

    /// The categories with a preset available on the current system, in display order.
    static std::vector<std::string_view> availableCategoryOrder(const SystemVersion& current);

    /// The title of the first preset with exactly this key and these modifiers.
    static std::optional<std::string_view> actionTitle(std::uint16_t keyCode, ShortcutModifiers modifiers);

    /// A stable identifier made of the fields.
    std::string id() const;

    /// Whether a system with this major version has the shortcut.
    bool isAvailable(int macOSMajorVersion) const;
    bool isAvailableOnCurrentSystem(const SystemVersion& current) const { return isAvailable(current.majorVersion()); }
};

}  // namespace kinesta
