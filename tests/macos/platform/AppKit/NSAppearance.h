#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

typedef NSString* NSAppearanceName;
extern "C" const NSAppearanceName NSAppearanceNameAqua;
extern "C" const NSAppearanceName NSAppearanceNameDarkAqua;

@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)appearances;
@end

@protocol NSAppearanceCustomization <NSObject>
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, strong) NSAppearance* effectiveAppearance;
@end

#pragma clang assume_nonnull end
