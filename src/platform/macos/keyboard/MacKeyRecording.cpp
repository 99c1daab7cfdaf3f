#include "platform/macos/keyboard/MacKeyRecording.h"

#include <CoreGraphics/CoreGraphics.h>

#include <array>

#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::uint32_t kCapsLock = 57;
constexpr std::uint32_t kFunction = 63;

/// Held modifiers are stored as they are.
constexpr HeldModifiers bitsOf(ShortcutModifiers modifiers) { return static_cast<HeldModifiers>(modifiers.rawValue); }

struct Modifier {
    ShortcutModifiers member;
    std::uint64_t flag;
    std::uint32_t leftKey;
    std::uint32_t rightKey;
};

constexpr std::array<Modifier, 5> kModifiers{{
    {ShortcutModifiers::command, kCGEventFlagMaskCommand, 55, 54},
    {ShortcutModifiers::option, kCGEventFlagMaskAlternate, 58, 61},
    {ShortcutModifiers::control, kCGEventFlagMaskControl, 59, 62},
    {ShortcutModifiers::shift, kCGEventFlagMaskShift, 56, 60},
    {ShortcutModifiers::function, kCGEventFlagMaskSecondaryFn, kFunction, kFunction},
}};

HeldModifiers modifiersForFlags(std::uint64_t flags) {
    HeldModifiers held = 0;
    for (const Modifier& modifier : kModifiers)
        if ((flags & modifier.flag) != 0)
            held |= bitsOf(modifier.member);
    return held;
}

/// Whether events of this key have the flag of fn even if fn is up: F1 to F20, arrows, Home and its neighbours, Help.
/// To be tried: the same for the keys of Japanese keyboards, which lie between them.
constexpr bool isFunctionKey(std::uint32_t keyCode) {
    return keyCode >= 96 || keyCode == 64 || keyCode == 79 || keyCode == 80 || keyCode == 90;
}

}  // namespace

HeldModifiers MacKeyRecording::givenBy(const NativeKey& key) const {
    // Rests on Qt, which makes key events of modifiers itself, passing on their virtual key codes as well.
    for (const Modifier& modifier : kModifiers)
        if (key.symbol == modifier.leftKey || key.symbol == modifier.rightKey)
            return bitsOf(modifier.member);
    return 0;
}

HeldModifiers MacKeyRecording::inForce(const NativeKey& key) const {
    const std::uint64_t doubtful = isFunctionKey(key.symbol) ? kCGEventFlagMaskSecondaryFn : 0;
    return modifiersForFlags(key.modifiers & ~doubtful);
}

KeyRecording::Held MacKeyRecording::read(HeldModifiers held) const {
    const ShortcutModifiers modifiers{held};
    return {modifiers, words(modifiers), ""};
}

Result<std::uint16_t> MacKeyRecording::keyCodeOf(const NativeKey& key) const {
    if (key.symbol == kCapsLock)
        return Error{translated("Keys that lock others cannot be part of a shortcut. Press another key.")};
    if (key.symbol >= std::tuple_size_v<KeyboardLayoutCharacters>)
        return Error{translated("A shortcut cannot hold this key. Press another one.")};
    return static_cast<std::uint16_t>(key.symbol);
}

ShortcutModifiers MacKeyRecording::modifiersWith(std::uint16_t /*keyCode*/, HeldModifiers held) const {
    return ShortcutModifiers{held};
}

std::optional<std::uint16_t> MacKeyRecording::underFunction(std::uint16_t /*keyCode*/) const {
    return std::nullopt;  // Home as it arrives is posted as Home
}

bool MacKeyRecording::presses(std::uint16_t keyCode, std::uint64_t flags, const NativeKey& key,
                              HeldModifiers held) const {
    return keyCode == key.symbol && modifiersForFlags(flags) == held;
}

KeyWords MacKeyRecording::words(ShortcutModifiers /*modifiers*/) const {
    return {.shift = translated("Shift"),
            .control = translated("Control"),
            .option = translated("Option"),
            .command = translated("Command"),
            .function = "fn",
            .standBesideSigns = false};
}

std::string MacKeyRecording::nameWithFunction(std::uint16_t /*keyCode*/, std::uint64_t /*flags*/) const {
    return {};  // keyboards here say fn and Left
}

bool MacKeyRecording::works(const CommonMacShortcut& /*preset*/) const { return true; }

}  // namespace kinesta
