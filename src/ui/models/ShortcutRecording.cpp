#include "ui/models/ShortcutRecording.h"

#include <algorithm>
#include <utility>

#include "rules/ShortcutKey.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

bool hasName(std::uint16_t keyCode) {
    return std::ranges::find(ShortcutKey::choices(), keyCode, &ShortcutKey::keyCode) != ShortcutKey::choices().end() ||
           !printedName(keyCode).empty();
}

}  // namespace

void ShortcutRecording::setShortcut(const std::optional<RecordedShortcut>& shortcut) {
    if (shortcut == m_shortcut)
        return;
    m_shortcut = shortcut;
    if (m_state == State::unheard)
        rest();
}

void ShortcutRecording::start() {
    rest();
    m_state = State::listening;
}

void ShortcutRecording::cancel() { rest(); }

void ShortcutRecording::clear() { record(std::nullopt); }

void ShortcutRecording::leave() {
    const bool isUnheard = m_state == State::listening && m_seen != 0 && m_stage != Stage::refused;
    const HeldModifiers seen = m_seen;
    rest();
    if (!isUnheard)
        return;
    m_state = State::unheard;
    m_seen = seen;
}

/// Modifiers that were in force before, or are held since.
HeldModifiers ShortcutRecording::held(const NativeKey& key) const {
    HeldModifiers held = m_keyboard.inForce(key);
    for (const auto& [code, modifiers] : m_down)
        held |= modifiers;
    return held;
}

void ShortcutRecording::press(const NativeKey& key, Meaning meaning) {
    if (m_state != State::listening)
        return;
    if (const HeldModifiers given = m_keyboard.givenBy(key)) {
        m_down[key.code] = given;
        m_seen = m_held = held(key);
        m_refusal = m_keyboard.read(m_held).problem;
        m_stage = m_refusal.empty() ? Stage::waiting : Stage::refused;
        return;
    }
    const HeldModifiers modifiers = held(key);
    if (modifiers == 0 && meaning == Meaning::cancel)
        return cancel();
    if (modifiers == 0 && meaning == Meaning::clear)
        return clear();
    const auto shortcut = shortcutOf(key, modifiers, m_keyboard);
    if (shortcut)
        return record(*shortcut);
    m_refusal = shortcut.error().message;
    m_stage = Stage::refused;
}

void ShortcutRecording::release(const NativeKey& key) {
    if (m_state != State::listening)
        return;
    // A key that was down before we listened is known only by what it gives.
    const HeldModifiers given = m_keyboard.givenBy(key);
    if (given == 0)
        return;
    m_down.erase(key.code);
    HeldModifiers others = 0;
    for (const auto& [code, modifiers] : m_down)
        others |= modifiers;
    m_held = static_cast<HeldModifiers>((m_keyboard.inForce(key) & ~given) | others);
    if (m_held == 0 && m_stage == Stage::waiting)
        m_stage = Stage::needsKey;
}

void ShortcutRecording::rest() {
    m_state = State::resting;
    m_stage = Stage::waiting;
    m_down.clear();
    m_held = m_seen = 0;
    m_refusal.clear();
}

void ShortcutRecording::record(const std::optional<RecordedShortcut>& shortcut) {
    rest();
    m_shortcut = shortcut;
    if (onRecorded)
        onRecorded(shortcut);
}

std::vector<KeyCap> ShortcutRecording::caps() const {
    if (m_state == State::resting)
        return m_shortcut ? shortcutCaps(*m_shortcut, m_keyboard) : std::vector<KeyCap>();
    const auto reading = m_keyboard.read(m_state == State::listening ? m_held : m_seen);
    return modifierCaps(reading.modifiers, reading.words);
}

std::string ShortcutRecording::hint() const {
    switch (m_state) {
        case State::unheard:
            return translated("Nothing arrived. The desktop may keep this key for itself: see Other keys.");
        case State::resting:
            return m_shortcut && !hasName(m_shortcut->keyCode) ? translated("It goes out by its place on the keyboard.")
                                                               : "";
        case State::listening:
            break;
    }
    switch (m_stage) {
        case Stage::refused:
            return m_refusal;
        case Stage::needsKey:
            return translated("A shortcut needs one more key.");
        case Stage::waiting:
            break;
    }
    return translated("Press the keys. Escape cancels, Delete clears.");
}

}  // namespace kinesta
