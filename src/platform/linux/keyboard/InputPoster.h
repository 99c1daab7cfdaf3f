#pragma once

#include <optional>
#include <span>

#include "actions/EventSynthesizer.h"
#include "platform/linux/keyboard/KeyStroke.h"

namespace kinesta {

/// A way for keys and clicks into the desktop. Main thread only.
class InputPoster {
  public:
    virtual ~InputPoster() = default;

    /// Whether posting would work now. Cheap enough for every action, and the question to ask before the others: they
    /// may wait for a display server that this one does not wait for.
    virtual bool isAvailable() = 0;

    /// Whether the key or button (a kernel code) can be posted and means anything to the desktop.
    virtual bool canPost(std::uint16_t code) = 0;

    /// The modifier keys as they are now.
    virtual ModifierSituation modifiers() = 0;

    /// Where the pointer is; nothing if posting does not work.
    virtual std::optional<DesktopLocation> pointerLocation() = 0;

    /// Sends all of it, in order and at once; false if nothing was sent.
    virtual bool post(std::span<const InputTransition> transitions) = 0;
};

}  // namespace kinesta
