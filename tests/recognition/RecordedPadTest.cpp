#include "input/recording/RecordedPad.h"

#include <gtest/gtest.h>

#include "rules/GestureDescription.h"
#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

using Source = RecordedPad::Source;

/// Recognition on a recorded pad, from 1000 s in virtual time.
struct Player {
    explicit Player(Source source) : pad(mainThread, clock, source, {.begin = [] {}, .taken = [this] { ++taken; }}) {
        pad.setWatcher([this](const PadEvent& event) { add(numberText(event.time)); });
        pad.setStatusHandler([this] { add(pad.status().message); });
        service.onEveryGesture([this](const DetectedGesture& gesture) { add(describe(gesture)); });
        service.start();
    }
    void take(const PadScript& script) {
        for (const RecordingEvent& event : script.events())
            pad.take(event);
    }
    void runUntil(Seconds time) { mainThread.advanceTo(VirtualMainThread::Time(std::llround(time * 1e9))); }
    void add(const std::string& what) { told += numberText(clock.wallClock()) + " " + what + "; "; }

    VirtualMainThread mainThread{std::chrono::seconds(1000)};
    VirtualClock clock{mainThread};
    FakeUserDefaults defaults;
    int taken = 0;
    /// What was delivered when: the time stamps of events, gestures, the end.
    std::string told;
    RecordedPad pad;
    MultitouchService service{defaults, pad, pad.pointerEvents(), mainThread, pad.clock()};
};

TEST(RecordedPad, KeepsThePaceAndATapWaitsForNoFurtherEvent) {
    Player player(Source::live);
    player.take(PadScript().at(50).land(3).at(50.125).upAll());
    player.runUntil(1002);
    EXPECT_EQ(player.told, "1000 1000; 1000.125 1000.125; 1000.375 3-finger single tap; ");
    player.told.clear();
    // Late, but recorded as a double tap. The click came a second after the fingers had gone.
    player.take(PadScript().tap(50.5, 2).tap(50.625, 2).click(51.625, 51.75).at(52.5).land(1));
    player.pad.end("The end.");
    player.runUntil(1004);
    EXPECT_EQ(player.told,
              "1002 1000.45; 1002 1000.5; 1002 1000.575; 1002 1000.625; 1002 1001.625; 1002 1001.75; "
              "1002.25 2-finger double tap; 1002.5 1002.5; 1003 The end.; ");
    EXPECT_EQ(player.taken, 9);
}

TEST(RecordedPad, DropsWhatArrivesWhileStopped) {
    // A file goes on at its pace; what a writer has sent by then is gone.
    for (const auto& [source, after] : {std::pair(Source::file, "1002.5 1002.5; "), std::pair(Source::live, "")}) {
        Player player(source);
        player.take(PadScript().at(0).land(3).at(1.5).upAll().at(2.5).land(3));
        player.runUntil(1001);
        player.service.stop();
        EXPECT_EQ(player.taken, source == Source::live ? 3 : 1);
        player.runUntil(1002);
        EXPECT_EQ(player.taken, source == Source::live ? 3 : 2);
        player.service.start();
        player.runUntil(1003);
        EXPECT_EQ(player.told, std::string("1000 1000; ") + after);
        player.service.stop();
        player.pad.end("The end.");
        player.runUntil(1004);
        player.service.start();
        EXPECT_EQ(player.service.status().value(), MultitouchService::Status::unavailable("The end."));
    }
}

}  // namespace
}  // namespace kinesta::testing
