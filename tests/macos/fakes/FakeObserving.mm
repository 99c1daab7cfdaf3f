// Key-value observing.
#include <Foundation/Foundation.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"

namespace {

// The platform keeps neither.
struct Observation {
    __unsafe_unretained NSObject* object;
    __unsafe_unretained NSObject* observer;
    NSString* key;
    void* context;
};

std::vector<Observation>& observations() {
    static auto& all = *new std::vector<Observation>;
    return all;
}

void tell(const Observation& each) {
    [each.observer observeValueForKeyPath:each.key ofObject:each.object change:@{} context:each.context];
}

}  // namespace

@implementation NSObject (FakeKeyValueObserving)
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)key
            options:(NSKeyValueObservingOptions)options
            context:(void*)context {
    if (std::strchr(key.UTF8String, '.')) {
        std::fprintf(stderr, "observing %s: the dot leads to a property of a property\n", key.UTF8String);
        std::abort();
    }
    observations().push_back({self, observer, key, context});
    kinesta::fakes::registered("key-value observer");
    if ((options & NSKeyValueObservingOptionInitial) != 0)
        tell(Observation(observations().back()));
}
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)key context:(void*)context {
    const auto removed = std::erase_if(observations(), [&](const Observation& each) {
        return each.object == self && each.observer == observer && [each.key isEqual:key] && each.context == context;
    });
    if (removed != 1) {
        std::fprintf(stderr, "removal of a key-value observer that is none\n");
        std::abort();
    }
    kinesta::fakes::unregistered("key-value observer");
}
@end

@implementation NSThread
+ (BOOL)isMainThread {
    return !kinesta::fakes::isOnAnotherThread;
}
@end

namespace kinesta::fakes {

bool isOnAnotherThread = false;

void changed(NSObject* object, NSString* key) {
    @autoreleasepool {
        const auto present = observations();
        for (const Observation& each : present)
            if ((!object || each.object == object) && [each.key isEqual:key])
                tell(each);
    }
}

static const OnReset observing([] {
    observations().clear();
    isOnAnotherThread = false;
});

}  // namespace kinesta::fakes
