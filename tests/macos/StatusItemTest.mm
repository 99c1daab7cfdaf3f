#include <optional>
#include <string>
#include <vector>

#include "MacTest.h"
#include "platform/macos/statusitem/MacStatusItem.h"

namespace kinesta {
namespace {

using Command = StatusMenuCommand;

const StatusMenu kMenu{
    {.title = "Gestures enabled", .command = Command::toggleGestureRecognition, .isChecked = true, .isCheckable = true},
    {},
    {.title = "Trackpad listening"},
    {.title = "Quit…", .command = Command::quitApplication, .isEnabled = true}};

struct StatusItemOnTheMac : MacTest {
    void create() {
        @autoreleasepool {
            item.emplace();
            item->create({.clicked =
                              [this](StatusItemClick click) {
                                  log.push_back(click.button == StatusItemClick::Button::right ? "right" : "left");
                                  if (click.isControlHeld)
                                      log.back() += "+control";
                              },
                          .chosen =
                              [this, text = std::string("chosen: command ")](Command command) {
                                  if (command == Command::quitApplication)
                                      item.reset();
                                  log.push_back(text + std::to_string(static_cast<int>(command)));
                              }});
        }
    }

    Calls log;
    std::optional<MacStatusItem> item;
};

TEST_F(StatusItemOnTheMac, IsSetUpForBothButtonsAndDrawnWhenItsStateChanges) {
    @autoreleasepool {
        create();
        item->setToolTip("Kinesta");
        std::vector<Calls> images;
        for (const bool isEnabled : {true, true, false}) {
            item->setState(isEnabled, isEnabled ? "on" : "off");
            images.push_back(fakes::drawn(fakes::statusItem().button.image));
        }
        EXPECT_GT(images[0].size(), 5U);
        EXPECT_NE(images[0], images[2]);
        item.reset();
        Calls calls = objc::takeCalls();
        std::erase_if(calls, [](const std::string& call) { return !call.starts_with("NSStatus"); });
        const std::string button = "NSStatusBarButton#1 ";
        EXPECT_EQ(calls, (Calls{"NSStatusBar#1 statusItemWithLength:-1", button + "setImagePosition:1",
                                button + "setTarget:KinestaStatusItemTarget#1",
                                button + "setAction:@statusItemClicked:", button + "sendActionOn:20",
                                button + "setToolTip:\"Kinesta\"", button + "setImage:NSImage#1",
                                button + "setAccessibilityLabel:\"on\"", button + "setAccessibilityLabel:\"on\"",
                                button + "setImage:NSImage#2", button + "setAccessibilityLabel:\"off\"",
                                "NSStatusBar#1 removeStatusItem:NSStatusItem#1"}));
    }
}

TEST_F(StatusItemOnTheMac, TellsWhichClickItWas) {
    @autoreleasepool {
        create();
        const auto click = [&](NSEvent* event) {
            fakes::setCurrentEvent(event);
            fakes::click(fakes::statusItem().button);
        };
        click(fakes::event(NSEventTypeLeftMouseUp, 0, NSEventModifierFlagShift | NSEventModifierFlagCommand));
        click(fakes::event(NSEventTypeLeftMouseUp, 0, NSEventModifierFlagControl | NSEventModifierFlagShift));
        click(fakes::event(NSEventTypeRightMouseUp));
        click(
            fakes::event(NSEventTypeKeyDown, 0, NSEventModifierFlagControl));  // VoiceOver presses with Control-Option
        click(nil);
        EXPECT_EQ(log, (Calls{"left", "left+control", "right", "left", "left"}));
        NSButton* const button = fakes::statusItem().button;
        item.reset();
        fakes::click(button);
        EXPECT_EQ(log.size(), 5U);
    }
}

TEST_F(StatusItemOnTheMac, HasItsMenuOnlyWhileThatIsOpen) {
    @autoreleasepool {
        create();
        item->setMenu({});
        item->setMenu(kMenu);
        objc::takeCalls();
        NSStatusItem* const bar = fakes::statusItem();
        fakes::whileMenuIsOpen([&] {
            std::string shown = bar.menu.autoenablesItems ? "automatic" : "";
            for (NSMenuItem* each in bar.menu.itemArray)
                shown += std::string("|") + each.title.UTF8String + (each.isEnabled ? " enabled" : "") +
                         (each.state != 0 ? " checked" : "") + (each.action ? " acts" : "");
            EXPECT_EQ(shown, "|Gestures enabled checked acts|- enabled|Trackpad listening|Quit… enabled acts");
            log = objc::takeCalls();
            fakes::choose(bar.menu.itemArray[0]);
        });
        item->openMenu();
        EXPECT_EQ(log.at(log.size() - 3), "NSStatusItem#1 setMenu:NSMenu#1");
        EXPECT_EQ(log.at(log.size() - 2), "NSStatusBarButton#1 performClick:nil");
        EXPECT_EQ(log.back(), "chosen: command 1");
        EXPECT_EQ(objc::takeCalls().back(), "NSStatusItem#1 setMenu:nil");
        EXPECT_EQ(bar.menu, nil);
        item.reset();
    }
}

TEST_F(StatusItemOnTheMac, MayEndWhileItsMenuIsOpen) {
    @autoreleasepool {
        create();
        item->setMenu(kMenu);
        fakes::whileMenuIsOpen([&] {
            @autoreleasepool {
                fakes::choose(fakes::statusItem().menu.itemArray[3]);
            }
        });
        item->openMenu();
        EXPECT_EQ(log, Calls{"chosen: command 5"});
    }
}

}  // namespace
}  // namespace kinesta
