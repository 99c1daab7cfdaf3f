#pragma once

#include <functional>
#include <optional>
#include <string>

#include "actions/EventSynthesizer.h"
#include "platform/linux/keyboard/InputPoster.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Turns the events of actions into keys and buttons of this desktop. Main thread only.
///
/// A key that goes down with flags gets exactly the modifiers of the flags. When it comes up, every modifier key that
/// the person held is restored. The fn key itself (63) is not posted: no desktop here knows it, and its effect on
/// another key is in that key's flags.
class PostingEventSynthesizer final : public EventSynthesizer {
  public:
    /// Receives one sentence when an event is dropped.
    using Log = std::function<void(const std::string&)>;

    /// The poster and the defaults must outlive this, and this must outlive the events that it makes.
    PostingEventSynthesizer(InputPoster& poster, const UserDefaults& defaults, Log log);
    ~PostingEventSynthesizer() override;

    std::unique_ptr<EventSource> makeSource() override;
    std::optional<DesktopLocation> probePointerLocation(EventSource* source) override;
    std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                   KeyTransition transition) override;
    std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                            DesktopLocation location) override;
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& event) override;

  private:
    class Event;

    /// A key that went down, and what must still be sent for it.
    struct Pending {
        std::uint16_t code;
        InputTransitions up;
    };

    /// False if the key cannot be posted.
    bool postKey(std::uint16_t code, KeyTransition transition, std::optional<DesktopModifiers> modifiers);
    void finishPending();

    InputPoster& m_poster;
    const UserDefaults& m_defaults;
    Log m_log;
    std::optional<Pending> m_pending;
};

}  // namespace kinesta
