#pragma once

#include <Foundation/NSNotification.h>

#pragma clang assume_nonnull begin

extern "C" const NSNotificationName NSUserDefaultsDidChangeNotification;

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable instancetype)initWithSuiteName:(nullable NSString*)suiteName;
- (nullable id)objectForKey:(NSString*)key;
- (void)setObject:(nullable id)value forKey:(NSString*)key;
- (BOOL)synchronize;
@end

#pragma clang assume_nonnull end
