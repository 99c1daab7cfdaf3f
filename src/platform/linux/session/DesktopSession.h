#pragma once

#include <string>
#include <vector>

#include "app/DesktopFindings.h"
#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/settings/LinuxActionSettings.h"

namespace kinesta {

/// What kind of session this is, and what works in it.
class DesktopSession {
  public:
    enum class Kind { none, x11, wayland, waylandWithX };

    DesktopSession(DesktopFacts facts, LinuxActionSettings::InputRoute wish);

    Kind kind() const;
    /// One finding for every capability, in the order of the enumeration.
    std::vector<DesktopFinding> findings() const;
    DesktopFinding finding(DesktopCapability capability) const;

  private:
    DesktopFinding sendInput() const;
    DesktopFinding keyboardLayout() const;
    DesktopFinding windows() const;
    std::string windowManagerInWords() const;
    DesktopFinding open() const;
    DesktopFinding notify() const;
    DesktopFinding cue() const;

    DesktopFacts m_facts;
    LinuxActionSettings::InputRoute m_wish;
};

}  // namespace kinesta
