#include "platform/linux/keyboard/LinuxKeyRecording.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "platform/linux/keyboard/KeyStroke.h"
#include "platform/linux/keyboard/XkbObjects.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using CommandKey = LinuxActionSettings::CommandKey;

constexpr std::uint16_t kTab = 48;
constexpr std::uint64_t kFunctionFlag = 0x800000;

constexpr bool isIn(std::uint32_t symbol, std::uint32_t first, std::uint32_t last) {
    return symbol >= first && symbol <= last;
}

bool isLock(std::uint32_t symbol) {
    return symbol == XKB_KEY_Caps_Lock || symbol == XKB_KEY_Shift_Lock || symbol == XKB_KEY_Num_Lock ||
           symbol == XKB_KEY_Scroll_Lock;
}

/// A key that is another one while fn is held, and the name of that one.
struct FunctionKey {
    std::uint16_t ansiKeyCode;
    const char* name;
};

constexpr std::array<FunctionKey, 6> kFunctionKeys{{
    {123, TRANSLATABLE("Home")},
    {124, TRANSLATABLE("End")},
    {126, TRANSLATABLE("Page Up")},
    {125, TRANSLATABLE("Page Down")},
    {51, TRANSLATABLE("Forward Delete")},
    {36, TRANSLATABLE("Enter")},
}};

std::uint16_t kernelCode(const NativeKey& key) { return static_cast<std::uint16_t>(key.code - kFirstXkbKeycode); }

/// The modifiers of a stored shortcut that press exactly these; nothing if there are none.
std::optional<ShortcutModifiers> storedModifiers(HeldModifiers held, CommandKey commandKey) {
    if ((held & kOtherModifier) != 0)
        return std::nullopt;
    ShortcutModifiers modifiers;
    if ((held & kShiftModifier) != 0)
        modifiers = modifiers | ShortcutModifiers::shift;
    if ((held & kAltModifier) != 0)
        modifiers = modifiers | ShortcutModifiers::option;
    const bool isControl = (held & kControlModifier) != 0;
    const bool isSuper = (held & kSuperModifier) != 0;
    if (commandKey == CommandKey::control && isSuper && !isControl)
        return std::nullopt;
    // While ⌘ stands for Ctrl, Ctrl is stored as ⌘, so that Copy is what it is on a Mac.
    if (isSuper || (isControl && commandKey == CommandKey::control))
        modifiers = modifiers | ShortcutModifiers::command;
    if (isControl && (isSuper || commandKey == CommandKey::super))
        modifiers = modifiers | ShortcutModifiers::control;
    return modifiers;
}

}  // namespace

HeldModifiers LinuxKeyRecording::givenBy(const NativeKey& key) const {
    switch (key.symbol) {
        case XKB_KEY_Shift_L:
        case XKB_KEY_Shift_R:
            return kShiftModifier;
        case XKB_KEY_Control_L:
        case XKB_KEY_Control_R:
            return kControlModifier;
        case XKB_KEY_Alt_L:
        case XKB_KEY_Alt_R:
        case XKB_KEY_Meta_L:  // Alt while Shift is down
        case XKB_KEY_Meta_R:
            return kAltModifier;
        case XKB_KEY_Super_L:
        case XKB_KEY_Super_R:
            return kSuperModifier;
        case XKB_KEY_Hyper_L:
        case XKB_KEY_Hyper_R:
        case XKB_KEY_Mode_switch:
            return kOtherModifier;
        default:
            // AltGr and its relatives, which hold, latch or lock a level or a layout.
            return isIn(key.symbol, XKB_KEY_ISO_Lock, XKB_KEY_ISO_Level5_Lock) ? kOtherModifier : HeldModifiers{0};
    }
}

HeldModifiers LinuxKeyRecording::inForce(const NativeKey& key) const {
    constexpr std::array<HeldModifiers, 8> kByBit{kShiftModifier,
                                                  0,
                                                  kControlModifier,
                                                  kAltModifier,
                                                  0,  // the locks count for nothing
                                                  kOtherModifier,
                                                  kSuperModifier,
                                                  kOtherModifier};
    HeldModifiers held = 0;
    for (std::size_t bit = 0; bit < kByBit.size(); ++bit)
        if ((key.modifiers >> bit & 1U) != 0)
            held |= kByBit[bit];
    return held;
}

KeyRecording::Held LinuxKeyRecording::read(HeldModifiers held) const {
    const CommandKey command = commandKey();
    if (const auto modifiers = storedModifiers(held, command))
        return {*modifiers, words(*modifiers), ""};
    const auto expressible = static_cast<HeldModifiers>(held & ~kOtherModifier);
    // Super alone is shown as what it is.
    const auto shown = storedModifiers(expressible, CommandKey::super).value_or(ShortcutModifiers());
    KeyWords names = words(shown);
    names.command = translated("Super");
    return {shown, names,
            translated((held & kOtherModifier) != 0
                           ? TRANSLATABLE("AltGr and Hyper cannot be part of a shortcut.")
                           : TRANSLATABLE("While ⌘ stands for Ctrl, Super counts only together with Ctrl. Settings can "
                                          "change what ⌘ stands for."))};
}

Result<std::uint16_t> LinuxKeyRecording::keyCodeOf(const NativeKey& key) const {
    if (isLock(key.symbol))
        return Error{translated("Keys that lock others cannot be part of a shortcut. Press another key.")};
    if (const auto keyCode = ansiKeyCode(kernelCode(key)))
        return *keyCode;
    return Error{translated("A shortcut cannot hold this key. Press another one.")};
}

ShortcutModifiers LinuxKeyRecording::modifiersWith(std::uint16_t keyCode, HeldModifiers held) const {
    // Ctrl+Tab changes tabs here as ⌃Tab does on a Mac, where ⌘Tab changes applications.
    const bool changesTabs = keyCode == kTab && (held & ~kShiftModifier) == kControlModifier;
    const auto stored = storedModifiers(held, changesTabs ? CommandKey::super : commandKey());
    return stored.value_or(ShortcutModifiers{});
}

std::optional<std::uint16_t> LinuxKeyRecording::underFunction(std::uint16_t keyCode) const {
    for (const FunctionKey& key : kFunctionKeys)
        if (evdevKeyCode(keyCode) == keyForShortcut(key.ansiKeyCode, kFunctionFlag))
            return key.ansiKeyCode;
    return std::nullopt;
}

bool LinuxKeyRecording::presses(std::uint16_t keyCode, std::uint64_t flags, const NativeKey& key,
                                HeldModifiers held) const {
    return !obstacleToKey(keyCode, flags) && keyForShortcut(keyCode, flags) == kernelCode(key) &&
           modifiersForFlags(flags, commandKey()) == held;
}

KeyWords LinuxKeyRecording::words(ShortcutModifiers modifiers) const {
    const bool isSuper = commandKey() == CommandKey::super || modifiers.contains(ShortcutModifiers::control);
    return {.shift = translated("Shift"),
            .control = translated("Ctrl"),
            .option = translated("Alt"),
            .command = isSuper ? translated("Super") : translated("Ctrl"),
            .function = "fn",
            .standBesideSigns = true};
}

std::string LinuxKeyRecording::nameWithFunction(std::uint16_t keyCode, std::uint64_t flags) const {
    if (obstacleToKey(keyCode, flags))  // it tiles windows
        return {};
    const auto* const key = std::ranges::find(kFunctionKeys, keyCode, &FunctionKey::ansiKeyCode);
    return key == kFunctionKeys.end() ? std::string() : translated(key->name);
}

bool LinuxKeyRecording::works(const CommonMacShortcut& preset) const {
    // Who lets ⌘ be Super has a desktop or a remapper that takes such keys. With Ctrl most programs here agree on the
    // rest; these keys do nothing or something else: Hide App would open the history of a browser.
    if (commandKey() == CommandKey::super)
        return true;
    constexpr std::array<std::string_view, 19> kOnlyOnMacs{
        "Close All Windows",     "Minimize Window",   "Minimize All Windows", "Hide App",       "Hide Other Apps",
        "Toggle Full Screen",    "Switch App",        "Next App Window",      "Move to Trash",  "Duplicate",
        "Eject Selected Volume", "Go to Folder",      "Open Home Folder",     "Open Downloads", "Open Documents",
        "Open Recents",          "Open iCloud Drive", "Open AirDrop",         "Open Utilities",
    };
    return preset.category != "System" && std::ranges::find(kOnlyOnMacs, preset.title) == kOnlyOnMacs.end();
}

}  // namespace kinesta
