#include "platform/linux/keyboard/AnsiKeyCodes.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>
#include <string>

#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::uint16_t kNone = KEY_RESERVED;
constexpr std::uint64_t kFunctionFlag = 0x800000;

// Indexed by virtual key code, eight in a row. 127, the power key, is left out: no gesture should switch the machine
// off.
constexpr std::array<std::uint16_t, 128> kKeys{
    // clang-format off
    /*   0 */ KEY_A, KEY_S, KEY_D, KEY_F, KEY_H, KEY_G, KEY_Z, KEY_X,
    /*   8 */ KEY_C, KEY_V, KEY_102ND, KEY_B, KEY_Q, KEY_W, KEY_E, KEY_R,
    /*  16 */ KEY_Y, KEY_T, KEY_1, KEY_2, KEY_3, KEY_4, KEY_6, KEY_5,
    /*  24 */ KEY_EQUAL, KEY_9, KEY_7, KEY_MINUS, KEY_8, KEY_0, KEY_RIGHTBRACE, KEY_O,
    /*  32 */ KEY_U, KEY_LEFTBRACE, KEY_I, KEY_P, KEY_ENTER, KEY_L, KEY_J, KEY_APOSTROPHE,
    /*  40 */ KEY_K, KEY_SEMICOLON, KEY_BACKSLASH, KEY_COMMA, KEY_SLASH, KEY_N, KEY_M, KEY_DOT,
    /*  48 */ KEY_TAB, KEY_SPACE, KEY_GRAVE, KEY_BACKSPACE, kNone, KEY_ESC, KEY_RIGHTMETA, KEY_LEFTMETA,
    /*  56 */ KEY_LEFTSHIFT, KEY_CAPSLOCK, KEY_LEFTALT, KEY_LEFTCTRL, KEY_RIGHTSHIFT, KEY_RIGHTALT, KEY_RIGHTCTRL, kNone,
    /*  64 */ KEY_F17, KEY_KPDOT, kNone, KEY_KPASTERISK, kNone, KEY_KPPLUS, kNone, KEY_NUMLOCK,
    /*  72 */ KEY_VOLUMEUP, KEY_VOLUMEDOWN, KEY_MUTE, KEY_KPSLASH, KEY_KPENTER, kNone, KEY_KPMINUS, KEY_F18,
    /*  80 */ KEY_F19, KEY_KPEQUAL, KEY_KP0, KEY_KP1, KEY_KP2, KEY_KP3, KEY_KP4, KEY_KP5,
    /*  88 */ KEY_KP6, KEY_KP7, KEY_F20, KEY_KP8, KEY_KP9, KEY_YEN, KEY_RO, KEY_KPJPCOMMA,
    /*  96 */ KEY_F5, KEY_F6, KEY_F7, KEY_F3, KEY_F8, KEY_F9, KEY_HANJA, KEY_F11,
    /* 104 */ KEY_HANGEUL, KEY_F13, KEY_F16, KEY_F14, kNone, KEY_F10, KEY_COMPOSE, KEY_F12,
    /* 112 */ kNone, KEY_F15, KEY_INSERT, KEY_HOME, KEY_PAGEUP, KEY_DELETE, KEY_F4, KEY_END,
    /* 120 */ KEY_F2, KEY_PAGEDOWN, KEY_F1, KEY_LEFT, KEY_RIGHT, KEY_DOWN, KEY_UP, kNone,
    // clang-format on
};

// What fn turns a key into. Keys that keyboards already report with fn applied stay as they are.
std::optional<std::uint16_t> withFunction(std::uint16_t code) {
    switch (code) {
        case KEY_LEFT:
            return KEY_HOME;
        case KEY_RIGHT:
            return KEY_END;
        case KEY_UP:
            return KEY_PAGEUP;
        case KEY_DOWN:
            return KEY_PAGEDOWN;
        case KEY_BACKSPACE:
            return KEY_DELETE;
        case KEY_ENTER:
            return KEY_KPENTER;
        case KEY_HOME:
        case KEY_END:
        case KEY_PAGEUP:
        case KEY_PAGEDOWN:
        case KEY_DELETE:
        case KEY_INSERT:
        case KEY_F11:
        case KEY_F12:
            return code;
        default:
            break;
    }
    if ((code >= KEY_F1 && code <= KEY_F10) || (code >= KEY_F13 && code <= KEY_F20))
        return code;
    return std::nullopt;
}

/// Arrows with ⌃fn, ⌃⇧fn or ⌃⌥⇧fn. Tiling commands on letters need no check, because letters have no meaning with fn.
bool isTiling(std::uint16_t ansiKeyCode, std::uint64_t flags) {
    constexpr std::uint16_t kFirstArrow = 123;
    constexpr std::uint16_t kLastArrow = 126;
    return ansiKeyCode >= kFirstArrow && ansiKeyCode <= kLastArrow &&
           (flags == 0xA40000 || flags == 0xA60000 || flags == 0xAE0000);
}

}  // namespace

std::optional<std::uint16_t> evdevKeyCode(std::uint16_t ansiKeyCode) {
    if (ansiKeyCode >= kKeys.size() || kKeys[ansiKeyCode] == kNone)
        return std::nullopt;
    return kKeys[ansiKeyCode];
}

std::optional<std::uint16_t> ansiKeyCode(std::uint16_t evdevKeyCode) {
    const auto* const key = std::ranges::find(kKeys, evdevKeyCode);
    if (evdevKeyCode == kNone || key == kKeys.end())
        return std::nullopt;
    return static_cast<std::uint16_t>(key - kKeys.begin());
}

std::optional<std::uint16_t> keyForShortcut(std::uint16_t ansiKeyCode, std::uint64_t flags) {
    const auto code = evdevKeyCode(ansiKeyCode);
    if (!code || (flags & kFunctionFlag) == 0)
        return code;
    return withFunction(*code);
}

std::optional<Obstacle> obstacleToKey(std::uint16_t ansiKeyCode, std::uint64_t flags) {
    if (isTiling(ansiKeyCode, flags))
        return Obstacle{translated("The shortcut tiles windows, and that was not possible."),
                        translated("See: kinesta doctor")};
    if (keyForShortcut(ansiKeyCode, flags))
        return std::nullopt;
    const std::string key = std::to_string(ansiKeyCode);
    if (evdevKeyCode(ansiKeyCode))
        return Obstacle{translated("The key with code %1 has no meaning together with fn on this desktop.", {key}),
                        translated("Choose another shortcut.")};
    return Obstacle{translated("The key with code %1 is not on keyboards here.", {key}),
                    translated("Choose another key.")};
}

}  // namespace kinesta
