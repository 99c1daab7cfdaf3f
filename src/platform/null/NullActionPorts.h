#pragma once

#include "actions/ActionPorts.h"
#include "platform/null/NullAccessibilityElements.h"
#include "platform/null/NullAccessibilityPermission.h"
#include "platform/null/NullActionCuePresenter.h"
#include "platform/null/NullEventSynthesizer.h"
#include "platform/null/NullHomeFolders.h"
#include "platform/null/NullKeyboardLayout.h"
#include "platform/null/NullOwnMenus.h"
#include "platform/null/NullOwnWindows.h"
#include "platform/null/NullProcessLauncher.h"
#include "platform/null/NullSystemVersion.h"
#include "platform/null/NullWorkspace.h"

namespace kinesta {

/// What actions find on a machine without a desktop: only this application itself can be reached.
class NullActionPorts {
  public:
    /// The ports, with what every machine has. Refers to this object and to all three.
    ActionPorts ports(const Clock& clock, const UserDefaults& defaults, ApplicationNotifications& notifications) {
        return {clock,       defaults,    m_systemVersion, m_homeFolders, m_permission, m_events,      m_keyboardLayout,
                m_workspace, m_processes, m_accessibility, m_ownWindows,  m_ownMenus,   notifications, m_cue};
    }

  private:
    NullSystemVersion m_systemVersion;
    NullHomeFolders m_homeFolders;
    NullAccessibilityPermission m_permission;
    NullEventSynthesizer m_events;
    NullKeyboardLayout m_keyboardLayout;
    NullWorkspace m_workspace;
    NullProcessLauncher m_processes;
    NullAccessibilityElements m_accessibility;
    NullOwnWindows m_ownWindows;
    NullOwnMenus m_ownMenus;
    NullActionCuePresenter m_cue;
};

}  // namespace kinesta
