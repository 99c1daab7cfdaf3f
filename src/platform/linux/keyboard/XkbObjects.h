#pragma once

#include <xkbcommon/xkbcommon.h>

#include <memory>

namespace kinesta {

struct XkbUnref {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
    void operator()(xkb_state* state) const { xkb_state_unref(state); }
};

using XkbContextPointer = std::unique_ptr<xkb_context, XkbUnref>;
using XkbKeymapPointer = std::unique_ptr<xkb_keymap, XkbUnref>;
using XkbStatePointer = std::unique_ptr<xkb_state, XkbUnref>;

/// The keycode in a keymap is the kernel's key code plus this.
inline constexpr std::uint16_t kFirstXkbKeycode = 8;

}  // namespace kinesta
