#pragma once

#include <Foundation/NSCollections.h>

#pragma clang assume_nonnull begin

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (void)registerDefaults:(NSDictionary<NSString*, id>*)values;
- (BOOL)boolForKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
@end

#pragma clang assume_nonnull end
