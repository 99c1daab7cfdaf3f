#include <AppKit/NSEvent.h>

#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"

namespace {

using Monitor = std::pair<id, void (^)(NSEvent*)>;

std::vector<Monitor>& monitors() {
    static auto& all = *new std::vector<Monitor>;
    return all;
}

}  // namespace

@interface NSEvent ()
@property(readwrite) NSEventType type;
@property(readwrite) NSInteger buttonNumber;
@end
@implementation NSEvent
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent*))block {
    id const token = [FakeToken new];
    monitors().emplace_back(token, block);
    kinesta::fakes::registered("monitor");
    return token;
}
+ (NSPoint)mouseLocation {
    return kinesta::fakes::pointer;
}
+ (void)removeMonitor:(id)monitor {
    if (std::erase_if(monitors(), [&](const Monitor& each) { return each.first == monitor; }) == 0) {
        std::fprintf(stderr, "removeMonitor: of what is no monitor\n");
        std::abort();
    }
    kinesta::fakes::unregistered("monitor");
}
@end

namespace kinesta::fakes {

NSPoint pointer;

void fireGlobalMonitors(NSEventType type, NSInteger button) {
    @autoreleasepool {
        NSEvent* const event = [NSEvent new];
        event.type = type;
        event.buttonNumber = button;
        const auto installed = monitors();
        for (const auto& [token, block] : installed)
            block(event);
    }
}

static const OnReset events([] { monitors().clear(); });

}  // namespace kinesta::fakes
