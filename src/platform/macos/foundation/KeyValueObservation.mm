#include "platform/macos/foundation/KeyValueObservation.h"

#include <utility>

namespace {

void* ourContext = &ourContext;

}  // namespace

@interface KinestaPropertyObserver : NSObject {
  @public
    std::function<void()> changed;
}
- (void)tell;
@end

@implementation KinestaPropertyObserver
- (void)tell {
    // A copy: the observation may end within the call.
    if (const auto call = changed)
        call();
}
- (void)observeValueForKeyPath:(NSString*)path
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    if (context != &ourContext)
        return;
    if (NSThread.isMainThread) {
        [self tell];
        return;
    }
    dispatch_async(dispatch_get_main_queue(), ^{
      [self tell];
    });
}
@end

namespace kinesta {

KeyValueObservation::KeyValueObservation(NSObject* object, NSString* key, std::function<void()> changed)
    : m_object(object), m_key(key), m_observer([KinestaPropertyObserver new]) {
    m_observer->changed = std::move(changed);
    [m_object addObserver:m_observer forKeyPath:m_key options:NSKeyValueObservingOptionInitial context:&ourContext];
}

KeyValueObservation::~KeyValueObservation() {
    // Once for each addition: one more raises an exception, one less leaves the system a dead observer (from memory).
    [m_object removeObserver:m_observer forKeyPath:m_key context:&ourContext];
    m_observer->changed = nullptr;  // a block on the main queue may still hold the observer
}

}  // namespace kinesta
