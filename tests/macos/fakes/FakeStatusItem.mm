#include <AppKit/NSStatusItem.h>

#include <vector>

#include "Fakes.h"
#include "Registrations.h"

extern "C" id objc_msgSend(id receiver, SEL selector, ...);

namespace {

std::vector<NSStatusItem*>& statusItems() {
    static auto& all = *new std::vector<NSStatusItem*>;
    return all;
}

NSArray* fromVector(const std::vector<NSMenuItem*>& items) {
    const void* const first = items.data();
    return [NSArray arrayWithObjects:static_cast<const id __unsafe_unretained*>(first) count:items.size()];
}

}  // namespace

@implementation NSControl
@end
@implementation NSButton
@end
@implementation NSStatusBarButton
@end
@implementation NSMenuItem
@end
@implementation NSMenu {
    std::vector<NSMenuItem*> _items;
}
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)key {
    NSMenuItem* const item = [NSMenuItem new];
    item.title = title;
    item.action = action;
    _items.push_back(item);
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
    statusItems().push_back(item);
    kinesta::fakes::registered("status item");
    return item;
}
- (void)removeStatusItem:(NSStatusItem*)item {
    kinesta::fakes::unregistered("status item", std::erase(statusItems(), item));
}
@end

namespace kinesta::fakes {

void choose(NSMenuItem* item) {
    @autoreleasepool {
        if (id const target = item.target)
            reinterpret_cast<void (*)(id, SEL, id)>(objc_msgSend)(target, item.action, item);
    }
}

NSMenuItem* itemOfStatusMenu(NSUInteger index) { return statusItems().at(0).menu.itemArray[index]; }

static const OnReset statusItem([] {
    (void)NSStatusBar.systemStatusBar;
    statusItems().clear();
});

}  // namespace kinesta::fakes
