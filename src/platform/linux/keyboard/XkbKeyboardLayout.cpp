#include "platform/linux/keyboard/XkbKeyboardLayout.h"

#include <utility>

#include "platform/linux/keyboard/KeyboardNames.h"
#include "platform/linux/keyboard/XkbKeys.h"

namespace kinesta {
namespace {

std::vector<KeyboardLayoutCharacters> charactersOfSystem(const std::string& path) {
    const KeyboardNames names = KeyboardNames::read(path);
    const xkb_rule_names rules{nullptr, names.model.c_str(), names.layout.c_str(), names.variant.c_str(),
                               names.options.c_str()};
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (!context)
        return {};
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);  // if this fails, keys keep their places
    const XkbKeymapPointer keymap(xkb_keymap_new_from_names(context.get(), &rules, XKB_KEYMAP_COMPILE_NO_FLAGS));
    return keymap ? charactersOfGroups(keymap.get()) : std::vector<KeyboardLayoutCharacters>{};
}

}  // namespace

XkbKeyboardLayout::XkbKeyboardLayout(X11Keyboard& keyboard, std::string systemKeyboardFile)
    : m_keyboard(keyboard), m_systemKeyboardFile(std::move(systemKeyboardFile)) {}

std::optional<KeyboardLayoutCharacters> XkbKeyboardLayout::charactersWithoutModifiers() {
    if (const KeyboardLayoutCharacters* characters = m_keyboard.characters())
        return *characters;
    const auto& layouts = systemLayouts();
    return layouts.empty() ? std::nullopt : std::optional(layouts.front());
}

std::vector<KeyboardLayoutCharacters> XkbKeyboardLayout::charactersOfLayouts() {
    auto layouts = m_keyboard.charactersOfGroups();
    return layouts.empty() ? systemLayouts() : layouts;
}

const std::vector<KeyboardLayoutCharacters>& XkbKeyboardLayout::systemLayouts() {
    if (m_systemCharacters.empty())  // read once: it changes only when the system is set up again
        m_systemCharacters = charactersOfSystem(m_systemKeyboardFile);
    return m_systemCharacters;
}

}  // namespace kinesta
