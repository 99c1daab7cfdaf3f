#include <memory>
#include <vector>

#include "MacTest.h"
#include "platform/macos/pointer/MacPointerEventMonitoring.h"

namespace kinesta {
namespace {

using Kind = PointerEvent::Kind;

struct PointerEventsOnTheMac : MacTest {
    PointerEventMonitor watch(PointerEventScope scope) {
        return monitoring.monitor(scope, [this](const PointerEvent& event) { seen.push_back(event); });
    }

    std::vector<PointerEvent> seen;
    MacPointerEventMonitoring monitoring;
};

TEST_F(PointerEventsOnTheMac, AreThoseOfTheirScope) {
    @autoreleasepool {
        const PointerEventMonitor others = watch(PointerEventScope::otherApplications);
        {
            const PointerEventMonitor own = watch(PointerEventScope::thisApplication);
            NSEvent* const click = fakes::event(NSEventTypeLeftMouseDown, 0.25);
            EXPECT_EQ(fakes::deliverHere(click), click);
            EXPECT_EQ(seen, (std::vector{PointerEvent{Kind::leftDown, 0, 0.25}}));
            seen.clear();
        }
        // Only pressure may be asked for its stage, and what the mask leaves out does not arrive.
        const NSEventType types[] = {NSEventTypeLeftMouseDown,  NSEventTypePressure,      NSEventTypeLeftMouseUp,
                                     NSEventTypeRightMouseDown, NSEventTypeRightMouseUp,  NSEventTypeKeyDown,
                                     NSEventTypeFlagsChanged,   NSEventTypeSystemDefined, NSEventTypeKeyUp};
        double time = 1;
        for (const NSEventType type : types)
            fakes::deliverToOthers(fakes::event(type, time++, 0, 2));
        EXPECT_EQ(seen, (std::vector<PointerEvent>{{Kind::leftDown, 0, 1},
                                                   {Kind::pressure, 2, 2},
                                                   {Kind::leftUp, 0, 3},
                                                   {Kind::rightDown, 0, 4},
                                                   {Kind::rightUp, 0, 5}}));
        EXPECT_EQ(objc::takeCalls(), (Calls{"NSEvent addGlobalMonitorForEventsMatchingMask:17179869214 handler:block",
                                            "NSEvent addLocalMonitorForEventsMatchingMask:17179869214 handler:block",
                                            "NSEvent removeMonitor:FakeToken#1"}));
    }
}

TEST_F(PointerEventsOnTheMac, EndWithTheirMonitorAlsoWithinAnEvent) {
    @autoreleasepool {
        const auto owned = std::make_shared<int>();
        PointerEventMonitor next;
        PointerEventMonitor self =
            monitoring.monitor(PointerEventScope::otherApplications, [&, owned](const PointerEvent& event) {
                seen.push_back(event);
                next.cancel();
                self.cancel();
                EXPECT_EQ(fakes::openRegistrations(), "");
                EXPECT_EQ(owned.use_count(), 2);  // what runs is not destroyed
            });
        next = watch(PointerEventScope::otherApplications);
        fakes::deliverToOthers(fakes::event(NSEventTypeLeftMouseUp, 1));
        fakes::deliverToOthers(fakes::event(NSEventTypeLeftMouseUp, 2));
        EXPECT_EQ(seen, (std::vector{PointerEvent{Kind::leftUp, 0, 1}}));
        EXPECT_EQ(owned.use_count(), 1);
    }
}

TEST_F(PointerEventsOnTheMac, StayAwayWithoutHarmWhereThePlatformRefuses) {
    fakes::refuseMonitors();
    @autoreleasepool {
        const PointerEventMonitor monitor = watch(PointerEventScope::otherApplications);
        fakes::deliverToOthers(fakes::event(NSEventTypeLeftMouseDown));
    }
    EXPECT_EQ(seen, std::vector<PointerEvent>{});
}

}  // namespace
}  // namespace kinesta
