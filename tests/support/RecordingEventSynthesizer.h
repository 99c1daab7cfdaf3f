#pragma once

#include <memory>
#include <set>
#include <sstream>
#include <string>

#include "actions/EventSynthesizer.h"
#include "rules/ShortcutKey.h"
#include "support/CallLog.h"
#include "support/ManualClock.h"

namespace kinesta::testing {

/// Tells "+ key 8 down" when an event is made and "post ⌘ C down" when it is posted, with "-" for flags that were never
/// set. Making what is named in `failing` ("source", "probe", "key 8 down", "center up", "system 8 a00 -1") fails.
class RecordingEventSynthesizer final : public EventSynthesizer {
  public:
    RecordingEventSynthesizer(CallLog& log, ManualClock& clock) : m_log(log), m_clock(clock) {}

    std::set<std::string> failing;
    DesktopLocation pointer{640, 400.5};
    /// How many sources and events were made and not released.
    int alive = 0;

    std::unique_ptr<EventSource> makeSource() override {
        return isMade("source", "") ? std::make_unique<Source>(alive) : nullptr;
    }
    std::optional<DesktopLocation> probePointerLocation(EventSource* source) override {
        return isMade("probe", from(source)) ? std::optional(pointer) : std::nullopt;
    }
    std::unique_ptr<SynthesizedEvent> makeKeyEvent(EventSource* source, std::uint16_t keyCode,
                                                   KeyTransition transition) override {
        const std::string key = keyCode == 63 ? "fn" : ShortcutKey::nameFor(keyCode);
        return event("key " + std::to_string(keyCode) + name(transition), from(source), key + name(transition));
    }
    std::unique_ptr<SynthesizedEvent> makeCenterButtonEvent(EventSource* source, KeyTransition transition,
                                                            DesktopLocation location) override {
        std::ostringstream text;
        text << "center" << name(transition) << " at " << location.x << ' ' << location.y;
        return event("center" + name(transition), from(source), text.str());
    }
    std::unique_ptr<SynthesizedEvent> makeSystemDefinedEvent(const SystemDefinedEvent& made) override {
        std::ostringstream text;
        text << "system " << made.subtype << ' ' << std::hex << made.data1 << ' ' << std::dec << made.data2;
        const std::string stale = made.timestamp == m_clock.uptime() ? "" : " stale";
        m_clock.advance(0.0625);
        return event(text.str(), stale, text.str() + stale);
    }

  private:
    struct Source final : EventSource {
        explicit Source(int& count) : alive(count) { ++alive; }
        ~Source() override { --alive; }
        int& alive;
    };

    struct Event final : SynthesizedEvent {
        Event(RecordingEventSynthesizer& synthesizer, std::string text) : owner(synthesizer), what(std::move(text)) {
            ++owner.alive;
        }
        ~Event() override { --owner.alive; }
        void setFlags(std::uint64_t value) override {
            constexpr std::pair<std::uint64_t, const char*> kMasks[] = {
                {0x800000, "fn"}, {0x040000, "⌃"}, {0x080000, "⌥"}, {0x020000, "⇧"}, {0x100000, "⌘"}, {0x200000, "#"}};
            flags.clear();
            for (const auto& [mask, symbol] : kMasks)
                if ((value & mask) != 0)
                    flags += symbol;
            if (!flags.empty())
                flags += ' ';
        }
        void setClickState(std::int64_t clickCount) override { flags = "click " + std::to_string(clickCount) + ' '; }
        void post() override { owner.m_log.add("post " + flags + what); }
        RecordingEventSynthesizer& owner;
        std::string what;
        std::string flags = "- ";
    };

    static std::string name(KeyTransition transition) { return transition == KeyTransition::down ? " down" : " up"; }
    static std::string from(const EventSource* source) { return source ? "" : " without source"; }

    bool isMade(const std::string& what, const std::string& remark) {
        m_log.add("+ " + what + remark);
        return !failing.contains(what);
    }
    std::unique_ptr<SynthesizedEvent> event(const std::string& made, const std::string& remark, std::string posted) {
        return isMade(made, remark) ? std::make_unique<Event>(*this, std::move(posted)) : nullptr;
    }

    CallLog& m_log;
    ManualClock& m_clock;
};

}  // namespace kinesta::testing
