#include "input/recording/RecordedPad.h"

#include <gtest/gtest.h>

#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

using Source = RecordedPad::Source;

/// Recognition on a recorded pad. Lists the time stamps of events with the times of their delivery, too.
struct Player : GestureRig {
    explicit Player(Source source)
        : pad(mainThread, virtualClock, source, {.begin = [] {}, .taken = [this] { ++taken; }}) {
        pad.setWatcher([this](const PadEvent& event) { add(event.time); });
        pad.setStatusHandler([this] { add(pad.status().message); });
        launch(pad, pad.pointerEvents(), pad.clock());
    }
    ~Player() { service.reset(); }  // before the pad
    /// Takes the script at once, then lets time pass. Returns what happened.
    std::string playUntil(Seconds time, const PadScript& script = {}) {
        std::ranges::for_each(script.events(), [this](const RecordingEvent& event) { pad.take(event); });
        runUntil(time);
        return std::exchange(gestures, {});
    }

    int taken = 0;
    RecordedPad pad;
};

TEST(RecordedPad, KeepsThePaceAndATapWaitsForNoFurtherEvent) {
    Player player(Source::live);
    EXPECT_EQ(player.playUntil(2, PadScript().at(50).land(3).at(50.125).upAll()),
              "0 0; 0.125 0.125; 0.375 singleTap of 3");
    // Late, but recorded as a double tap. The click came a second after the fingers had gone.
    player.playUntil(2, PadScript().tap(50.5).tap(50.625).click(51.625, 51.75).at(52.5).land(1));
    player.pad.end("The end.");
    EXPECT_EQ(player.playUntil(4),
              "2 0.45; 2 0.5; 2 0.575; 2 0.625; 2 1.625; 2 1.75; 2.25 doubleTap of 2; 2.5 2.5; 3 The end.");
}

TEST(RecordedPad, DropsWhatArrivesWhileStopped) {
    // A file goes on at its pace; what a writer has sent by then is gone.
    for (const auto& [source, taken, after] : {std::tuple(Source::file, 2, "2.5 2.5"), {Source::live, 3, ""}}) {
        Player player(source);
        player.playUntil(1, PadScript().at(0).land(3).at(1.5).upAll());
        player.service->stop();
        EXPECT_EQ(player.playUntil(2, PadScript().at(2.5).land(3)), "");
        EXPECT_EQ(player.taken, taken);
        player.service->start();
        EXPECT_EQ(player.playUntil(3), after);
        player.service->stop();
        player.pad.end("The end.");
        player.service->start();
        EXPECT_EQ(player.service->status().value(), MultitouchService::Status::unavailable("The end."));
    }
}

}  // namespace
}  // namespace kinesta::testing
