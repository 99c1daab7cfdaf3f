#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/linux/keyboard/InputPoster.h"
#include "platform/linux/keyboard/UinputDevice.h"

namespace kinesta {

/// Posts through a virtual device in the kernel, which cannot know where the pointer is. Modifiers that the person
/// holds on another keyboard count as part of a shortcut. Seeing them would need the right to read every key typed, and
/// a desktop treats a key as held until it is up on all keyboards, so we could not release it.
class UinputInputPoster final : public InputPoster {
  public:
    /// Receives one sentence when nothing could be posted, once for each new reason.
    using Log = std::function<void(const std::string&)>;

    /// Makes the device at once: a desktop takes a moment to notice a new one and misses keys sent before that.
    explicit UinputInputPoster(Log log);

    bool isAvailable() override;
    std::optional<ModifierSituation> modifiersFor(std::uint16_t code) override;
    std::optional<DesktopLocation> pointerLocation() override;
    bool post(std::span<const InputTransition> transitions) override;

  private:
    void tell(const std::string& reason);

    Log m_log;
    std::unique_ptr<UinputDevice> m_device;
    std::string m_lastReason;
};

}  // namespace kinesta
