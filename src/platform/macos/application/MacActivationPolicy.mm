#include "platform/macos/application/MacActivationPolicy.h"

#include <AppKit/AppKit.h>

namespace kinesta {

ActivationPolicy::Kind MacActivationPolicy::kind() const {
    return [NSApplication.sharedApplication activationPolicy] == NSApplicationActivationPolicyRegular ? Kind::regular
                                                                                                      : Kind::accessory;
}

void MacActivationPolicy::set(Kind kind) {
    // The menu bar answers only after the next activation, in a later turn of the main loop (from memory).
    [NSApplication.sharedApplication setActivationPolicy:kind == Kind::regular
                                                             ? NSApplicationActivationPolicyRegular
                                                             : NSApplicationActivationPolicyAccessory];
}

bool MacActivationPolicy::isActive() const { return NSApplication.sharedApplication.isActive; }

void MacActivationPolicy::activateIgnoringOtherApplications() {
    [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
}

}  // namespace kinesta
