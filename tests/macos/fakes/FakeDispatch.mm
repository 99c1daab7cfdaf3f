// The main queue and the main run loop that serves it, in real time.
#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

using Clock = std::chrono::steady_clock;

struct dispatch_source_type_s {
    bool isTimer;
};

@interface FakeQueue : NSObject <OS_dispatch_queue>
@end
@implementation FakeQueue
@end

@interface FakeSource : NSObject <OS_dispatch_source> {
  @public
    bool isTimer;
    uintptr_t handle;
    dispatch_time_t start;
    dispatch_block_t handler;
    bool isActive;
    bool isCancelled;
}
@end
@implementation FakeSource
- (void)dealloc {
    if (!isActive) {
        std::fprintf(stderr, "a suspended source was released\n");
        std::abort();
    }
}
@end

namespace {

struct MainQueue {
    std::mutex lock;  // guards blocks
    std::condition_variable arrival;
    std::deque<dispatch_block_t> blocks;
    std::vector<FakeSource*> sources;
    bool isStopped = false;
};

MainQueue& mainQueue() {
    static auto& queue = *new MainQueue;
    return queue;
}

dispatch_time_t timeNow() { return static_cast<dispatch_time_t>(Clock::now().time_since_epoch().count()); }

FakeSource* fake(dispatch_object_t source) { return static_cast<FakeSource*>(static_cast<id>(source)); }

bool runOneBlock() {
    dispatch_block_t block;
    {
        const std::lock_guard guard(mainQueue().lock);
        if (mainQueue().blocks.empty())
            return false;
        block = mainQueue().blocks.front();
        mainQueue().blocks.pop_front();
    }
    kinesta::fakes::unregistered("pending block");
    block();
    return true;
}

/// The timer that starts next, if any does.
FakeSource* nextTimer() {
    FakeSource* next = nil;
    for (FakeSource* source : mainQueue().sources)
        if (source->isTimer && source->start != DISPATCH_TIME_FOREVER && (!next || source->start < next->start))
            next = source;
    return next;
}

}  // namespace

extern "C" {

const struct dispatch_source_type_s _dispatch_source_type_timer = {true};
const struct dispatch_source_type_s _dispatch_source_type_signal = {false};

dispatch_queue_t dispatch_get_main_queue(void) {
    static FakeQueue* const queue = [FakeQueue new];
    return queue;
}

dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t) {
    RECORD_CALL("dispatch_get_global_queue " + std::to_string(identifier));
    static FakeQueue* const queue = [FakeQueue new];
    return queue;
}

void dispatch_async(dispatch_queue_t queue, dispatch_block_t block) {
    RECORD_CALL("dispatch_async " + kinesta::objc::describe((__bridge void*)queue));
    kinesta::fakes::registered("pending block");
    const std::lock_guard guard(mainQueue().lock);
    mainQueue().blocks.push_back(block);
    mainQueue().arrival.notify_one();
}

dispatch_time_t dispatch_time(dispatch_time_t when, int64_t nanoseconds) {
    const auto start = when == DISPATCH_TIME_NOW ? timeNow() : when;
    const auto length = static_cast<dispatch_time_t>(nanoseconds);
    return length > INT64_MAX - start ? DISPATCH_TIME_FOREVER : start + length;
}

dispatch_source_t dispatch_source_create(dispatch_source_type_t type, uintptr_t handle, uintptr_t, dispatch_queue_t) {
    FakeSource* const source = [FakeSource new];
    source->isTimer = type->isTimer;
    source->handle = handle;
    source->start = DISPATCH_TIME_FOREVER;
    return source;
}

void dispatch_source_set_event_handler(dispatch_source_t source, dispatch_block_t handler) {
    fake(source)->handler = handler;
}

void dispatch_source_set_timer(dispatch_source_t source, dispatch_time_t start, uint64_t interval, uint64_t) {
    RECORD_CALL(std::string("dispatch_source_set_timer ") + (start == DISPATCH_TIME_FOREVER ? "never" : "later") +
                (interval == DISPATCH_TIME_FOREVER ? "" : " repeating"));
    fake(source)->start = start;
}

void dispatch_activate(dispatch_object_t source) {
    fake(source)->isActive = true;
    mainQueue().sources.push_back(fake(source));
    kinesta::fakes::registered("source");
}

void dispatch_source_cancel(dispatch_source_t source) {
    fake(source)->handler = nil;
    kinesta::fakes::unregistered("source", std::erase(mainQueue().sources, fake(source)));
}

CFRunLoopRef CFRunLoopGetMain(void) { return reinterpret_cast<CFRunLoopRef>(&mainQueue()); }

void CFRunLoopRun(void) {
    RECORD_CALL("CFRunLoopRun");
    mainQueue().isStopped = false;  // a stop before the run is lost
    kinesta::fakes::turnRunLoop([] { return mainQueue().isStopped; });
}

void CFRunLoopStop(CFRunLoopRef) {
    RECORD_CALL("CFRunLoopStop");
    mainQueue().isStopped = true;
}

}  // extern "C"

namespace kinesta::fakes {

void drainMainQueue() {
    @autoreleasepool {
        while (runOneBlock()) {
        }
    }
}

void turnRunLoop(const std::function<bool()>& isDone) {
    while (!isDone()) {
        // All that wait at the beginning of the turn, and the first timer that is due.
        std::size_t count = 0;
        {
            const std::lock_guard guard(mainQueue().lock);
            count = mainQueue().blocks.size();
        }
        const bool isIdle = count == 0;
        for (; count > 0; --count)
            runOneBlock();
        FakeSource* const timer = nextTimer();
        if (timer && timer->start <= timeNow()) {
            timer->start = DISPATCH_TIME_FOREVER;
            timer->handler();
        } else if (isIdle) {
            const auto patience = Clock::now() + std::chrono::seconds(5);
            const auto due = timer ? Clock::time_point(std::chrono::nanoseconds(timer->start)) : patience;
            std::unique_lock guard(mainQueue().lock);
            if (!mainQueue().arrival.wait_until(guard, std::min(due, patience),
                                                [] { return !mainQueue().blocks.empty(); }) &&
                Clock::now() >= patience) {
                std::fprintf(stderr, "the main run loop waits for nothing\n");
                std::abort();
            }
        }
    }
}

void signalArrives(int number) {
    const auto sources = mainQueue().sources;
    for (FakeSource* source : sources)
        if (!source->isTimer && source->handle == static_cast<uintptr_t>(number) && source->handler)
            source->handler();
}

static const OnReset dispatch([] {
    (void)dispatch_get_main_queue();
    (void)dispatch_get_global_queue(0, 0);
    mainQueue().blocks.clear();
    mainQueue().sources.clear();
});

}  // namespace kinesta::fakes
