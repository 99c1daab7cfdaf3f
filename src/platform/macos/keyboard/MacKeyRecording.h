#pragma once

#include "app/KeyRecording.h"

namespace kinesta {

/// Shortcuts are posted with the keys and modifiers of a Mac, so that those of a pressed key are the ones to store.
///
/// The symbol of a key is its virtual key code, and its modifiers are the flags of its event. Its code says nothing: Qt
/// has no scan codes here. Qt has no event of the fn key either; it shows in the flags of the other keys.
class MacKeyRecording final : public KeyRecording {
  public:
    /// `layout` must outlive this.
    explicit MacKeyRecording(KeyboardLayout& layout) : m_layout(layout) {}

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
    KeyboardLayout& m_layout;
};

}  // namespace kinesta
