#include <algorithm>
#include <optional>
#include <string>

#include "MacTest.h"
#include "platform/macos/application/MacActivationPolicy.h"
#include "platform/macos/application/MacApplicationNotifications.h"
#include "platform/macos/application/MacConfigurationWindow.h"
#include "platform/macos/application/MacOwnMenus.h"
#include "platform/macos/application/MacOwnWindows.h"
#include "platform/macos/application/MacSessionEvents.h"

namespace kinesta {
namespace {

struct ApplicationOnTheMac : MacTest {
    ~ApplicationOnTheMac() override { fakes::setWindows(@[], nil, nil); }

    static NSWindow* window(Class type = [NSWindow class]) {
        NSWindow* const window = [type new];
        window.title = @"Kinesta";
        window.canBecomeMainWindow = YES;
        window.closeButton = [NSButton new];
        window.closeButton.enabled = YES;
        return window;
    }
};

TEST_F(ApplicationOnTheMac, ReadsBackItsPolicy) {
    MacActivationPolicy policy;
    policy.set(ActivationPolicy::Kind::accessory);
    EXPECT_EQ(policy.kind(), ActivationPolicy::Kind::accessory);
    policy.set(ActivationPolicy::Kind::regular);
    EXPECT_EQ(policy.kind(), ActivationPolicy::Kind::regular);
    policy.activateIgnoringOtherApplications();
    EXPECT_EQ(objc::takeCalls(),
              (Calls{"NSApplication#1 setActivationPolicy:1", "NSApplication#1 setActivationPolicy:0",
                     "NSApplication#1 activateIgnoringOtherApps:YES"}));
}

TEST_F(ApplicationOnTheMac, TellsWhatTheSystemDoesToItUntilItEnds) {
    const ApplicationEvents events;
    std::string log;
    std::vector<Subscription> subscriptions;
    for (const ApplicationEvent event :
         {ApplicationEvent::windowWillClose, ApplicationEvent::windowDidBecomeKey,
          ApplicationEvent::windowDidChangeVisibility, ApplicationEvent::didBecomeActive, ApplicationEvent::didWake})
        subscriptions.push_back(events.observe(event, [&, event] { log += std::to_string(static_cast<int>(event)); }));
    NSNotificationCenter* const workspace = NSWorkspace.sharedWorkspace.notificationCenter;
    NSNotificationCenter* const center = NSNotificationCenter.defaultCenter;
    std::optional<MacSessionEvents> session;
    @autoreleasepool {
        // Ends it while the platform calls its observers for the second waking.
        __block int wakings = 0;
        auto* const ending = &session;
        id const first = [workspace addObserverForName:NSWorkspaceDidWakeNotification
                                                object:nil
                                                 queue:nil
                                            usingBlock:^(NSNotification*) {
                                              if (++wakings == 2)
                                                  ending->reset();
                                            }];
        objc::takeCalls();
        session.emplace(events);
        EXPECT_EQ(std::ranges::count_if(objc::takeCalls(),
                                        [](const std::string& call) {
                                            return call.find("queue:NSOperationQueue#1") != std::string::npos;
                                        }),
                  6);
        fakes::post(workspace, NSWorkspaceDidWakeNotification);
        for (NSNotificationName name in @[
                 NSApplicationDidBecomeActiveNotification, NSApplicationDidHideNotification,
                 NSApplicationDidUnhideNotification, NSWindowDidBecomeKeyNotification, NSWindowWillCloseNotification
             ])
            fakes::post(center, name);
        NSWindow* const tip = window();
        tip.canBecomeMainWindow = NO;
        for (NSWindow* closing in @[ tip, window() ])
            [center postNotificationName:NSWindowWillCloseNotification object:closing];
        EXPECT_EQ(std::exchange(log, {}), "4322100");
        fakes::post(workspace, NSWorkspaceDidWakeNotification);
        EXPECT_EQ(log, "");
        [workspace removeObserver:first];
    }
}

TEST_F(ApplicationOnTheMac, CarriesRequestsOverTheDefaultCenterInOrder) {
    @autoreleasepool {
        std::string log;
        std::optional<MacApplicationNotifications> notifications(std::in_place);
        const auto observe = [&](std::string_view name, const std::string& text) {
            return notifications->observe(
                name, [&log, text](ActionKind kind) { log += text + std::string(rawValue(kind)) + " "; });
        };
        const Subscription first = observe(kAppActionRequested, "1:");
        Subscription second = observe(kAppActionRequested, "2:");
        const Subscription other = observe("other", "other:");
        notifications->post(kAppActionRequested, ActionKind::disableAllRules);
        EXPECT_EQ(log, "1:disableAllRules 2:disableAllRules ");
        second.end();
        NSNotificationCenter* const center = NSNotificationCenter.defaultCenter;
        NSString* const name = @"com.orvane.kinesta.appActionRequested";
        for (id object in @[ @"toggleConfigurationWindow", @"unheard of", @7 ])
            [center postNotificationName:name object:object];
        [center postNotificationName:name object:nil];
        EXPECT_EQ(log, "1:disableAllRules 2:disableAllRules 1:toggleConfigurationWindow ");
        notifications.reset();
        [center postNotificationName:name object:@"disableAllRules"];
        EXPECT_EQ(log.size(), std::string("1:disableAllRules 2:disableAllRules 1:toggleConfigurationWindow ").size());
    }
}

/// Makes the platform's window when it is first shown, as Qt does.
struct WindowMaker : ConfigurationWindow {
    explicit WindowMaker(NSArray<NSWindow*>* others) : windows(others) {}
    bool exists() const override { return isShown; }
    bool isVisible() const override { return isShown; }
    bool isMiniaturized() const override { return false; }
    bool isKey() const override { return false; }
    void makeKeyAndOrderFront() override {
        isShown = true;
        fakes::setWindows(windows, nil, nil);
    }
    void orderOut() override { isShown = false; }
    void performClose() override { isShown = false; }

    NSArray<NSWindow*>* windows;
    bool isShown = false;
};

TEST_F(ApplicationOnTheMac, FindsItsWindowAmongAllAndBringsItToTheFront) {
    @autoreleasepool {
        NSWindow* const wanted = window();
        NSWindow* const other = window();
        other.title = @"About Kinesta";
        NSWindow* const panel = window([NSPanel class]);
        panel.canBecomeMainWindow = NO;
        NSWindow* const sheet = window();
        WindowMaker maker(@[ other, panel, wanted ]);
        MacConfigurationWindow configuration(maker);
        EXPECT_FALSE(configuration.isVisible() || configuration.isKey());
        objc::takeCalls();
        configuration.makeKeyAndOrderFront();
        EXPECT_EQ(objc::takeCalls(), Calls{objc::describe((__bridge void*)wanted) + " makeKeyAndOrderFront:nil"});
        EXPECT_FALSE(configuration.isVisible());  // as when the application is hidden: the maker does not know
        wanted.visible = wanted.keyWindow = YES;
        EXPECT_TRUE(configuration.isVisible() && configuration.isKey());
        wanted.keyWindow = NO;
        EXPECT_FALSE(configuration.isKey());
        wanted.attachedSheet = sheet;
        sheet.keyWindow = YES;
        EXPECT_TRUE(configuration.isKey());
        objc::takeCalls();
        configuration.makeKeyAndOrderFront();
        EXPECT_EQ(objc::takeCalls(), Calls{});  // the sheet has the keyboard
        wanted.attachedSheet = nil;
    }
}

TEST_F(ApplicationOnTheMac, ClosesItsOwnWindowAsItsButtonWould) {
    @autoreleasepool {
        MacOwnWindows windows;
        fakes::setWindows(@[], window(), nil);
        EXPECT_EQ(windows.keyWindow(), nullptr);  // there is no application object
        (void)NSApplication.sharedApplication;
        NSWindow* const plain = window();
        NSWindow* const panel = window([NSPanel class]);
        NSWindow* const withSheet = window();
        withSheet.attachedSheet = window();
        NSWindow* const away = window();
        away.miniaturized = YES;
        NSWindow* const modified = window();
        modified.closeButton.enabled = NO;
        NSWindow* const bare = window();
        bare.closeButton = nil;
        const auto facts = [](const std::unique_ptr<OwnWindow>& own) {
            return !own ? "none"
                        : std::string(own->isPanel() ? "panel " : "") + (own->isMiniaturized() ? "away " : "") +
                              (own->hasAttachedSheet() ? "sheet " : "") +
                              (own->isCloseButtonEnabled() ? "closable" : "");
        };
        std::string all;
        for (NSWindow* each in @[ plain, panel, withSheet, away, modified, bare ]) {
            fakes::setWindows(@[], each, nil);
            all += facts(windows.keyWindow()) + "|";
        }
        EXPECT_EQ(all, "closable|panel closable|sheet closable|away closable|||");
        fakes::setWindows(@[], nil, plain);
        EXPECT_EQ(facts(windows.keyWindow()), "none");
        objc::takeCalls();
        windows.mainWindow()->performClose();
        EXPECT_EQ(objc::takeCalls(), Calls{objc::describe((__bridge void*)plain) + " performClose:nil"});
    }
}

TEST_F(ApplicationOnTheMac, SendsTheActionsOfItsOwnMenus) {
    @autoreleasepool {
        MacOwnMenus menus;
        EXPECT_EQ(menus.mainMenu(), nullptr);
        NSMenu* const bar = [[NSMenu alloc] initWithTitle:@""];
        NSMenu* const tiling = [[NSMenu alloc] initWithTitle:@"Move & Resize"];
        [bar addItemWithTitle:@"Window" action:nil keyEquivalent:@""].submenu = tiling;
        NSMenuItem* const left = [tiling addItemWithTitle:@"Left" action:@selector(orderOut:) keyEquivalent:@""];
        left.identifier = @"_zoomLeft:";
        NSWindow* const target = window();
        left.target = target;
        NSApplication.sharedApplication.mainMenu = bar;
        objc::takeCalls();

        const auto main = menus.mainMenu();
        main->update();
        EXPECT_EQ(objc::takeCalls(), Calls{"NSMenu#1 update"});
        const auto top = main->items();
        ASSERT_EQ(top.size(), 1U);
        EXPECT_EQ(top[0]->identifier(), std::nullopt);
        EXPECT_EQ(top[0]->actionName(), std::nullopt);
        EXPECT_FALSE(top[0]->sendAction());
        std::unique_ptr<OwnMenuItem> item;
        {
            const auto submenu = top[0]->submenu();
            item = std::move(submenu->items().at(0));
        }
        EXPECT_EQ(item->identifier(), "_zoomLeft:");
        EXPECT_EQ(item->actionName(), "orderOut:");
        EXPECT_EQ(item->submenu(), nullptr);
        left.enabled = NO;
        EXPECT_FALSE(item->isEnabled());
        objc::takeCalls();
        EXPECT_TRUE(item->sendAction());
        EXPECT_EQ(objc::takeCalls(), Calls{"NSApplication#1 sendAction:@orderOut: to:" +
                                           objc::describe((__bridge void*)target) + " from:NSMenuItem#2"});
        NSApplication.sharedApplication.mainMenu = nil;
    }
}

}  // namespace
}  // namespace kinesta
