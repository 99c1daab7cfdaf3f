#include "recognition/MultitouchService.h"

#include <gtest/gtest.h>

#include <atomic>
#include <limits>
#include <thread>

#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

using Status = MultitouchService::Status;
using Texts = std::vector<std::string>;

PadScript tapAt(Seconds time) { return PadScript().tap(time, 3); }

std::string settingsOf(const MultitouchService& service) {
    const auto& palm = service.cornerPalmRejection().value();
    return (service.isGestureEnabled().value() ? "on " : "off ") + service.tapWaitingInterval().value().title() +
           (palm.isEnabled ? " palm " : " no palm ") + numberText(palm.sensitivity);
}

TEST(TapWaitingInterval, HasFiveValues) {
    std::string titles;
    for (std::int64_t value = -400; value <= 65536 + 400; ++value)
        if (const auto interval = TapWaitingInterval::fromRawValue(value))
            titles += interval->title() + ",";
    EXPECT_EQ(titles, "150 ms,200 ms,250 ms,300 ms,400 ms,");
    EXPECT_EQ(TapWaitingInterval().seconds(), MultiTapRecognizer().maximumInterval());
}

TEST(MultitouchService, ReadsItsSettingsAndRepairsMalformedOnes) {
    const std::string text = "text";
    const std::int64_t tooLong = 4294967296 + 150;
    for (const auto& [values, settings] : std::vector<std::pair<StoredValues, std::string>>{
             {{}, "on 250 ms no palm 0.5"},
             {{{"gesturesEnabled", text}, {"tapWaitingInterval.v1", tooLong}}, "off 250 ms no palm 0.5"},
             {{{"gesturesEnabled", true}, {"tapWaitingInterval.v1", text}}, "on 250 ms no palm 0.5"},
             {{{"cornerPalmRejectionEnabled.v1", std::int64_t{1}}}, "on 250 ms no palm 0.5"},
             {{{"cornerPalmRejectionSensitivity.v1", std::int64_t{3}}}, "on 250 ms no palm 1"}}) {
        GestureRig rig;
        rig.defaults.replaceValues(values);
        EXPECT_EQ(settingsOf(rig.launch()), settings);
        EXPECT_EQ(rig.defaults.writes, 0);
    }
}

struct RunningService : ::testing::Test {
    GestureRig rig;
    MultitouchService& service = rig.launch();

    /// All gestures after a script and everything that it has set going.
    const std::string& gesturesAfter(const PadScript& script) {
        rig.play(script);
        rig.mainThread.runRemaining();
        return rig.gestures;
    }
};

TEST_F(RunningService, StoresChangesOnly) {
    service.setGestureEnabled(true);
    service.setTapWaitingInterval(TapWaitingInterval::standard);
    service.setCornerPalmRejectionEnabled(false);
    service.setCornerPalmRejectionSensitivity(std::numeric_limits<double>::infinity());
    EXPECT_EQ(rig.defaults.writes, 0);
    EXPECT_EQ(rig.provider.calls, Texts{"start"}) << "nothing was restarted";

    service.setTapWaitingInterval(TapWaitingInterval::veryShort);
    service.setCornerPalmRejectionSensitivity(7);
    EXPECT_EQ(rig.defaults.writes, 3);
    service.setCornerPalmRejectionSensitivity(1);
    EXPECT_EQ(rig.defaults.writes, 3);
    service.setCornerPalmRejectionEnabled(true);
    service.setGestureEnabled(false);
    EXPECT_EQ(rig.defaults.writes, 6);
    EXPECT_EQ(settingsOf(rig.launch()), "off 150 ms palm 1") << "read back";

    rig.defaults.setInteger("tapWaitingInterval.v1", 400);
    rig.defaults.setBoolean("cornerPalmRejectionEnabled.v1", false);
    rig.defaults.setBoolean("gesturesEnabled", true);
    rig.service->reloadSettings();
    EXPECT_EQ(settingsOf(*rig.service), "on 400 ms no palm 1") << "changed by another process";
    EXPECT_EQ(rig.service->status().value(), Status::listening());
    EXPECT_EQ(rig.defaults.writes, 9) << "three are the test's own";
}

TEST_F(RunningService, FollowsTheProvider) {
    const auto becomes = [&](const Status& status, std::size_t monitors) {
        rig.provider.becomes(status);
        service.contactProviderDidChangeStatus();
        EXPECT_EQ(service.status().value(), status);
        EXPECT_EQ(rig.pointer.monitorCount(), monitors);
    };
    rig.play(tapAt(1));
    becomes(Status::unavailable("Gone."), 0);
    rig.mainThread.runRemaining();
    EXPECT_EQ(rig.gestures, "") << "a waiting gesture is dropped with its pad";
    rig.provider.statusAfterStart = Status::unavailable("No pad.");
    service.start();
    EXPECT_EQ(service.status().value(), Status::unavailable("No pad."));
    EXPECT_EQ(rig.pointer.monitorCount(), 0U);
    becomes(Status::unavailable("No permission."), 0);
    becomes(Status::listening(), 2);
    becomes(Status::listening(), 2);
    service.start();
    EXPECT_EQ(rig.provider.calls, (Texts{"start", "start"})) << "it listens already";
    EXPECT_EQ(gesturesAfter(tapAt(5)), "5.25 singleTap of 3");

    service.setGestureEnabled(false);
    EXPECT_EQ(service.status().value(), Status::stopped());
    EXPECT_EQ(rig.pointer.monitorCount(), 0U);
    rig.provider.becomes(Status::listening());
    service.contactProviderDidChangeStatus();
    EXPECT_EQ(service.status().value(), Status::stopped()) << "too late: it is off";
    service.start();
    service.startIfEnabled();
    EXPECT_EQ(rig.provider.calls, (Texts{"start", "start", "stop"})) << "it is off";
}

TEST_F(RunningService, TakesBothButtonsInAnyWindow) {
    using Kind = PointerEvent::Kind;
    rig.play(PadScript().at(1).land(2));
    for (const auto scope : {PointerEventScope::thisApplication, PointerEventScope::otherApplications})
        for (const auto& [down, up] : {std::pair(Kind::leftDown, Kind::leftUp), {Kind::rightDown, Kind::rightUp}}) {
            for (const Kind kind : {down, Kind::pressure, up})
                rig.pointer.deliver(PointerEvent{kind, 2, 1}, scope);
            rig.runUntil(rig.clock.wallClock() + 1);
        }
    EXPECT_EQ(rig.gestures,
              "1.25 singleForceClick of 2; 2.25 singleForceClick of 2; 3.25 singleForceClick of 2; "
              "4.25 singleForceClick of 2");
}

TEST_F(RunningService, NamesTheGestureForFiveSeconds) {
    service.onTap = {};  // the feedback does not need a callback
    Texts shown;
    const auto add = [&](const std::string& text) {
        shown.push_back(std::to_string(rig.clock.wallClock()).substr(0, 4) + " " + text);
    };
    const auto texts = service.lastGesture().observe([&](const auto& text) { add(text.value_or("-")); });
    const auto counts =
        service.gestureCountdown().observe([&](const auto& count) { add(count ? std::to_string(*count) : "-"); });
    gesturesAfter(tapAt(1));
    EXPECT_EQ(shown, (Texts{"1.25 Detected 3-finger single tap", "1.25 5", "2.25 4", "3.25 3", "4.25 2", "5.25 1",
                            "6.25 -", "6.25 -"}));
    shown.clear();
    rig.play(PadScript().at(10).land(2, {0.1, 0.5}).glide({1, 2}, {0, 0.03}, 0.008));
    rig.play(PadScript().at(12.508).land(2, {0.1, 0.4}));
    rig.runUntil(13);
    service.stop();
    rig.mainThread.runRemaining();
    EXPECT_EQ(shown, (Texts{"10.0 Detected 2-finger left edge slide up", "10.0 5", "11.0 4", "12.0 3",
                            "12.5 Detected 2-finger left edge slide down", "12.5 5", "13.0 -", "13.0 -"}))
        << "a new gesture starts the countdown again, stop() ends it";
}

TEST_F(RunningService, CountsDownFromTheFirstDeadlineHoweverLateATickIs) {
    rig.play(tapAt(1));
    rig.runUntil(2);  // reported at 1.25
    const auto delayOfNext = [&](Seconds tick, Seconds uptime) {
        rig.clock.setUptime(uptime);
        rig.runUntil(tick + 0.01);
        return std::chrono::duration<Seconds>(rig.mainThread.nextTimer().value()).count() - tick;
    };
    EXPECT_NEAR(delayOfNext(2.25, 2.65), 0.6, 1e-6);
    EXPECT_NEAR(delayOfNext(2.85, 4.45), 0.8, 1e-6) << "3.25 and 4.25 are over";
}

TEST(MultitouchService, DropsGesturesOfAnOlderGeneration) {
    const PadScript slide = PadScript().at(1).land(2, {0.1, 0.5}).glide({1, 2}, {0, 0.1}, 0.008);
    const PadScript click = PadScript().at(1).land(2).press().at(1.1).release();
    for (const bool isStopped : {true, false})
        for (const PadScript& script : {tapAt(1), slide, click}) {
            GestureRig rig;
            rig.launch();
            rig.send(script);  // the tasks that it posts have not run yet
            isStopped ? rig.service->stop() : rig.service->setCornerPalmRejectionEnabled(true);
            rig.mainThread.runRemaining();
            EXPECT_EQ(rig.gestures, "");
            EXPECT_EQ(rig.service->lastGesture().value(), std::nullopt);
        }
}

TEST_F(RunningService, LetsCallbacksReplaceThemselvesAndStopIt) {
    std::int64_t fingers = 0;
    service.onTap = [&](const DetectedTap& tap) {
        service.onTap = {};
        service.stop();
        fingers += tap.fingerCount;
    };
    gesturesAfter(tapAt(1));
    EXPECT_EQ(fingers, 3);
    EXPECT_EQ(service.status().value(), Status::stopped());
}

TEST_F(RunningService, CallsNothingAfterItsEnd) {
    rig.play(PadScript().at(1).land(2).click(1.1, 1.1).at(1.15).hold());  // the click waits
    rig.launch();                                                         // and its service is destroyed
    rig.mainThread.runRemaining();
    rig.send(tapAt(1));
    rig.service.reset();
    rig.mainThread.runRemaining();
    EXPECT_EQ(rig.gestures, "");
}

TEST(MultitouchService, SurvivesChangesAndItsEndWhileFramesArrive) {
    GestureRig rig;
    std::atomic<bool> isDone = false;
    std::atomic<int> allowed = 0;  // taps, so that the driver is never far ahead, however slow the machine
    int delivered = 0;
    std::thread driver([&] {
        const TouchSamples one{{1, {0.4, 0.5}}}, two{{1, {0.4, 0.5}}, {2, {0.5, 0.5}}};
        for (Seconds time = 0; !isDone; time += 0.1) {
            rig.provider.send({allowed.fetch_sub(1) > 0 ? two : one, time});
            rig.provider.send({{}, time + 0.05});
        }
    });
    for (int services = 0; services < 100; ++services) {
        rig.launch().onTap = [&](const DetectedTap&) { ++delivered; };
        for (int round = 0; round < 5 || delivered == 0; ++round) {  // so that the first service at least has worked
            allowed = 20;
            rig.send(PadScript().press().stage(2).release());
            rig.service->setTapWaitingInterval(TapWaitingInterval::allCases[static_cast<std::size_t>(round % 5)]);
            rig.runUntil(rig.clock.wallClock() + 0.2);
        }
        if (services % 2 == 0)
            rig.service->setCornerPalmRejectionEnabled(services % 4 == 0);
        if (services % 3 == 0)
            rig.service->stop();
        rig.service.reset();
    }
    isDone = true;
    driver.join();
    const int before = delivered;
    rig.mainThread.runRemaining();
    EXPECT_EQ(delivered, before) << "a posted task called a destroyed service";
}

}  // namespace
}  // namespace kinesta::testing
