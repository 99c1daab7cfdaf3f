#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <semaphore>

#include "vm/PadReading.h"
#include "vm/VirtualTouchpad.h"

namespace {

thread_local std::size_t allocations = 0;

}  // namespace

// Not inlined: if only one of a pair were, the compiler would warn about a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    std::abort();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace kinesta::vm {
namespace {

TEST(TouchpadReading, MakesFramesOfTheFingers) {
    VirtualTouchpad pad;
    PadReading reading;
    const double before = now();
    pad.down(0, 7, 250, 400).report();
    pad.down(1, 8, 500, 250).report();
    pad.move(0, 250, 375).report();  // the kernel sends only the y
    pad.down(2, 9, 0, 0).down(3, 10, 1000, 500).down(4, 11, 100, 100).report();
    pad.up(0).up(2).report();
    pad.up(1).up(3).up(4).report();
    pad.down(0, 12, 250, 375).report();  // where that slot's last finger was: the kernel sends no position
    pad.up(0).report();
    EXPECT_EQ(reading.take(8), (Lines{
                                   "t 7@0.25,0.20",
                                   "t 7@0.25,0.20 8@0.50,0.50",
                                   "t 7@0.25,0.25 8@0.50,0.50",
                                   "t 7@0.25,0.25 8@0.50,0.50 9@0.00,1.00 10@1.00,0.00 11@0.10,0.80",
                                   "t 8@0.50,0.50 10@1.00,0.00 11@0.10,0.80",
                                   "t",
                                   "t 12@0.25,0.25",
                                   "t",
                               }));
    EXPECT_TRUE(std::is_sorted(reading.times().begin(), reading.times().end()));
    EXPECT_GE(reading.times().front(), before - 1e-6);  // the kernel rounds to microseconds
    EXPECT_LE(reading.times().back(), now());
}

TEST(TouchpadReading, BeginsWithTheFingersOnThePad) {
    VirtualTouchpad pad;
    pad.down(0, 1, 300, 200).down(1, 2, 700, 200).report();
    pad.up(0).key(BTN_LEFT, true).report();
    PadReading reading;
    EXPECT_EQ(reading.take(1), (Lines{"t 2@0.70,0.60"}));
    pad.down(0, 3, 300, 200).report();  // the coordinates that slot 0 has already
    pad.key(BTN_LEFT, false).report();  // the press was not seen
    pad.up(0).up(1).report();
    EXPECT_EQ(reading.take(4, kMoment), (Lines{"t 3@0.30,0.60 2@0.70,0.60", "t 3@0.30,0.60 2@0.70,0.60", "t"}));
}

TEST(TouchpadReading, SendsClicksAfterTheFrameAndWithTheKernelsTime) {
    VirtualTouchpad pad;
    PadReading reading;
    for (const int button : {BTN_LEFT, BTN_RIGHT}) {
        const double before = now();
        pad.down(0, 1, 500, 250).down(1, 2, 600, 250).key(button, true).report();
        EXPECT_EQ(reading.take(2), (Lines{"t 1@0.50,0.50 2@0.60,0.50", "down"}));
        EXPECT_EQ(reading.times()[0], reading.times()[1]);
        EXPECT_GE(reading.times()[1], before - 1e-6);
        pad.up(0).up(1).key(button, false).report();
        EXPECT_EQ(reading.take(2), (Lines{"t", "up"}));
        EXPECT_LE(reading.times()[1], now());
    }
    EXPECT_FALSE(reading.provider().state().canTellPressure);
}

TEST(TouchpadReading, SendsForcedClicksOnlyWherePressureIsForce) {
    for (const int resolution : {0, 10}) {
        VirtualTouchpad pad({.maximumPressure = 1000, .pressureResolution = resolution});
        PadReading reading;
        const bool isForce = resolution > 0;
        EXPECT_EQ(reading.provider().state().canTellPressure, isForce);
        pad.down(0, 1, 500, 250).down(1, 2, 600, 250).pressure(1, 900).report();  // no button: no click
        pad.pressure(1, 100).key(BTN_LEFT, true).report();
        pad.pressure(0, 599).report();
        EXPECT_EQ(reading.take(4).size(), 4U);
        pad.pressure(0, 600).report();
        EXPECT_EQ(reading.take(isForce ? 2 : 1).back() == "stage 2", isForce);
        pad.up(0).report();  // with its pressure
        EXPECT_EQ(reading.take(isForce ? 2 : 1).back() == "stage 1", isForce);
        pad.pressure(1, 700).key(BTN_LEFT, false).report();
        EXPECT_EQ(reading.take(2), (Lines{"t 2@0.60,0.50", "up"}));
    }
}

TEST(TouchpadReading, RecoversFromLostEvents) {
    VirtualTouchpad pad;
    PadReading reading;
    pad.down(0, 1, 100, 250).down(1, 2, 200, 250).report();
    reading.take(1);
    std::unique_lock blocked(reading.frameGate);
    for (int i = 0; i < 400; ++i)  // more than the kernel and libevdev keep
        pad.move(1, 200 + i % 50, 100 + i % 70).report();
    pad.up(0).report();
    pad.down(0, 3, 900, 50).report();  // another finger in the same slot
    pad.down(2, 4, 800, 250).report();
    pad.up(1).report();
    blocked.unlock();
    pad.move(2, 810, 250).report();
    std::size_t frames = 0;
    EXPECT_TRUE(reading.takeUntil("t 3@0.90,0.90 4@0.81,0.50", &frames));
    EXPECT_LT(frames, 400U) << "nothing was lost";
    pad.up(0).up(2).report();
    EXPECT_EQ(reading.take(1), (Lines{"t"}));
}

TEST(TouchpadReading, IsFastAndAllocatesNothing) {
    constexpr std::size_t kFrames = 1000;
    VirtualTouchpad pad;
    std::vector<double> delays;
    delays.reserve(kFrames);
    std::size_t allocationsBefore = 0;
    std::size_t allocationsAfter = 0;
    std::counting_semaphore<> handled(0);
    RunLoop mainThread;
    EvdevContactProvider provider(mainThread);
    provider.setFrameHandler([&](const TrackpadContactFrame& frame) {
        delays.push_back(now() - frame.timestamp);
        (delays.size() == 1 ? allocationsBefore : allocationsAfter) = allocations;
        handled.release();
    });
    provider.start();
    double best = 1;
    for (int round = 0; round < 3; ++round) {  // other work on the host can only slow it down
        delays.clear();
        for (std::size_t i = 0; i < kFrames; ++i) {
            pad.down(0, 1, static_cast<int>(i), 250).down(1, 2, 1000 - static_cast<int>(i), 300).report();
            ASSERT_TRUE(handled.try_acquire_for(std::chrono::seconds(5)));
        }
        std::sort(delays.begin(), delays.end());
        std::printf("LATENCY kernel to handler, %zu frames: median %.3f ms, 99 %% %.3f ms, worst %.3f ms\n",
                    delays.size(), delays[kFrames / 2] * 1e3, delays[kFrames * 99 / 100] * 1e3, delays.back() * 1e3);
        EXPECT_EQ(allocationsAfter, allocationsBefore) << "a frame costs an allocation";
        best = std::min(best, delays[kFrames / 2]);
    }
    EXPECT_LT(best, 0.2e-3);
}

}  // namespace
}  // namespace kinesta::vm
