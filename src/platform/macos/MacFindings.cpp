#include "platform/macos/MacFindings.h"

#include <utility>

#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr const char* kAllow = TRANSLATABLE(
    "Switch Kinesta on under System Settings › Privacy & Security › Accessibility; for the command line, the terminal "
    "that it runs in.");
constexpr const char* kSettingsPage =
    "open 'x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility'";

DesktopFinding allowed(DesktopCapability capability, std::string what, bool isTrusted, std::string why) {
    DesktopFinding finding{capability, std::move(what), isTrusted, std::move(why), ""};
    if (!isTrusted) {
        finding.why = translated("macOS has not given this program the accessibility permission.");
        finding.remedy = translated(kAllow);
        finding.command = kSettingsPage;
    }
    return finding;
}

}  // namespace

std::vector<DesktopFinding> macFindings(AccessibilityPermission& permission, KeyboardLayout& layout,
                                        const SystemVersion& version) {
    using enum DesktopCapability;
    const bool isTrusted = permission.isTrusted();
    const bool hasLayout = layout.charactersWithoutModifiers().has_value();
    return {
        allowed(sendInput, translated("Sending keys and clicks"), isTrusted,
                translated("macOS lets this program post them.")),
        {keyboardLayout, translated("Following the keyboard layout"), hasLayout,
         hasLayout ? translated("Shortcuts follow the layout in force.")
                   : translated("macOS gives no keyboard layout."),
         hasLayout ? "" : translated("Choose an input source with a keyboard layout in System Settings.")},
        allowed(windows, translated("Closing and tiling windows"), isTrusted,
                version.majorVersion() >= kFirstVersionThatTiles
                    ? translated("Closed and tiled through the accessibility interface.")
                    : translated("Closed through the accessibility interface. Tiling needs macOS 15.")),
        {open, translated("Opening addresses and files"), true, translated("macOS opens them."), ""},
        {notify, translated("Showing notifications"), true, translated("Kinesta shows problems in its window."), ""},
        {cue, translated("Showing the cue of an action"), true, translated("Shown over all windows."), ""},
    };
}

}  // namespace kinesta
