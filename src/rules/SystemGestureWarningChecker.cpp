#include "rules/SystemGestureWarningChecker.h"

#include <array>

#include "support/Translation.h"

namespace kinesta {
namespace {

using Warning = std::optional<SystemGestureWarning>;

bool isTap(GestureKind kind) {
    return kind == GestureKind::singleTap || kind == GestureKind::doubleTap || kind == GestureKind::tripleTap;
}

Warning warningOnMacOS(const GestureRule& rule) {
    if (rule.gesture == GestureKind::anchorDraw)
        return SystemGestureWarning{
            TRANSLATABLE("May also trigger macOS gestures"),
            TRANSLATABLE("The drawing finger creates two-finger movement. macOS may scroll or zoom the app "
                         "beneath the pointer while Kinesta records the pattern.")};
    if (rule.fingerCount == 3 && isTap(rule.gesture))
        return SystemGestureWarning{
            TRANSLATABLE("May conflict with Look Up & Data Detectors"),
            TRANSLATABLE("macOS can use a three-finger tap to look up words and detect data. Change it in "
                         "System Settings → Trackpad → Point & Click.")};
    if (rule.fingerCount != 2)
        return std::nullopt;
    if (rule.gesture == GestureKind::singleTap)
        return SystemGestureWarning{
            TRANSLATABLE("May conflict with Secondary Click"),
            TRANSLATABLE("macOS can use a two-finger tap for Secondary Click. Change it in System Settings "
                         "→ Trackpad → Point & Click.")};
    if (isTap(rule.gesture))
        return SystemGestureWarning{
            TRANSLATABLE("May conflict with Smart Zoom"),
            TRANSLATABLE("macOS can use a two-finger double tap for Smart Zoom. Change it in System "
                         "Settings → Trackpad → Scroll & Zoom.")};
    if (isPhysicalClick(rule.gesture))
        return SystemGestureWarning{
            TRANSLATABLE("May conflict with Secondary Click"),
            TRANSLATABLE("macOS can use a two-finger click for Secondary Click. Change it in System "
                         "Settings → Trackpad → Point & Click.")};
    if (rule.gesture == GestureKind::edgeSlide)
        return SystemGestureWarning{
            TRANSLATABLE("May also scroll onscreen content"),
            TRANSLATABLE("macOS handles two-finger movement as scrolling. Sliding at the edge can also "
                         "scroll the app beneath the pointer.")};
    return std::nullopt;
}

/// The names of a desktop and its settings. %1 in a sentence is its name.
struct DesktopWords {
    std::string name;
    std::string_view twoFingerTap;
    std::string_view threeFingerTap;
    std::string_view twoFingerClick;
    std::string_view threeFingerClick;
    SystemGestureWarning threeFingerSwipe;
    SystemGestureWarning fourFingerSwipe;
};

// Edge slides collide only with vertical swipes. On X11 these desktops have no swipe gestures.
const DesktopWords& gnome() {
    static const DesktopWords words{
        "GNOME",
        TRANSLATABLE("While tap-to-click is on, %1 can take a two-finger tap for a right click. Change it in Settings "
                     "→ Mouse & Touchpad → Touchpad."),
        TRANSLATABLE("While tap-to-click is on, %1 can take a three-finger tap for a middle click, which pastes in "
                     "many apps. Change it in Settings → Mouse & Touchpad → Touchpad."),
        TRANSLATABLE("%1 can take a two-finger click for a right click. Change it in Settings → Mouse & Touchpad → "
                     "Touchpad, in older versions in Tweaks."),
        TRANSLATABLE("%1 can take a three-finger click for a middle click, which pastes in many apps. Change it in "
                     "Settings → Mouse & Touchpad → Touchpad, in older versions in Tweaks."),

        {TRANSLATABLE("May also open the Activities overview"),
         TRANSLATABLE("On Wayland, GNOME 40 and later take a three-finger swipe up or down for the Activities "
                      "overview. Settings "
                      "has no switch for it; choose another gesture if it gets in the way.")},
        {TRANSLATABLE("May also change the workspace"),
         TRANSLATABLE(
             "On Wayland, some versions of GNOME take a four-finger swipe up or down to change the workspace. Settings "
             "has no switch for it; choose another gesture if it gets in the way.")}};
    return words;
}

const DesktopWords& kde() {
    static const DesktopWords words{
        "KDE Plasma",
        TRANSLATABLE("While tap-to-click is on, %1 can take a two-finger tap for a right click. Change it in System "
                     "Settings, under Touchpad."),
        TRANSLATABLE("While tap-to-click is on, %1 can take a three-finger tap for a middle click, which pastes in "
                     "many apps. Change it in System Settings, under Touchpad."),
        TRANSLATABLE("%1 can take a two-finger click for a right click. Change it in System Settings, under Touchpad."),
        TRANSLATABLE("%1 can take a three-finger click for a middle click, which pastes in many apps. Change it in "
                     "System Settings, under Touchpad."),

        {TRANSLATABLE("May also change the virtual desktop"),
         TRANSLATABLE(
             "On Wayland, Plasma 6 can take a three-finger swipe to change the virtual desktop. It does nothing "
             "while System Settings, under Virtual Desktops, has one only.")},
        {TRANSLATABLE("May also open the overview"),
         TRANSLATABLE(
             "On Wayland, KDE Plasma can take a four-finger swipe for the overview, or to change the virtual desktop. "
             "Change it in System Settings, under Desktop Effects and Virtual Desktops.")}};
    return words;
}

/// Both desktops leave taps, clicks and scrolling to libinput.
Warning warningOnLinux(const GestureRule& rule, const DesktopWords& desktop) {
    const auto named = [&](std::string_view title, std::string_view detail) {
        return SystemGestureWarning{translated(title), translated(detail, {desktop.name})};
    };
    if (rule.gesture == GestureKind::anchorDraw)
        return named(TRANSLATABLE("May also scroll or zoom"),
                     TRANSLATABLE("The drawing finger creates two-finger movement. %1 may scroll or zoom the app "
                                  "beneath the pointer while Kinesta records the pattern."));
    const bool isTwo = rule.fingerCount == 2;
    if (!isTwo && rule.fingerCount != 3 && rule.fingerCount != 4)
        return std::nullopt;
    if (rule.gesture == GestureKind::edgeSlide && isTwo)
        return named(TRANSLATABLE("May also scroll onscreen content"),
                     TRANSLATABLE("%1 handles two-finger movement as scrolling. Sliding at the edge can also scroll "
                                  "the app beneath the pointer."));
    if (rule.gesture == GestureKind::edgeSlide)
        return rule.fingerCount == 3 ? desktop.threeFingerSwipe : desktop.fourFingerSwipe;
    if (rule.fingerCount == 4)
        return std::nullopt;
    // The usual assignment; desktops can also swap the two.
    const std::string_view title =
        isTwo ? TRANSLATABLE("May also click the right button") : TRANSLATABLE("May also click the middle button");
    if (isTap(rule.gesture))
        return named(title, isTwo ? desktop.twoFingerTap : desktop.threeFingerTap);
    if (isPhysicalClick(rule.gesture))
        return named(title, isTwo ? desktop.twoFingerClick : desktop.threeFingerClick);
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
