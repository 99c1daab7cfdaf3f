#pragma once

#include "actions/EventSynthesizer.h"

namespace kinesta {

/// Makes no event.
class NullEventSynthesizer final : public EventSynthesizer {
  public:
    std::unique_ptr<EventSource> makeSource() override { return nullptr; }
    std::optional<DesktopLocation> probePointerLocation(EventSource*) override { return std::nullopt; }
    std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource*, std::uint16_t, KeyTransition) override {
        return nullptr;
    }
    std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource*, KeyTransition, DesktopLocation) override {
        return nullptr;
    }
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent&) override { return nullptr; }
};

}  // namespace kinesta
