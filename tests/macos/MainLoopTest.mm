#include <csignal>
#include <optional>
#include <vector>

#include "MacTest.h"
#include "platform/macos/application/MacMainLoop.h"
#include "platform/macos/application/MacSignalListener.h"
#include "support/MainLoopContract.h"

extern "C" void* objc_autoreleasePoolPush();
extern "C" void objc_autoreleasePoolPop(void* pool);

namespace kinesta {
namespace {

struct MacLoopBase : MacTest {
    MacLoopBase() : pool(objc_autoreleasePoolPush()) {}
    ~MacLoopBase() override {
        objc::takeCalls();
        fakes::drainMainQueue();
        EXPECT_EQ(objc::takeCalls(), Calls{});  // what the loop has left there has no effect any more
        objc_autoreleasePoolPop(pool);
    }
    void* pool;
};

struct MacLoopRig {
    using Loop = MacMainLoop;
    using Base = MacLoopBase;
};

using MainLoopOnTheMac = LoggedThread<MacMainLoop, MacLoopBase>;

std::vector<int> heard;

/// In the place of the system, which stops the program, and calls the watchers of the signal.
extern "C" void stop(int) { fakes::signalArrives(SIGTSTP); }

TEST_F(MainLoopOnTheMac, HasATimerOnlyWhileSomethingWaits) {
    port.post([&] {
        after(1h, "late");
        handles.clear();
        thread.quit();
    });
    thread.run();
    EXPECT_EQ(objc::takeCalls(),
              (Calls{"dispatch_source_set_timer never", "dispatch_async FakeQueue#1", "CFRunLoopRun",
                     "dispatch_source_set_timer later", "dispatch_source_set_timer never", "dispatch_async FakeQueue#1",
                     "dispatch_source_set_timer never", "CFRunLoopStop"}));
}

TEST_F(MainLoopOnTheMac, TakesEventsOfTheWindowServerOnceThereIsAnApplication) {
    port.post([] { (void)NSApplication.sharedApplication; });
    after(2ms, "task", [&] { thread.quit(); });
    thread.run();
    EXPECT_EQ(log, "task ");
    Calls calls = objc::takeCalls();
    std::erase_if(calls, [](const std::string& call) { return call.starts_with("dispatch"); });
    EXPECT_EQ(calls, (Calls{"CFRunLoopRun", "CFRunLoopStop", "NSApplication#1 run", "NSApplication#1 stop:nil",
                            "NSEvent otherEventWithType:15 location:{0 0} modifierFlags:0 timestamp:0 windowNumber:0 "
                            "context:nil subtype:0 data1:0 data2:0",
                            "NSApplication#1 postEvent:FakeSystemDefinedEvent#1 atStart:YES"}));
}

TEST_F(MainLoopOnTheMac, FreesWhatATaskLeavesBeforeTheNext) {
    port.post([&] {
        NSWindow* const __autoreleasing window = [NSWindow new];
        (void)window;
    });
    port.post([&] {
        EXPECT_EQ(objc::liveObjects().find("NSWindow"), std::string::npos);
        thread.quit();
    });
    thread.run();
}

struct SignalsOnTheMac : MainLoopOnTheMac {
    SignalsOnTheMac() {
        heard.clear();
        struct sigaction action {};
        action.sa_handler = stop;
        ::sigaction(SIGTSTP, &action, &before);
    }
    ~SignalsOnTheMac() override { ::sigaction(SIGTSTP, &before, nullptr); }

    MacSignalListener listen(std::vector<int> signals) {
        return {thread, signals, [this](int signal) {
                    heard.push_back(signal);
                    thread.quit();
                }};
    }
    struct sigaction before {};
};

TEST_F(SignalsOnTheMac, BecomeTasksAndHaveNoOtherEffect) {
    {
        const MacSignalListener listener = listen({SIGUSR1, SIGTERM});
        ::raise(SIGUSR1);  // would end this program
        fakes::signalArrives(SIGUSR1);
        EXPECT_EQ(heard, std::vector<int>{});
        thread.run();
        EXPECT_EQ(heard, std::vector{SIGUSR1});
        fakes::signalArrives(SIGTERM);
    }
    fakes::signalArrives(SIGUSR1);
    port.post([&] { thread.quit(); });
    thread.run();
    EXPECT_EQ(heard, std::vector{SIGUSR1});  // the listener had gone
    EXPECT_EXIT(::raise(SIGUSR1), testing::KilledBySignal(SIGUSR1), "");
}

TEST_F(SignalsOnTheMac, StopTheProgramOncePerRequest) {
    MacSignalListener listener = listen({SIGTERM, SIGTSTP});
    ::raise(SIGTSTP);
    listener.stopUntilContinued();
    port.post([&] { thread.quit(); });
    thread.run();
    EXPECT_EQ(heard, std::vector<int>{});
    fakes::signalArrives(SIGTSTP);
    thread.run();
    EXPECT_EQ(heard, std::vector{SIGTSTP});
}

}  // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(OnTheMac, MainLoopContract, MacLoopRig);

}  // namespace kinesta
