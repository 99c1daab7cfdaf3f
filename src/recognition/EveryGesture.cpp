#include "recognition/EveryGesture.h"

namespace kinesta {

void onEveryGesture(MultitouchService& service, const std::function<void(const DetectedGesture&)>& handler) {
    service.onTap = [handler](int fingers, GestureKind gesture) { handler(DetectedTap{fingers, gesture}); };
    service.onEdgeSlide = [handler](int fingers, EdgeSlideSide side, std::int64_t steps) {
        handler(DetectedEdgeSlide{fingers, side, steps});
    };
    service.onAnchorDraw = [handler](AnchorCorner corner, DrawPattern pattern) {
        handler(DetectedAnchorDraw{corner, pattern});
    };
}

}  // namespace kinesta
