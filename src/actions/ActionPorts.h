#pragma once

#include "actions/AccessibilityElements.h"
#include "actions/AccessibilityPermission.h"
#include "actions/ApplicationNotifications.h"
#include "actions/EventSynthesizer.h"
#include "actions/HomeFolders.h"
#include "actions/KeyboardLayout.h"
#include "actions/OwnMenus.h"
#include "actions/OwnWindows.h"
#include "actions/ProcessLauncher.h"
#include "actions/Workspace.h"
#include "feedback/ActionCuePresenting.h"
#include "support/Clock.h"
#include "support/SystemVersion.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Everything that actions need from the machine. The referents must outlive every user of the struct.
struct ActionPorts {
    const Clock& clock;
    const UserDefaults& defaults;
    const SystemVersion& systemVersion;
    const HomeFolders& homeFolders;
    AccessibilityPermission& permission;
    EventSynthesizer& events;
    KeyboardLayout& keyboardLayout;
    Workspace& workspace;
    ProcessLauncher& processes;
    AccessibilityElements& accessibility;
    OwnWindows& ownWindows;
    OwnMenus& ownMenus;
    ApplicationNotifications& notifications;
    ActionCuePresenting& cue;
};

}  // namespace kinesta
