#include "platform/macos/appearance/MacAppearance.h"

#include <AppKit/AppKit.h>

#include "platform/macos/appearance/WindowAppearanceBridge.h"
#include "platform/macos/foundation/KeyValueObservation.h"

namespace kinesta {

MacAppearance::MacAppearance(MacDisplayPreferences& preferences)
    : m_preferences(preferences),
      m_contrast(preferences.observe([this] { applyColours(); })),
      m_system(std::make_unique<KeyValueObservation>(NSApplication.sharedApplication, @"effectiveAppearance",
                                                     [this] { applyColours(); })) {}

MacAppearance::~MacAppearance() = default;

void MacAppearance::force(std::optional<NamedAppearance> appearance) {
    m_forced = appearance;
    if (m_window)
        m_window->setAppearance(appearance);
    applyColours();
}

void MacAppearance::setWindowView(void* view) {
    m_window.reset();
    if (!view)
        return;
    m_window = std::make_unique<WindowAppearanceBridge>(view);
    m_window->setAppearance(m_forced);
}

NamedAppearance MacAppearance::appearance() const {
    if (m_forced)
        return *m_forced;
    NSAppearanceName const name = [NSApplication.sharedApplication.effectiveAppearance
        bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
    return [name isEqualToString:NSAppearanceNameDarkAqua] ? NamedAppearance::darkAqua : NamedAppearance::aqua;
}

void MacAppearance::applyColours() {
    const AppTheme theme = AppTheme::of(appearance(), m_preferences.contrast());
    if (theme != m_theme.value())
        m_theme.set(theme);
}

}  // namespace kinesta
