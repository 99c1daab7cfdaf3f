#include <AppKit/NSApplication.h>
#include <AppKit/NSEvent.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"

namespace {

struct Monitor {
    id token;
    NSEventMask mask;
    void (^global)(NSEvent*);
    NSEvent* (^local)(NSEvent*);
};

std::vector<Monitor>& monitors() {
    static auto& all = *new std::vector<Monitor>;
    return all;
}

id add(const Monitor& monitor) {
    monitors().push_back(monitor);
    kinesta::fakes::registered("monitor");
    return monitor.token;
}

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

bool refusesMonitors = false;

}  // namespace

@interface NSEvent ()
@property(readwrite) NSEventType type;
@property(readwrite) NSTimeInterval timestamp;
@property(readwrite) NSEventModifierFlags modifierFlags;
@property(readwrite) NSInteger pressureStage;
@end
@implementation NSEvent
@dynamic CGEvent;
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent*))block {
    if (!NSApp)
        fail("events are watched without an application object");
    return refusesMonitors ? nil : add({[FakeToken new], mask, block, nil});
}
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent*))block {
    return refusesMonitors ? nil : add({[FakeToken new], mask, nil, block});
}
+ (NSPoint)mouseLocation {
    return kinesta::fakes::pointer;
}
+ (void)removeMonitor:(id)monitor {
    if (std::erase_if(monitors(), [&](const Monitor& each) { return each.token == monitor; }) == 0)
        fail("removeMonitor: of what is no monitor");
    kinesta::fakes::unregistered("monitor");
}
- (NSInteger)stage {
    if (self.type != NSEventTypePressure)
        fail("stage of an event without pressure");
    return self.pressureStage;
}
@end

namespace kinesta::fakes {

NSPoint pointer;

NSEvent* event(NSEventType type, NSTimeInterval timestamp, NSEventModifierFlags flags, NSInteger stage) {
    NSEvent* const event = [NSEvent new];
    event.type = type;
    event.timestamp = timestamp;
    event.modifierFlags = flags;
    event.pressureStage = stage;
    return event;
}

void deliverToOthers(NSEvent* event) {
    const auto installed = monitors();  // what is removed meanwhile is still called
    for (const Monitor& monitor : installed)
        if (monitor.global && (monitor.mask & 1ULL << event.type) != 0)
            monitor.global(event);
}

NSEvent* deliverHere(NSEvent* event) {
    const auto installed = monitors();
    for (const Monitor& monitor : installed)
        if (event && monitor.local && (monitor.mask & 1ULL << event.type) != 0)
            event = monitor.local(event);
    return event;
}

void refuseMonitors() { refusesMonitors = true; }

static const OnReset events([] {
    monitors().clear();
    refusesMonitors = false;
});

}  // namespace kinesta::fakes
