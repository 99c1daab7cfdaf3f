#pragma once

#include "actions/KeyboardLayout.h"
#include "app/KeyRecording.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Knows what PostingEventSynthesizer makes of shortcuts, so that recording can undo it.
///
/// Keys are kernel codes plus 8, symbols are keysyms and modifiers the eight real modifiers of X, which Qt reports in
/// X11 and in Wayland sessions alike.
class LinuxKeyRecording final : public KeyRecording {
  public:
    /// Both must outlive this.
    LinuxKeyRecording(KeyboardLayout& layout, const UserDefaults& defaults) : m_layout(layout), m_defaults(defaults) {}

    HeldModifiers givenBy(const NativeKey& key) const override;
    HeldModifiers inForce(const NativeKey& key) const override;
    Held read(HeldModifiers held) const override;
    Result<std::uint16_t> keyCodeOf(const NativeKey& key) const override;
    ShortcutModifiers modifiersWith(std::uint16_t keyCode, HeldModifiers held) const override;
    std::optional<std::uint16_t> underFunction(std::uint16_t keyCode) const override;
    bool presses(std::uint16_t keyCode, std::uint64_t flags, const NativeKey& key, HeldModifiers held) const override;
    KeyboardLayout& layout() override { return m_layout; }
    KeyWords words(ShortcutModifiers modifiers) const override;
    std::string nameWithFunction(std::uint16_t keyCode, std::uint64_t flags) const override;
    bool works(const CommonMacShortcut& preset) const override;

  private:
    LinuxActionSettings::CommandKey commandKey() const { return LinuxActionSettings::read(m_defaults).commandKey; }

    KeyboardLayout& m_layout;
    const UserDefaults& m_defaults;
};

}  // namespace kinesta
