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
/// A key that goes down with flags set gets exactly the modifiers of the flags, and its coming up puts back every
/// modifier key that the person held. The fn key itself (63) is not posted: no desktop here knows it, and what it
/// turns another key into is in that key's flags.
class PostingEventSynthesizer final : public EventSynthesizer {
  public:
    /// Is told, as one sentence, why an event was dropped.
    using Log = std::function<void(const std::string&)>;

    /// The poster and the defaults must outlive this, and this the events that it makes.
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

    /// A key that went down, and what is still to be sent for it.
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
