#pragma once

#include <cstdint>
#include <string_view>

#include "actions/KeyboardLayout.h"

namespace kinesta {

/// Finds the key that types a character under the current layout, so that a shortcut follows its character when the
/// layout moves it to another key.
class KeyboardLayoutResolver {
  public:
    explicit KeyboardLayoutResolver(KeyboardLayout& layout) : m_layout(layout) {}

    /// The lowest key code that types `name`, in either case. `fallback` if `name` is longer than one character (such
    /// as "Return"; all shorter names are ASCII), the layout is unknown, or no key types it.
    std::uint16_t keyCode(std::string_view name, std::uint16_t fallback) const;

  private:
    KeyboardLayout& m_layout;
};

}  // namespace kinesta
