#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/linux/keyboard/InputPoster.h"
#include "platform/linux/keyboard/UinputDevice.h"

namespace kinesta {

/// Posts through a virtual device of the kernel's. Where the pointer is cannot be known that way. Modifiers that the
/// person holds on another keyboard count as part of a shortcut: to know them takes the right to read every key typed,
/// and a desktop takes a key for held until it is up on all keyboards, so that ours could not let go of it.
class UinputInputPoster final : public InputPoster {
  public:
    /// Is told, as one sentence, why nothing could be posted; once for every new reason.
    using Log = std::function<void(const std::string&)>;

    /// Makes the device at once: a desktop takes a moment to notice a new one, and keys sent before that are lost.
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
