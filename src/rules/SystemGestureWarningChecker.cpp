#include "rules/SystemGestureWarningChecker.h"

#include <array>

namespace kinesta {
namespace {

using Warning = std::optional<SystemGestureWarning>;

bool isTap(GestureKind kind) {
    return kind == GestureKind::singleTap || kind == GestureKind::doubleTap || kind == GestureKind::tripleTap;
}

Warning warningOnMacOS(const GestureRule& rule) {
    if (rule.gesture == GestureKind::anchorDraw)
        return SystemGestureWarning{"May also trigger macOS gestures",
                                    "The drawing finger creates two-finger movement. macOS may scroll or zoom the app "
                                    "beneath the pointer while Kinesta records the pattern."};
    if (rule.fingerCount == 3 && isTap(rule.gesture))
        return SystemGestureWarning{"May conflict with Look Up & Data Detectors",
                                    "macOS can use a three-finger tap to look up words and detect data. Change it in "
                                    "System Settings → Trackpad → Point & Click."};
    if (rule.fingerCount != 2)
        return std::nullopt;
    if (rule.gesture == GestureKind::singleTap)
        return SystemGestureWarning{"May conflict with Secondary Click",
                                    "macOS can use a two-finger tap for Secondary Click. Change it in System Settings "
                                    "→ Trackpad → Point & Click."};
    if (isTap(rule.gesture))
        return SystemGestureWarning{"May conflict with Smart Zoom",
                                    "macOS can use a two-finger double tap for Smart Zoom. Change it in System "
                                    "Settings → Trackpad → Scroll & Zoom."};
    if (isPhysicalClick(rule.gesture))
        return SystemGestureWarning{"May conflict with Secondary Click",
                                    "macOS can use a two-finger click for Secondary Click. Change it in System "
                                    "Settings → Trackpad → Point & Click."};
    if (rule.gesture == GestureKind::edgeSlide)
        return SystemGestureWarning{"May also scroll onscreen content",
                                    "macOS handles two-finger movement as scrolling. Sliding at the edge can also "
                                    "scroll the app beneath the pointer."};
    return std::nullopt;
}

/// The names of a desktop and its settings.
struct DesktopWords {
    std::string name;
    std::string whereTappingIsSet;
    std::string whereClickingIsSet;
    SystemGestureWarning threeFingerSwipe;
    SystemGestureWarning fourFingerSwipe;
};

// Edge slides collide only with vertical swipes. On X11 these desktops have no swipe gestures.
const DesktopWords& gnome() {
    static const DesktopWords words{
        "GNOME",
        "Change it in Settings → Mouse & Touchpad → Touchpad.",
        "Change it in Settings → Mouse & Touchpad → Touchpad, in older versions in Tweaks.",
        {"May also open the Activities overview",
         "On Wayland, GNOME 40 and later take a three-finger swipe up or down for the Activities overview. Settings "
         "has no switch for it; choose another gesture if it gets in the way."},
        {"May also change the workspace",
         "On Wayland, some versions of GNOME take a four-finger swipe up or down to change the workspace. Settings "
         "has no switch for it; choose another gesture if it gets in the way."}};
    return words;
}

const DesktopWords& kde() {
    static const DesktopWords words{
        "KDE Plasma",
        "Change it in System Settings, under Touchpad.",
        "Change it in System Settings, under Touchpad.",
        {"May also change the virtual desktop",
         "On Wayland, Plasma 6 can take a three-finger swipe to change the virtual desktop. It does nothing "
         "while System Settings, under Virtual Desktops, has one only."},
        {"May also open the overview",
         "On Wayland, KDE Plasma can take a four-finger swipe for the overview, or to change the virtual desktop. "
         "Change it in System Settings, under Desktop Effects and Virtual Desktops."}};
    return words;
}

/// Both desktops leave taps, clicks and scrolling to libinput.
Warning warningOnLinux(const GestureRule& rule, const DesktopWords& desktop) {
    if (rule.gesture == GestureKind::anchorDraw)
        return SystemGestureWarning{"May also scroll or zoom",
                                    "The drawing finger creates two-finger movement. " + desktop.name +
                                        " may scroll or zoom the app beneath the pointer while Kinesta records the "
                                        "pattern."};
    const bool isTwo = rule.fingerCount == 2;
    if (!isTwo && rule.fingerCount != 3 && rule.fingerCount != 4)
        return std::nullopt;
    if (rule.gesture == GestureKind::edgeSlide && isTwo)
        return SystemGestureWarning{"May also scroll onscreen content",
                                    desktop.name +
                                        " handles two-finger movement as scrolling. Sliding at the edge "
                                        "can also scroll the app beneath the pointer."};
    if (rule.gesture == GestureKind::edgeSlide)
        return rule.fingerCount == 3 ? desktop.threeFingerSwipe : desktop.fourFingerSwipe;
    if (rule.fingerCount == 4)
        return std::nullopt;
    const std::string title = isTwo ? "May also click the right button" : "May also click the middle button";
    const std::string fingers = isTwo ? "two-finger" : "three-finger";
    // The usual assignment; desktops can also swap the two.
    const std::string button = isTwo ? "a right click" : "a middle click, which pastes in many apps";
    if (isTap(rule.gesture))
        return SystemGestureWarning{title, "While tap-to-click is on, " + desktop.name + " can take a " + fingers +
                                               " tap for " + button + ". " + desktop.whereTappingIsSet};
    if (isPhysicalClick(rule.gesture))
        return SystemGestureWarning{title, desktop.name + " can take a " + fingers + " click for " + button + ". " +
                                               desktop.whereClickingIsSet};
    return std::nullopt;
}

}  // namespace

template <>
std::span<const EnumRow<GestureSystem>> enumTable() {
    static constexpr std::array<EnumRow<GestureSystem>, 4> kTable{{
        {GestureSystem::none, "none", "None"},
        {GestureSystem::macOS, "macos", "macOS"},
        {GestureSystem::gnome, "gnome", "GNOME"},
        {GestureSystem::kde, "kde", "KDE Plasma"},
    }};
    return kTable;
}

std::optional<SystemGestureWarning> SystemGestureWarningChecker::warning(const GestureRule& rule,
                                                                         GestureSystem system) {
    switch (system) {
        case GestureSystem::macOS:
            return warningOnMacOS(rule);
        case GestureSystem::gnome:
            return warningOnLinux(rule, gnome());
        case GestureSystem::kde:
            return warningOnLinux(rule, kde());
        case GestureSystem::none:
            break;
    }
    return std::nullopt;
}

}  // namespace kinesta
