#pragma once

#include <cstdint>
#include <string_view>

#include "actions/KeyboardLayout.h"

namespace kinesta {

/// Finds the key that types a character under the layout in force, so that a shortcut stays tied to its character
/// when the layout moves it to another key.
class KeyboardLayoutResolver {
  public:
    explicit KeyboardLayoutResolver(KeyboardLayout& layout) : m_layout(layout) {}

    /// The lowest key code that types the character `name` names, in either case; `fallback` if `name` (UTF-8) is
    /// not exactly one character, the layout is unknown, or no key types it.
    std::uint16_t keyCode(std::string_view name, std::uint16_t fallback) const;

  private:
    KeyboardLayout& m_layout;
};

}  // namespace kinesta
