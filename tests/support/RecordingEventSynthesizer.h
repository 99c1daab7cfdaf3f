#pragma once

#include <memory>
#include <set>
#include <sstream>
#include <string>

#include "actions/EventSynthesizer.h"
#include "support/CallLog.h"
#include "support/ManualClock.h"
#include "support/Text.h"

namespace kinesta::testing {

/// Logs "+ key 8 down" when an event is made and "post 100000 key 8 down" when it is posted: the flags in hexadecimal,
/// or "-" if they were never set. Making anything named in `failing` fails ("source", "probe", "key 8 down",
/// "center up at 1 2", "system 8 a00 -1").
class RecordingEventSynthesizer final : public EventSynthesizer {
  public:
    RecordingEventSynthesizer(CallLog& log, ManualClock& clock) : m_log(log), m_clock(clock) {}

    std::set<std::string> failing;
    DesktopLocation pointer{640, 400.5};

    std::unique_ptr<EventSource> makeSource() override {
        return isMade("source", true) ? std::make_unique<EventSource>() : nullptr;
    }
    std::optional<DesktopLocation> probePointerLocation(EventSource* source) override {
        return isMade("probe", source) ? std::optional(pointer) : std::nullopt;
    }
    std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                   KeyTransition transition) override {
        return event("key " + std::to_string(keyCode) + name(transition), source);
    }
    std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                            DesktopLocation location) override {
        return event("center" + name(transition) + " at " + numberText(location.x) + " " + numberText(location.y),
                     source);
    }
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& made) override {
        const std::string what = "system " + std::to_string(made.subtype) + " " + hex(made.data1) + " " +
                                 std::to_string(made.data2) + (made.timestamp == m_clock.uptime() ? "" : " stale");
        m_clock.advance(0.0625);
        return event(what, true);
    }

  private:
    struct Event final : SynthesizedEvent {
        Event(CallLog& calls, std::string text) : log(calls), what(std::move(text)) {}
        void setFlags(std::uint64_t value) override { flags = hex(value) + ' '; }
        void setClickState(std::int64_t clickCount) override { flags = "click " + std::to_string(clickCount) + ' '; }
        void post() override { log.add("post " + flags + what); }
        CallLog& log;
        std::string what;
        std::string flags = "- ";
    };

    template <typename T>
    static std::string hex(T value) {
        std::ostringstream text;
        text << std::hex << value;
        return text.str();
    }
    static std::string name(KeyTransition transition) { return transition == KeyTransition::down ? " down" : " up"; }
    bool isMade(const std::string& what, bool hasSource) {
        m_log.add("+ " + what + (hasSource ? "" : " without source"));
        return !failing.contains(what);
    }
    std::unique_ptr<SynthesizedEvent> event(const std::string& what, bool hasSource) {
        return isMade(what, hasSource) ? std::make_unique<Event>(m_log, what) : nullptr;
    }

    CallLog& m_log;
    ManualClock& m_clock;
};

}  // namespace kinesta::testing
