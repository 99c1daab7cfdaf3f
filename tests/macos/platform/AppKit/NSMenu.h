#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

typedef NSInteger NSControlStateValue;

@interface NSMenuItem : NSObject
@property(copy) NSString* title;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSControlStateValue state;
@end

@interface NSMenu : NSObject
- (NSMenuItem*)addItemWithTitle:(NSString*)title action:(nullable SEL)action keyEquivalent:(NSString*)key;
@property(copy, readonly) NSArray<NSMenuItem*>* itemArray;
@end

#pragma clang assume_nonnull end
