#include "rules/SystemGestureWarningChecker.h"

namespace kinesta {
namespace {

bool isTap(GestureKind kind) {
    return kind == GestureKind::singleTap || kind == GestureKind::doubleTap || kind == GestureKind::tripleTap;
}

}  // namespace

std::optional<SystemGestureWarning> SystemGestureWarningChecker::warning(const GestureRule& rule) {
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

}  // namespace kinesta
