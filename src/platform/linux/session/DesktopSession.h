#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/settings/LinuxActionSettings.h"

namespace kinesta {

/// What a session may or may not let us do.
enum class DesktopCapability { sendInput, keyboardLayout, windows, open, notify };

/// One thing that works or not, in plain words.
struct DesktopFinding {
    DesktopCapability capability;
    /// "Sending keys and clicks"
    std::string what;
    bool works = false;
    /// How it works, or what stands in the way: one or two sentences.
    std::string why;
    /// What the person can do about it; empty if nothing need be done.
    std::string remedy;
};

/// What kind of session this is and what that means for actions.
class DesktopSession {
  public:
    enum class Kind { none, x11, wayland, waylandWithX };

    DesktopSession(const DesktopFacts& facts, LinuxActionSettings::InputRoute wish);

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

    DesktopFacts m_facts;
    LinuxActionSettings::InputRoute m_wish;
};

}  // namespace kinesta
