#include "platform/macos/events/MacEventSynthesizer.h"

#include <CoreGraphics/CoreGraphics.h>

#include <utility>

#include "platform/macos/corefoundation/CfReference.h"
#include "platform/macos/events/SystemDefinedCgEvent.h"

namespace kinesta {
namespace {

struct Source final : EventSource {
    explicit Source(CfReference<CGEventSourceRef> source) : reference(std::move(source)) {}

    CfReference<CGEventSourceRef> reference;
};

class Event final : public SynthesizedEvent {
  public:
    explicit Event(CfReference<CGEventRef> event) : m_event(std::move(event)) {}

    void setFlags(std::uint64_t flags) override { CGEventSetFlags(m_event.get(), flags); }
    void setClickState(std::int64_t clickCount) override {
        CGEventSetIntegerValueField(m_event.get(), kCGMouseEventClickState, clickCount);
    }
    void post() override { CGEventPost(kCGHIDEventTap, m_event.get()); }

  private:
    CfReference<CGEventRef> m_event;
};

/// Every source comes from makeSource().
CGEventSourceRef referenceOf(EventSource* source) {
    return source ? static_cast<Source*>(source)->reference.get() : nullptr;
}

std::unique_ptr<SynthesizedEvent> eventOf(CfReference<CGEventRef> event) {
    return event ? std::make_unique<Event>(std::move(event)) : nullptr;
}

}  // namespace

std::unique_ptr<EventSource> MacEventSynthesizer::makeSource() {
    CfReference<CGEventSourceRef> source(CGEventSourceCreate(kCGEventSourceStateHIDSystemState));
    return source ? std::make_unique<Source>(std::move(source)) : nullptr;
}

std::optional<DesktopLocation> MacEventSynthesizer::probePointerLocation(EventSource* source) {
    const CfReference<CGEventRef> probe(CGEventCreate(referenceOf(source)));
    if (!probe)
        return std::nullopt;
    // Counted from the top left of the main display, as mouse events are.
    const CGPoint location = CGEventGetLocation(probe.get());
    return DesktopLocation{location.x, location.y};
}

std::unique_ptr<SynthesizedEvent> MacEventSynthesizer::makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                                    KeyTransition transition) {
    return eventOf(CfReference<CGEventRef>(
        CGEventCreateKeyboardEvent(referenceOf(source), keyCode, transition == KeyTransition::down)));
}

std::unique_ptr<SynthesizedEvent> MacEventSynthesizer::makeCenterButtonEvent(EventSource* source,
                                                                             KeyTransition transition,
                                                                             DesktopLocation location) {
    const auto type = transition == KeyTransition::down ? kCGEventOtherMouseDown : kCGEventOtherMouseUp;
    return eventOf(CfReference<CGEventRef>(
        CGEventCreateMouseEvent(referenceOf(source), type, CGPoint{location.x, location.y}, kCGMouseButtonCenter)));
}

std::unique_ptr<SynthesizedEvent> MacEventSynthesizer::makeSystemDefinedEvent(const SystemDefinedEvent& event) {
    return eventOf(systemDefinedCgEvent(event));
}

}  // namespace kinesta
