#include <AppKit/NSStatusItem.h>

#include <functional>
#include <utility>
#include <vector>

#include "Fakes.h"
#include "Registrations.h"

extern "C" id objc_msgSend(id receiver, SEL selector, ...);

namespace {

std::vector<NSStatusItem*>& statusItems() {
    static auto& all = *new std::vector<NSStatusItem*>;
    return all;
}

std::function<void()>& menuUse() {
    static auto& use = *new std::function<void()>;
    return use;
}

NSArray* fromVector(const std::vector<NSMenuItem*>& items) {
    const void* const first = items.data();
    return [NSArray arrayWithObjects:static_cast<const id __unsafe_unretained*>(first) count:items.size()];
}

}  // namespace

@implementation NSControl
- (NSInteger)sendActionOn:(NSEventMask)mask {
    return 0;
}
/// A click on a status item's button opens the item's menu if it has one.
- (void)performClick:(id)sender {
    if (const auto use = std::exchange(menuUse(), nullptr))
        use();
}
@end
@implementation NSButton
@end
@implementation NSStatusBarButton
@end
@implementation NSMenuItem
@synthesize identifier = _identifier;
+ (NSMenuItem*)separatorItem {
    return [[NSMenuItem alloc] initWithTitle:@"-" action:nil keyEquivalent:@""];
}
- (instancetype)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key {
    if ((self = [super init])) {
        self.title = title;
        self.action = action;
        self.enabled = YES;
    }
    return self;
}
@end
@implementation NSMenu {
    std::vector<NSMenuItem*> _items;
}
- (instancetype)initWithTitle:(NSString*)title {
    if ((self = [super init]))
        self.autoenablesItems = YES;
    return self;
}
- (void)addItem:(NSMenuItem*)item {
    _items.push_back(item);
}
- (void)update {
}
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key {
    NSMenuItem* const item = [[NSMenuItem alloc] initWithTitle:title action:action keyEquivalent:key];
    [self addItem:item];
    return item;
}
- (NSArray*)itemArray {
    return fromVector(_items);
}
@end

@interface NSStatusItem ()
@property(readwrite, strong) NSStatusBarButton* button;
@end
@implementation NSStatusItem
@end

@implementation NSStatusBar
+ (NSStatusBar*)systemStatusBar {
    static NSStatusBar* const bar = [NSStatusBar new];
    return bar;
}
- (NSStatusItem*)statusItemWithLength:(CGFloat)length {
    NSStatusItem* const item = [NSStatusItem new];
    item.button = [NSStatusBarButton new];
    item.button.enabled = YES;
    statusItems().push_back(item);
    kinesta::fakes::registered("status item");
    return item;
}
- (void)removeStatusItem:(NSStatusItem*)item {
    kinesta::fakes::unregistered("status item", std::erase(statusItems(), item));
}
@end

namespace kinesta::fakes {

NSStatusItem* statusItem() { return statusItems().at(0); }

/// The target is not kept while it acts.
static void send(id sender, SEL action, id (^target)()) {
    @autoreleasepool {
        __unsafe_unretained id receiver = nil;
        @autoreleasepool {
            receiver = target();
        }
        if (receiver)
            reinterpret_cast<void (*)(id, SEL, id)>(objc_msgSend)(receiver, action, sender);
    }
}

void click(NSControl* control) {
    send(control, control.action, ^{
      return control.target;
    });
}

void whileMenuIsOpen(std::function<void()> use) { menuUse() = std::move(use); }

void choose(NSMenuItem* item) {
    send(item, item.action, ^{
      return item.target;
    });
}

static const OnReset statusBar([] {
    (void)NSStatusBar.systemStatusBar;
    statusItems().clear();
    menuUse() = nullptr;
});

}  // namespace kinesta::fakes
