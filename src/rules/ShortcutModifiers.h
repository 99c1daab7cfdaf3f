#pragma once

#include <cstdint>

namespace kinesta {

/// A set of modifier keys, stored as a sum of bits. Keeps unknown bits of a stored value.
struct ShortcutModifiers {
    std::int64_t rawValue = 0;

    static const ShortcutModifiers command;
    static const ShortcutModifiers option;
    static const ShortcutModifiers control;
    static const ShortcutModifiers shift;
    static const ShortcutModifiers function;

    /// Whether every member of `other` is in this set.
    constexpr bool contains(ShortcutModifiers other) const { return (rawValue & other.rawValue) == other.rawValue; }

    friend constexpr ShortcutModifiers operator|(ShortcutModifiers a, ShortcutModifiers b) {
        return {a.rawValue | b.rawValue};
    }
    friend constexpr bool operator==(ShortcutModifiers, ShortcutModifiers) = default;
};

inline constexpr ShortcutModifiers ShortcutModifiers::command{1};
inline constexpr ShortcutModifiers ShortcutModifiers::option{2};
inline constexpr ShortcutModifiers ShortcutModifiers::control{4};
inline constexpr ShortcutModifiers ShortcutModifiers::shift{8};
inline constexpr ShortcutModifiers ShortcutModifiers::function{16};

}  // namespace kinesta
