#pragma once

#include "CFakes.h"
#include "MacTest.h"
#include "platform/macos/accessibility/MacAccessibilityElements.h"
#include "platform/macos/accessibility/MacAccessibilityPermission.h"
#include "platform/macos/events/MacEventSynthesizer.h"
#include "platform/macos/keyboard/MacKeyboardLayout.h"
#include "support/FakeActionDesktop.h"

namespace kinesta {

/// A person's Mac on which actions work. What these ports do not do is that of a fake desktop, whose log also has what
/// was asked of application 7.
class MacActionsTest : public MacTest {
  protected:
    MacActionsTest() { becomeAsAfterLogin(); }

    /// Also forgets what a test has changed so far, and the numbers of objects.
    void becomeAsAfterLogin() {
        @autoreleasepool {
            fakes::reset();
        }
        objc::reset();
        fakes::setTrusted(true);
        fakes::showApplications(&desktop.ports().accessibility);
    }

    ActionPorts ports() {
        const ActionPorts other = desktop.ports();
        return {other.clock,      other.defaults, other.systemVersion, other.homeFolders, permission,
                events,           layout,         other.workspace,     other.processes,   elements,
                other.ownWindows, other.ownMenus, other.notifications, other.cue};
    }

    testing::FakeActionDesktop desktop;
    MacAccessibilityPermission permission;
    MacEventSynthesizer events;
    MacKeyboardLayout layout;
    MacAccessibilityElements elements;
};

}  // namespace kinesta
