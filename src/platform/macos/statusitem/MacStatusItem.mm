#include "platform/macos/statusitem/MacStatusItem.h"

#include <AppKit/AppKit.h>

#include <utility>

#include "app/TrayIcon.h"
#include "platform/macos/drawing/PictureImage.h"
#include "platform/macos/foundation/NsText.h"

/// What the button and the menu send their actions to. They hold it weakly.
@interface KinestaStatusItemTarget : NSObject
- (instancetype)initWithHandlers:(kinesta::StatusItem::Handlers)handlers;
- (void)statusItemClicked:(id)sender;
- (void)menuItemChosen:(NSMenuItem*)item;
@end

@implementation KinestaStatusItemTarget {
    kinesta::StatusItem::Handlers _handlers;
}

- (instancetype)initWithHandlers:(kinesta::StatusItem::Handlers)handlers {
    if ((self = [super init]))
        _handlers = std::move(handlers);
    return self;
}

- (void)statusItemClicked:(id)sender {
    // The mouse-up itself, or what an assistive program has sent: Control and Option are VoiceOver's own keys, and
    // must not open the menu.
    NSEvent* const event = NSApplication.sharedApplication.currentEvent;
    kinesta::StatusItemClick click;
    if (event.type == NSEventTypeRightMouseUp)
        click.button = kinesta::StatusItemClick::Button::right;
    else if (event.type == NSEventTypeLeftMouseUp)
        click.isControlHeld = (event.modifierFlags & NSEventModifierFlagControl) != 0;
    if (const auto clicked = _handlers.clicked)  // a copy: it may end this object
        clicked(click);
}

- (void)menuItemChosen:(NSMenuItem*)item {
    NSNumber* const command = item.representedObject;
    if (const auto chosen = _handlers.chosen)
        chosen(static_cast<kinesta::StatusMenuCommand>(command.integerValue));
}

@end

namespace kinesta {
namespace {

NSMenuItem* menuItem(const StatusMenuItem& item, id target) {
    if (item.isSeparator())
        return [NSMenuItem separatorItem];
    const bool isCommand = item.command != StatusMenuCommand::none;
    NSMenuItem* const result = [[NSMenuItem alloc] initWithTitle:nsText(item.title)
                                                          action:isCommand ? @selector(menuItemChosen:) : nil
                                                   keyEquivalent:@""];
    result.target = target;
    result.representedObject = @(static_cast<NSInteger>(item.command));
    result.enabled = item.isEnabled;
    result.state = item.isCheckable && item.isChecked ? NSControlStateValueOn : NSControlStateValueOff;
    return result;
}

NSMenu* menuOf(const StatusMenu& items, id target) {
    NSMenu* const menu = [[NSMenu alloc] initWithTitle:@""];
    menu.autoenablesItems = NO;  // or every item whose target responds would be enabled
    for (const StatusMenuItem& item : items)
        [menu addItem:menuItem(item, target)];
    return menu;
}

}  // namespace

struct MacStatusItem::Parts {
    NSStatusItem* item;  // it leaves the bar when nothing keeps it (from memory)
    KinestaStatusItemTarget* target;
};

MacStatusItem::MacStatusItem() = default;

MacStatusItem::~MacStatusItem() {
    if (m_parts)
        [NSStatusBar.systemStatusBar removeStatusItem:m_parts->item];
}

void MacStatusItem::create(Handlers handlers) {
    if (m_parts)
        return;
    NSStatusItem* const item = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
    KinestaStatusItemTarget* const target = [[KinestaStatusItemTarget alloc] initWithHandlers:std::move(handlers)];
    m_parts = std::make_unique<Parts>(Parts{item, target});
    NSStatusBarButton* const button = item.button;
    button.imagePosition = NSImageOnly;
    button.target = target;
    button.action = @selector(statusItemClicked:);
    [button sendActionOn:NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp];
}

void MacStatusItem::setState(bool isEnabled, const std::string& accessibilityLabel) {
    if (!m_parts)
        return;
    NSStatusBarButton* const button = m_parts->item.button;
    // Called at each change of the menu as well, and the bar of every screen would be drawn again.
    if (std::exchange(m_isEnabled, isEnabled) != isEnabled)
        button.image = imageOfPicture(TrayIcon::image(isEnabled));
    [button setAccessibilityLabel:nsText(accessibilityLabel)];
}

void MacStatusItem::setToolTip(const std::string& toolTip) {
    if (m_parts)
        m_parts->item.button.toolTip = nsText(toolTip);
}

void MacStatusItem::openMenu() {
    if (!m_parts)
        return;
    NSStatusItem* const item = m_parts->item;  // what is chosen may end this object
    item.menu = menuOf(m_menu, m_parts->target);
    // Runs the menu, and comes back when it has closed (from memory).
    [item.button performClick:nil];
    item.menu = nil;  // a menu that stays would take the plain clicks
}

}  // namespace kinesta
