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

PadScript tapAtOne() { return PadScript().tap(1, 3); }

std::string settingsOf(const MultitouchService& service) {
    const auto& palm = service.cornerPalmRejection().value();
    return (service.isGestureEnabled().value() ? "on " : "off ") + service.tapWaitingInterval().value().title() +
           (palm.isEnabled ? " palm " : " no palm ") + numberText(palm.sensitivity);
}

TEST(MultitouchService, ReadsItsSettingsAndRepairsMalformedOnes) {
    const std::string text = "text";
    for (const auto& [values, settings] : std::vector<std::pair<StoredValues, std::string>>{
             {{}, "on 250 ms no palm 0.5"},
             {{{"gesturesEnabled", text}, {"tapWaitingInterval.v1", std::int64_t{275}}}, "off 250 ms no palm 0.5"},
             {{{"gesturesEnabled", true}, {"tapWaitingInterval.v1", text}}, "on 250 ms no palm 0.5"},
             {{{"cornerPalmRejectionEnabled.v1", std::int64_t{1}}}, "on 250 ms no palm 0.5"},
             {{{"cornerPalmRejectionSensitivity.v1", std::int64_t{3}}}, "on 250 ms no palm 1"}}) {
        GestureRig rig;
        rig.defaults.replaceValues(values);
        EXPECT_EQ(settingsOf(rig.launch()), settings);
        EXPECT_EQ(rig.defaults.writes, 0);
    }
}

TEST(TapWaitingInterval, HasFiveValues) {
    std::string titles;
    for (std::int64_t value = -400; value <= 1000; ++value)
        if (const auto interval = TapWaitingInterval::fromRawValue(value))
            titles += interval->title() + ",";
    EXPECT_EQ(titles, "150 ms,200 ms,250 ms,300 ms,400 ms,");
    EXPECT_FALSE(TapWaitingInterval::fromRawValue(65536 + 150) || TapWaitingInterval::fromRawValue(4294967296 + 150));
    EXPECT_EQ(TapWaitingInterval().seconds(), MultiTapRecognizer().maximumInterval());
}

TEST(MultitouchService, StoresChangesOnly) {
    GestureRig rig;
    MultitouchService& service = rig.launch();
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

TEST(MultitouchService, FollowsTheProvider) {
    GestureRig rig;
    rig.provider.statusAfterStart = Status::unavailable("No pad.");
    MultitouchService& service = rig.launch();
    EXPECT_EQ(service.status().value(), Status::unavailable("No pad."));
    EXPECT_EQ(rig.pointer.monitorCount(), 0U);
    rig.provider.statusAfterStart = Status::listening();
    service.start();
    EXPECT_EQ(service.status().value(), Status::listening());
    EXPECT_EQ(rig.pointer.monitorCount(), 2U);
    service.start();
    EXPECT_EQ(rig.provider.calls, (Texts{"start", "start"})) << "it listens already";

    const auto becomes = [&](const Status& status) {
        rig.provider.becomes(status);
        service.contactProviderDidChangeStatus();
        return service.status().value() == status;
    };
    rig.play(tapAtOne());
    EXPECT_TRUE(becomes(Status::unavailable("Gone.")));
    EXPECT_EQ(rig.pointer.monitorCount(), 0U);
    rig.mainThread.runRemaining();
    EXPECT_EQ(rig.gestures, "") << "a waiting gesture is dropped with its pad";
    for (const Status& status : {Status::unavailable("No permission."), Status::listening(), Status::listening()})
        EXPECT_TRUE(becomes(status));
    EXPECT_EQ(rig.pointer.monitorCount(), 2U);
    rig.play(PadScript().tap(5, 3));
    rig.mainThread.runRemaining();
    EXPECT_EQ(rig.gestures, "5.25 singleTap of 3");

    service.setGestureEnabled(false);
    EXPECT_EQ(service.status().value(), Status::stopped());
    EXPECT_EQ(rig.pointer.monitorCount(), 0U);
    EXPECT_FALSE(becomes(Status::listening())) << "too late: it is off";
    service.start();
    service.startIfEnabled();
    EXPECT_EQ(rig.provider.calls, (Texts{"start", "start", "stop"})) << "it is off";
}

TEST(MultitouchService, TakesBothButtonsInAnyWindow) {
    using Kind = PointerEvent::Kind;
    for (const auto scope : {PointerEventScope::thisApplication, PointerEventScope::otherApplications})
        for (const bool isLeft : {true, false}) {
            GestureRig rig;
            rig.launch();
            rig.play(PadScript().at(1).land(2));
            for (const Kind kind :
                 {isLeft ? Kind::leftDown : Kind::rightDown, Kind::pressure, isLeft ? Kind::leftUp : Kind::rightUp})
                rig.pointer.deliver(PointerEvent{kind, 2, 1}, scope);
            rig.mainThread.runRemaining();
            EXPECT_EQ(rig.gestures, "1.25 singleForceClick of 2");
        }
}

TEST(MultitouchService, NamesTheGestureForFiveSeconds) {
    GestureRig rig;
    MultitouchService& service = rig.launch();
    service.onTap = {};  // the feedback does not need a callback
    Texts shown;
    const auto now = [&] { return std::to_string(rig.clock.wallClock()).substr(0, 4) + " "; };
    const auto texts = service.lastGesture().observe([&](const auto& t) { shown.push_back(now() + t.value_or("-")); });
    const auto counts = service.gestureCountdown().observe(
        [&](const auto& count) { shown.push_back(now() + (count ? std::to_string(*count) : "-")); });
    rig.play(tapAtOne());
    rig.mainThread.runRemaining();
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

TEST(MultitouchService, CountsDownFromTheFirstDeadlineHoweverLateATickIs) {
    GestureRig rig;
    rig.launch();
    rig.play(tapAtOne());
    rig.runUntil(2);  // told at 1.25
    const auto delayOfNext = [&](Seconds tick, Seconds uptime) {
        rig.clock.setUptime(uptime);
        rig.runUntil(tick + 0.01);
        return std::chrono::duration<Seconds>(rig.mainThread.nextTimer().value()).count() - tick;
    };
    EXPECT_NEAR(delayOfNext(2.25, 2.65), 0.6, 1e-6);
    EXPECT_NEAR(delayOfNext(2.85, 4.45), 0.8, 1e-6) << "3.25 and 4.25 are over";
}

TEST(MultitouchService, DropsGesturesOfAnOlderGeneration) {
    const std::function<void(MultitouchService&)> stop = [](auto& service) { service.stop(); };
    const std::function<void(MultitouchService&)> palm = [](auto& s) { s.setCornerPalmRejectionEnabled(true); };
    const PadScript slide = PadScript().at(1).land(2, {0.1, 0.5}).glide({1, 2}, {0, 0.1}, 0.008);
    const PadScript click = PadScript().at(1).land(2).press().at(1.1).release();
    for (const auto& change : {stop, palm})
        for (const PadScript& script : {tapAtOne(), slide, click}) {
            GestureRig rig;
            rig.launch();
            rig.send(script);  // the tasks that it posts have not run yet
            change(*rig.service);
            rig.mainThread.runRemaining();
            EXPECT_EQ(rig.gestures, "");
            EXPECT_EQ(rig.service->lastGesture().value(), std::nullopt);
        }
}

TEST(MultitouchService, LetsCallbacksReplaceThemselvesAndStopIt) {
    GestureRig rig;
    MultitouchService& service = rig.launch();
    std::int64_t fingers = 0;
    service.onTap = [&](const DetectedTap& tap) {
        service.onTap = {};
        service.stop();
        fingers += tap.fingerCount;
    };
    rig.play(tapAtOne());
    rig.mainThread.runRemaining();
    EXPECT_EQ(fingers, 3);
    EXPECT_EQ(service.status().value(), Status::stopped());
}

TEST(MultitouchService, CallsNothingAfterItsEnd) {
    GestureRig rig;
    rig.launch();
    rig.play(PadScript().at(1).land(2).click(1.1, 1.1).at(1.15).hold());  // the click waits
    rig.launch();                                                         // and its service is destroyed
    rig.mainThread.runRemaining();
    rig.send(tapAtOne());
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
