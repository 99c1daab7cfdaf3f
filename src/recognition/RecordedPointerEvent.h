#pragma once

#include <optional>

#include "input/recording/RecordingEvent.h"
#include "recognition/PointerEventMonitoring.h"

namespace kinesta {

/// A press, release or pressure stage in the form in which pads and recordings tell it, as a pointer event; nothing
/// for what is neither. Which button it was is not told there, and recognition treats both alike.
inline std::optional<PointerEvent> pointerEventOf(const RecordingEvent& event) {
    if (const auto* pointer = std::get_if<RecordedPointer>(&event.content)) {
        const bool isDown = *pointer == RecordedPointer::down;
        return PointerEvent{.kind = isDown ? PointerEvent::Kind::leftDown : PointerEvent::Kind::leftUp,
                            .timestamp = event.time};
    }
    if (const auto* pressure = std::get_if<RecordedPressure>(&event.content))
        return PointerEvent{.kind = PointerEvent::Kind::pressure, .stage = pressure->stage, .timestamp = event.time};
    return std::nullopt;
}

}  // namespace kinesta
