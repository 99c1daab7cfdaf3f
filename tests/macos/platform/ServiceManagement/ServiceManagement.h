#pragma once
#include <Foundation/Foundation.h>
#pragma clang assume_nonnull begin
typedef CF_ENUM(NSInteger, SMAppServiceStatus) {
    SMAppServiceStatusNotRegistered,
    SMAppServiceStatusEnabled,
    SMAppServiceStatusRequiresApproval,
    SMAppServiceStatusNotFound
};
API_AVAILABLE(macos(13.0)) @interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)e;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)e;
+ (void)openSystemSettingsLoginItems;
@end
#pragma clang assume_nonnull end
