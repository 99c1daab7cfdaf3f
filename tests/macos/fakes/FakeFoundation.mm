// Notifications and settings. Every message from the code under test to these classes is recorded by the
// runtime, properties included; what stands here is only the behaviour that it needs.
#include <Foundation/Foundation.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"
#include "TestRuntime.h"

namespace {

struct Observer {
    id token;
    NSString* name;
    void (^block)(NSNotification*);
};

}  // namespace

@implementation FakeToken
@end

@implementation NSOperationQueue
+ (NSOperationQueue*)mainQueue {
    static NSOperationQueue* const queue = [NSOperationQueue new];
    return queue;
}
@end

@interface NSNotification ()
@property(readwrite, copy) NSNotificationName name;
@property(readwrite, strong) id object;
@end
@implementation NSNotification
@end

@implementation NSNotificationCenter {
    std::vector<Observer> _observers;
}
+ (NSNotificationCenter*)defaultCenter {
    static NSNotificationCenter* const center = [NSNotificationCenter new];
    return center;
}
- (id<NSObject>)addObserverForName:(NSNotificationName)name
                            object:(id)object
                             queue:(NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification*))block {
    id const token = [FakeToken new];
    _observers.push_back({token, name, block});
    kinesta::fakes::registered("observer");
    return token;
}
- (void)removeObserver:(id)observer {
    const auto removed = std::erase_if(_observers, [&](const Observer& each) { return each.token == observer; });
    kinesta::fakes::unregistered("observer", removed);
}
- (void)postNotificationName:(NSNotificationName)name object:(id)object {
    NSNotification* const notification = [NSNotification new];
    notification.name = name;
    notification.object = object;
    const std::vector<Observer> present = _observers;
    for (const Observer& each : present)
        if (!each.name || [each.name isEqual:name])
            each.block(notification);
}
@end

namespace kinesta::fakes {

void post(NSNotificationCenter* center, NSNotificationName name) {
    @autoreleasepool {
        [center postNotificationName:name object:nil];
    }
}

// Shared objects are made now, so that they count as there from the start.
static const OnReset foundation([] { (void)@[ NSNotificationCenter.defaultCenter, NSOperationQueue.mainQueue ]; });

}  // namespace kinesta::fakes
