#pragma once

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>
#include <vector>

#include "input/recording/RecordingEvent.h"

namespace kinesta::testing {

/// What fingers do on a pad, written down as a recording:
///
///     pad.at(0.00).down(1, {0.40, 0.50}).down(2, {0.55, 0.50})
///        .at(0.10).up(1).at(0.12).up(2);
///
/// `at` moves on in time, never back; what follows under one `at` is one frame, in the order of the fingers' coming.
/// A script that makes no sense fails the test.
class PadScript {
  public:
    PadScript& at(Seconds time) {
        flush();
        check(time >= m_time, "at() goes back");
        m_time = time;
        return *this;
    }
    PadScript& after(Seconds pause) { return at(m_time + pause); }

    PadScript& down(ContactId id, Point position) {
        check(std::ranges::count(m_fingers, id, &TouchSample::id) == 0, "a finger comes down twice");
        m_fingers.push_back({id, position});
        return touch();
    }
    PadScript& move(ContactId id, Point position) {
        find(id)->position = position;
        return touch();
    }
    PadScript& up(ContactId id) {
        m_fingers.erase(find(id));
        return touch();
    }
    PadScript& upAll() {
        m_fingers.clear();
        return touch();
    }
    /// Fingers 1, 2 and so on come down side by side.
    PadScript& land(int count, Point first = {0.4, 0.5}) {
        for (ContactId id = 1; id <= count; ++id)
            down(id, {first.x + 0.05 * (id - 1), first.y});
        return *this;
    }
    PadScript& tap(Seconds lift, int fingers = 2) { return at(lift - 0.05).land(fingers).at(lift).upAll(); }
    /// A frame like the one before.
    PadScript& hold() { return touch(); }

    /// Moves a finger through places, one every 10 ms.
    PadScript& through(ContactId id, std::initializer_list<Point> places) {
        for (const Point place : places)
            after(0.01).move(id, place);
        return *this;
    }

    /// Moves fingers together by `way` in frames of 8 ms; the last one is at the end of `duration` to the bit.
    PadScript& glide(const std::vector<ContactId>& ids, Point way, Seconds duration) {
        const Seconds start = m_time;
        const std::vector<TouchSample> origins = m_fingers;
        const int frames = static_cast<int>(std::ceil(duration / 0.008 - 1e-9));
        for (int frame = 1; frame <= frames; ++frame) {
            const double part = frame < frames ? frame * 0.008 / duration : 1;
            at(start + part * duration);
            for (const auto& [id, origin] : origins)
                if (std::ranges::count(ids, id) > 0)
                    move(id, {origin.x + part * way.x, origin.y + part * way.y});
        }
        return *this;
    }

    /// The button goes down or up, or deeper, after what the frame of this moment says.
    PadScript& press() { return add(PadEvent{m_time, PadButton::down}); }
    PadScript& release() { return add(PadEvent{m_time, PadButton::up}); }
    PadScript& stage(std::int64_t stage) { return add(PadEvent{m_time, PadPressure{stage}}); }
    PadScript& click(Seconds down, Seconds up) { return at(down).press().at(up).release(); }
    PadScript& setGestures(bool isOn) { return add(SettingsChange{m_time, {.gesturesEnabled = isOn}}); }
    PadScript& setTapWaiting(int time) { return add(SettingsChange{m_time, {.tapWaitingMilliseconds = time}}); }
    PadScript& setPalmRejection(bool isOn) { return add(SettingsChange{m_time, {.cornerPalmRejectionEnabled = isOn}}); }
    /// Delays the arrival of this moment's frame: uptime against the driver's time.
    PadScript& receivedAt(Uptime uptime) {
        m_received = uptime;
        return touch();
    }

    std::vector<RecordingEvent> events() const {
        PadScript copy = *this;
        copy.flush();
        return copy.m_events;
    }

  private:
    static void check(bool isGood, const char* complaint) { isGood ? void() : throw std::logic_error(complaint); }
    std::vector<TouchSample>::iterator find(ContactId id) {
        const auto found = std::ranges::find(m_fingers, id, &TouchSample::id);
        check(found != m_fingers.end(), "no such finger is down");
        return found;
    }
    PadScript& touch() {
        m_isTouched = true;
        return *this;
    }
    PadScript& add(RecordingEvent event) {
        flush();
        m_events.push_back(std::move(event));
        return *this;
    }
    void flush() {
        if (std::exchange(m_isTouched, false))
            m_events.push_back(PadEvent{m_time, PadFrame{TouchSamples(std::span<const TouchSample>(m_fingers)),
                                                         std::exchange(m_received, std::nullopt)}});
    }

    Seconds m_time = 0;
    bool m_isTouched = false;
    std::optional<Uptime> m_received;
    std::vector<TouchSample> m_fingers;
    std::vector<RecordingEvent> m_events;
};

}  // namespace kinesta::testing
