#pragma once

#include <optional>
#include <span>

#include "actions/EventSynthesizer.h"
#include "platform/linux/keyboard/KeyStroke.h"

namespace kinesta {

/// Sends keys and clicks to the desktop. Main thread only.
class InputPoster {
  public:
    virtual ~InputPoster() = default;

    /// Whether posting would work now. Cheap enough for every action.
    virtual bool isAvailable() = 0;

    /// The modifier keys as they are now, for a stroke of this key (a kernel code). Nothing if the key cannot be posted
    /// or means nothing to the desktop.
    virtual std::optional<ModifierSituation> modifiersFor(std::uint16_t code) = 0;

    /// Where the pointer is; nothing if posting does not work.
    virtual std::optional<DesktopLocation> pointerLocation() = 0;

    /// Sends all transitions in order and at once; false if that failed.
    virtual bool post(std::span<const InputTransition> transitions) = 0;
};

}  // namespace kinesta
