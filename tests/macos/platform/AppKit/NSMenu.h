#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;
typedef NSString* NSUserInterfaceItemIdentifier;

@protocol NSUserInterfaceItemIdentification
@property(nullable, copy) NSUserInterfaceItemIdentifier identifier;
@end

@class NSMenu;

@interface NSMenuItem : NSObject <NSUserInterfaceItemIdentification>
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)title action:(nullable SEL)action keyEquivalent:(NSString*)key;
@property(copy) NSString* title;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(getter=isEnabled) BOOL enabled;
@property NSControlStateValue state;
@property(nullable, strong) NSMenu* submenu;
@property(nullable, strong) id representedObject;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)item;
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(nullable SEL)action keyEquivalent:(NSString*)key;
@property(copy, readonly) NSArray<NSMenuItem*>* itemArray;
@property BOOL autoenablesItems;
- (void)update;
@end

#pragma clang assume_nonnull end
