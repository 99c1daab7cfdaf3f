// Notifications, settings and the main queue. Whatever the code under test says to these classes is recorded by the
// runtime, properties included; what stands here is only the behaviour that it needs.
#include <Foundation/Foundation.h>

#include <algorithm>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

extern "C" id objc_msgSend(id receiver, SEL selector, ...);

namespace {

struct Observer {
    __weak id target;  // the center does not keep its observers
    id token;          // of an observer by block, which it does keep
    SEL selector;
    NSString* name;
    void (^block)(NSNotification*);
};

std::deque<dispatch_block_t>& mainQueue() {
    static std::deque<dispatch_block_t>& queue = *new std::deque<dispatch_block_t>;
    return queue;
}

}  // namespace

@interface FakeQueue : NSObject
@end
@implementation FakeQueue
@end

@implementation FakeToken
@end

extern "C" dispatch_queue_t dispatch_get_main_queue(void) {
    static id const queue = [FakeQueue new];
    return queue;
}

extern "C" dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t) {
    RECORD_CALL("dispatch_get_global_queue " + std::to_string(identifier));
    static id const queue = [FakeQueue new];
    return queue;
}

extern "C" void dispatch_async(dispatch_queue_t queue, dispatch_block_t block) {
    RECORD_CALL("dispatch_async " + kinesta::objc::describe((__bridge void*)queue));
    mainQueue().push_back(block);
    kinesta::fakes::registered("pending block");
}

@interface NSNotification ()
@property(readwrite, copy) NSNotificationName name;
@end
@implementation NSNotification
@end

@interface NSNotificationCenter ()
- (void)post:(NSNotificationName)name;
@end

@implementation NSNotificationCenter {
    std::vector<Observer> _observers;
}
+ (NSNotificationCenter*)defaultCenter {
    static NSNotificationCenter* const center = [NSNotificationCenter new];
    return center;
}
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSNotificationName)name object:(id)object {
    _observers.push_back({observer, nil, selector, name, nil});
    kinesta::fakes::registered("observer");
}
- (id<NSObject>)addObserverForName:(NSNotificationName)name
                            object:(id)object
                             queue:(NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification*))block {
    id const token = [FakeToken new];
    _observers.push_back({nil, token, nil, name, block});
    kinesta::fakes::registered("observer");
    return token;
}
- (void)removeObserver:(id)observer {
    const auto removed = std::erase_if(
        _observers, [&](const Observer& each) { return each.target == observer || each.token == observer; });
    kinesta::fakes::unregistered("observer", removed);
}
- (void)post:(NSNotificationName)name {
    NSNotification* const notification = [NSNotification new];
    notification.name = name;
    const std::vector<Observer> told = _observers;
    for (const Observer& each : told) {
        if (each.name && ![each.name isEqual:name])
            continue;
        if (each.block)
            each.block(notification);
        else if (id const target = each.target)
            reinterpret_cast<void (*)(id, SEL, id)>(objc_msgSend)(target, each.selector, notification);
    }
}
@end

namespace kinesta::fakes {

void drainMainQueue() {
    while (!mainQueue().empty()) {
        @autoreleasepool {
            dispatch_block_t const block = mainQueue().front();
            mainQueue().pop_front();
            unregistered("pending block");
            block();
        }
    }
}

void post(NSNotificationCenter* center, NSNotificationName name) {
    @autoreleasepool {
        [center post:name];
    }
}

// Shared objects are made now, so that they count as there from the start.
static const OnReset foundation([] {
    (void)@[ NSNotificationCenter.defaultCenter, dispatch_get_main_queue(), dispatch_get_global_queue(0, 0) ];
    mainQueue().clear();
});

}  // namespace kinesta::fakes
