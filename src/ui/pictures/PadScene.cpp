#include "ui/pictures/PadScene.h"

#include <cstddef>

namespace kinesta {

PadScene PadScene::still(const PadGesture& gesture) {
    PadScene scene;
    if (gesture.kind == GestureKind::unconfigured) {
        scene.ground = Ground::unset;
        return scene;
    }
    if (const auto resting = PadGeometry::restingFinger(gesture))
        scene.fingers.push_back({*resting, 1, 1, true});
    for (const Point& finger : PadGeometry::actingFingers(gesture))
        scene.fingers.push_back({finger});
    scene.hasHalos = gesture.kind != GestureKind::edgeSlide && gesture.kind != GestureKind::anchorDraw;
    if (gesture.repetitions() > 1)
        scene.bars.assign(static_cast<std::size_t>(gesture.repetitions()), 1);
    if (isPhysicalClick(gesture.kind)) {
        scene.split = gesture.isAnyClick() ? 1 : 0;
        scene.press = physicalClickPressure(gesture.kind) == PhysicalClickPressure::force ? 2 : 1;
    }
    scene.arrowUp = scene.arrowDown = gesture.kind == GestureKind::edgeSlide ? 1 : 0;
    scene.drawn = scene.head = gesture.kind == GestureKind::anchorDraw && gesture.pattern ? 1 : 0;
    return scene;
}

PadScene PadScene::faded(double opacity) const {
    PadScene scene = *this;
    for (Finger& finger : scene.fingers)
        finger.opacity *= opacity;
    for (double& bar : scene.bars)
        bar *= opacity;
    for (double* part :
         {&scene.press, &scene.split, &scene.arrowUp, &scene.arrowDown, &scene.drawnOpacity, &scene.head})
        *part *= opacity;
    return scene;
}

}  // namespace kinesta
