#include "input/multitouch/MultitouchSupportContactProvider.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>
#include <semaphore>
#include <thread>

#include "input/PointerEventBroadcaster.h"
#include "multitouch/Controls.h"
#include "platform/posix/MultitouchTrackpad.h"
#include "platform/posix/PosixDynamicLibrary.h"
#include "support/CallLog.h"
#include "support/VirtualClock.h"

namespace kinesta::testing {
namespace {

using Status = TrackpadContactProviderStatus;
using Provider = MultitouchSupportContactProvider;

const std::string kLibrary = KINESTA_MULTITOUCH_LIBRARIES "/multitouch_library.so";
/// The same for tests after which it stays loaded.
const std::string kKeptLibrary = KINESTA_MULTITOUCH_LIBRARIES "/multitouch_kept.so";

Calls calls;
void note(const char* call) { calls.emplace_back(call); }

/// A library of the system that reports its calls.
class NotingLibrary final : public DynamicLibrary {
  public:
    static std::unique_ptr<DynamicLibrary> open(const std::string& path) {
        note("open");
        auto real = PosixDynamicLibrary::open(path);
        if (!real)
            return nullptr;
        MultitouchControls(path).setNote(note);
        return std::make_unique<NotingLibrary>(std::move(real));
    }

    explicit NotingLibrary(std::unique_ptr<DynamicLibrary> real) : m_real(std::move(real)) {}
    ~NotingLibrary() override { note("close"); }
    void* symbol(const char* name) override {
        note(name);
        return m_real->symbol(name);
    }

  private:
    std::unique_ptr<DynamicLibrary> m_real;
};

struct Signal {
    void give() { m_given.release(); }
    bool wait() { return m_given.try_acquire_for(std::chrono::seconds(20)); }

  private:
    std::binary_semaphore m_given{0};
};

/// Runs something at its end.
struct AtEnd {
    explicit AtEnd(std::function<void()> task) : run(std::move(task)) {}
    ~AtEnd() { run(); }
    std::function<void()> run;
};

struct MultitouchSupport : ::testing::Test {
    MultitouchSupport() { calls.clear(); }

    static std::unique_ptr<Provider> listening(Provider::FrameHandler handler, const std::string& path = kLibrary) {
        auto provider = std::make_unique<Provider>(NotingLibrary::open, path);
        provider->setFrameHandler(std::move(handler));
        provider->start();
        EXPECT_EQ(provider->status(), Status::listening());
        return provider;
    }
    static void deliver(void* device, double time) { MultitouchControls(kLibrary).deliver(device, nullptr, 0, time); }
    static void* device() { return MultitouchControls(kLibrary).device(); }
};

TEST_F(MultitouchSupport, StartsAndStopsTheDeviceInOrder) {
    const Calls started{"open",
                        "MTDeviceCreateDefault",
                        "MTRegisterContactFrameCallback",
                        "MTDeviceStart",
                        "MTDeviceStop",
                        "create",
                        "register",
                        "start 0"};
    const Calls stopped{"stop", "close"};
    Provider provider(NotingLibrary::open, kLibrary);
    provider.stop();
    EXPECT_EQ(calls, Calls{});
    for (int round = 0; round < 2; ++round) {
        provider.start();
        provider.start();
        EXPECT_EQ(std::exchange(calls, {}), started);
        provider.stop();
        provider.stop();
        EXPECT_EQ(std::exchange(calls, {}), stopped);
        EXPECT_EQ(provider.status(), Status::stopped());
    }
    listening({}).reset();
    EXPECT_EQ(joined(calls), joined(started) + "; " + joined(stopped));
}

TEST_F(MultitouchSupport, SaysWhatIsMissingAndLeavesOthersAlone) {
    int frames = 0;
    const auto other = listening([&](const auto&) { ++frames; });
    const auto symbols = Status::unavailable("Required trackpad symbols were not found.");
    const auto library = Status::unavailable("MultitouchSupport is unavailable on this macOS version.");
    const std::string pipe = KINESTA_MULTITOUCH_LIBRARIES "/pipe.so";
    EXPECT_TRUE(::mkfifo(pipe.c_str(), S_IRUSR) == 0 || errno == EEXIST);
    for (const auto& [name, expected, ending] :
         {std::tuple("absent", library, "open"),
          {"pipe", library, "open"},
          {"multitouch_without_create", symbols, "close"},
          {"multitouch_without_register", symbols, "close"},
          {"multitouch_without_start", symbols, "close"},
          {"multitouch_without_stop", symbols, "close"},
          {"multitouch_no_device", Status::unavailable("No built-in trackpad was found."), "create; close"}}) {
        Provider provider(NotingLibrary::open, KINESTA_MULTITOUCH_LIBRARIES "/" + std::string(name) + ".so");
        for (int round = 0; round < 2; ++round) {
            calls.clear();
            provider.start();
            EXPECT_EQ(provider.status(), expected) << name;
            EXPECT_TRUE(calls.front() == "open" && joined(calls).ends_with(ending)) << joined(calls);
        }
        provider.stop();
        EXPECT_EQ(provider.status(), Status::stopped());
        deliver(device(), 0);
    }
    EXPECT_EQ(frames, 7);
}

TEST_F(MultitouchSupport, DeliversTheTouchingContactsOfEachFrame) {
    std::vector<TrackpadContactFrame> frames;
    const auto provider = listening([&](const auto& frame) { frames.push_back(frame); });
    TouchRecords states;
    for (const int state : {0, 1, 4, 2, 3, 5, 6, 7, -1, 0x0303})
        states.add(-state, state, 0.1F * static_cast<float>(state), 1.5F);
    TouchRecords leaving;
    leaving.add(1, 5, 0, 0);
    TouchRecords crowd;
    TouchSamples crowded;
    for (int id = 0; id < 20; ++id) {
        crowd.add(id, 3, 0.25F, -0.0F);
        crowded.push_back({id, {0.25, 0}});
    }
    const MultitouchControls library(kLibrary);
    library.deliver(device(), states.data(), states.count(), 1e9 + 0.001);
    library.deliver(device(), leaving.data(), 1, 2);
    library.deliver(device(), nullptr, 7, 3);
    library.deliver(device(), states.data(), 0, 4);
    library.deliver(device(), crowd.data(), crowd.count(), 5);
    EXPECT_EQ(frames,
              (std::vector<TrackpadContactFrame>{{{{-4, {0.1F * 4.0F, 1.5}}, {-3, {0.1F * 3.0F, 1.5}}}, 1e9 + 0.001},
                                                 {{}, 2},
                                                 {{}, 3},
                                                 {{}, 4},
                                                 {crowded, 5}}));
}

TEST_F(MultitouchSupport, GivesFramesToTheProviderThatStartedLast) {
    std::vector<int> receivers;
    auto first = listening([&](const auto&) { receivers.push_back(1); });
    void* const firstDevice = device();
    auto second = listening([&](const auto&) { receivers.push_back(2); });
    deliver(firstDevice, 1);
    calls.clear();
    first.reset();
    EXPECT_EQ(joined(calls), "stop; close");
    deliver(device(), 2);
    first = listening([&](const auto&) { receivers.push_back(3); });
    void* const thirdDevice = device();
    second->stop();
    deliver(thirdDevice, 3);
    EXPECT_EQ(receivers, (std::vector{2, 2, 3}));
}

TEST_F(MultitouchSupport, LetsAHandlerReplaceItselfOrEndItsProvider) {
    std::string seen;
    Signal last;
    std::unique_ptr<Provider> provider;
    const auto endIt = [&, own = std::string(" and more than fits in place")](const auto&) {
        provider.reset();
        seen += own;
        last.give();
    };
    provider = listening(
        [&, own = std::string("the first, which is destroyed in its own call")](const auto&) {
            provider->setFrameHandler(endIt);
            seen += own;
        },
        kKeptLibrary);
    const MultitouchControls library(kKeptLibrary);
    library.deliver(library.device(), nullptr, 0, 1);
    calls.clear();
    library.post(library.device(), nullptr, 0, 2);
    ASSERT_TRUE(last.wait());
    Provider::waitForHandlers();
    EXPECT_EQ(seen, "the first, which is destroyed in its own call and more than fits in place");
    EXPECT_EQ(joined(calls), "stop") << "its code may not go while it runs";
}

TEST_F(MultitouchSupport, StopsAndEndsWhileAFrameIsBeingDelivered) {
    Signal entered;
    Signal goOn;
    std::atomic<int> frames = 0;
    std::atomic<std::thread::id> endedOn;
    const std::thread::id own = std::this_thread::get_id();
    auto owned = std::make_shared<AtEnd>([&] { endedOn = std::this_thread::get_id(); });
    auto provider = listening(
        [&, owned = std::move(owned)](const auto&) {
            ++frames;
            entered.give();
            EXPECT_TRUE(goOn.wait());
        },
        kKeptLibrary);
    const MultitouchControls library(kKeptLibrary);
    library.letStopReturnAtOnce();
    library.post(library.device(), nullptr, 0, 1);
    library.post(library.device(), nullptr, 0, 2);
    ASSERT_TRUE(entered.wait());
    calls.clear();
    provider->stop();
    EXPECT_EQ(provider->status(), Status::stopped());
    provider.reset();
    EXPECT_EQ(joined(calls), "stop");
    EXPECT_EQ(endedOn.load(), std::thread::id());
    goOn.give();
    Provider::waitForHandlers();
    EXPECT_EQ(frames, 1);
    EXPECT_TRUE(endedOn.load() != std::thread::id() && endedOn.load() != own)
        << "the last reference was the callback's";
}

TEST_F(MultitouchSupport, DropsACallbackAfterTheEnd) {
    int frames = 0;
    auto provider = listening([&](const auto&) { ++frames; });
    const MultitouchControls library(kLibrary);
    library.callLate();
    provider->stop();
    library.callLate();
    provider.reset();
    library.callLate();
    EXPECT_EQ(frames, 1);
}

struct MultitouchTrackpadTest : MultitouchSupport {
    MultitouchTrackpad trackpad(const std::string& path = kLibrary) {
        return {mainThread, clock, clicks, {.name = "Pad", .path = path}, path};
    }

    VirtualMainThread mainThread{std::chrono::seconds(3)};
    VirtualClock clock{mainThread};
    PointerEventBroadcaster clicks;
};

TEST_F(MultitouchTrackpadTest, ShowsAWatcherFramesAndClicksInTheirOrder) {
    MultitouchTrackpad trackpad = this->trackpad();
    std::vector<PadEvent> seen;
    int frames = 0;
    trackpad.contacts().setFrameHandler([&](const auto&) { ++frames; });
    trackpad.contacts().start();
    trackpad.watch([&](const PadEvent& event) { seen.push_back(event); });
    deliver(device(), 1);
    clicks.deliver({.kind = PointerEvent::Kind::rightDown, .timestamp = 2});
    clicks.deliver({.kind = PointerEvent::Kind::pressure, .stage = 2, .timestamp = 3},
                   PointerEventScope::thisApplication);
    deliver(device(), 4);
    clicks.deliver({.kind = PointerEvent::Kind::leftUp, .timestamp = 5});
    EXPECT_TRUE(seen.empty());
    mainThread.runPosted();
    EXPECT_EQ(seen, (std::vector<PadEvent>{{1, PadFrame{{}, 3}},
                                           {2, PadButton::down},
                                           {3, PadPressure{2}},
                                           {4, PadFrame{{}, 3}},
                                           {5, PadButton::up}}));
    trackpad.watch({});
    EXPECT_EQ(clicks.monitorCount(), 0U);
    deliver(device(), 6);
    EXPECT_EQ(frames, 3);
}

TEST_F(MultitouchTrackpadTest, EndsWhileFramesArrive) {
    MultitouchControls::loadForGood(kKeptLibrary).letStopReturnAtOnce();
    for (int round = 0; round < 50; ++round) {
        const std::string& path = round % 2 == 0 ? kLibrary : kKeptLibrary;
        Seconds last = 0;  // not atomic: after the end nothing may write it
        std::atomic<int> frames = 0;
        std::optional<VirtualClock> usedByHandler(mainThread);
        {
            MultitouchTrackpad trackpad = this->trackpad(path);
            trackpad.watch([](const PadEvent&) {});
            trackpad.contacts().setFrameHandler([&](const TrackpadContactFrame& frame) {
                last = frame.timestamp + usedByHandler->uptime();
                ++frames;
            });
            trackpad.contacts().start();
            const MultitouchControls library(path);
            library.flood(library.device());
            while (frames < 5)
                std::this_thread::yield();
            if (round % 3 == 0)
                trackpad.contacts().stop();
        }
        usedByHandler.reset();
        last = 0;
    }
    mainThread.runPosted();
}

}  // namespace
}  // namespace kinesta::testing
