#include "platform/macos/appearance/MacDisplayPreferences.h"

#include <AppKit/AppKit.h>

#include "platform/macos/foundation/NotificationObservation.h"

namespace kinesta {

MacDisplayPreferences::MacDisplayPreferences()
    // The workspace has a center of its own; on the default center these never come.
    : m_changes(std::make_unique<NotificationObservation>(NSWorkspace.sharedWorkspace.notificationCenter,
                                                          NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification,
                                                          [this] { m_observers.notify([] { return true; }); })) {}

MacDisplayPreferences::~MacDisplayPreferences() = default;

bool MacDisplayPreferences::reducesTransparency() const {
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceTransparency;
}

bool MacDisplayPreferences::reducesMotion() const {
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
}

ThemeContrast MacDisplayPreferences::contrast() const {
    return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldIncreaseContrast ? ThemeContrast::more
                                                                                  : ThemeContrast::standard;
}

}  // namespace kinesta
