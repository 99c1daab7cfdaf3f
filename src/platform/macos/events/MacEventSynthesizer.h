#pragma once

#include "actions/EventSynthesizer.h"

namespace kinesta {

/// Makes events in the state of the hardware and posts them where those of the hardware come in. Main thread only.
/// Without the accessibility permission the system drops them and says nothing.
class MacEventSynthesizer final : public EventSynthesizer {
  public:
    std::unique_ptr<EventSource> makeSource() override;
    std::optional<DesktopLocation> probePointerLocation(EventSource* source) override;
    std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                   KeyTransition transition) override;
    std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                            DesktopLocation location) override;
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& event) override;
};

}  // namespace kinesta
