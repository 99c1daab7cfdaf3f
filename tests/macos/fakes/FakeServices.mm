// Processes and the login item.
#include <Foundation/Foundation.h>
#include <ServiceManagement/ServiceManagement.h>

#include "Fakes.h"
#include "Registrations.h"

@interface NSError ()
+ (NSError*)errorWithText:(const char*)text;
@end

@interface NSObject (Recorded)
- (const char*)recordedText;
@end

@implementation NSTask
- (BOOL)launchAndReturnError:(NSError**)error {
    const std::string path = [self.executableURL recordedText];
    if (!path.starts_with("/missing"))
        return YES;
    *error = [NSError errorWithText:"no such file"];
    return NO;
}
@end

@implementation NSProcessInfo
+ (NSProcessInfo*)processInfo {
    static NSProcessInfo* const info = [NSProcessInfo new];
    return info;
}
- (NSTimeInterval)systemUptime {
    return kinesta::fakes::uptime;
}
- (int)processIdentifier {
    return 42;
}
- (NSOperatingSystemVersion)operatingSystemVersion {
    return {15, 3, 1};
}
@end

@implementation SMAppService
+ (SMAppService*)mainAppService {
    return [SMAppService new];
}
- (SMAppServiceStatus)status {
    return static_cast<SMAppServiceStatus>(kinesta::fakes::loginItem.status);
}
- (BOOL)registerAndReturnError:(NSError**)error {
    const char* const text = kinesta::fakes::loginItem.error;
    if (text && error)
        *error = [NSError errorWithText:text];
    return text == nullptr;
}
- (BOOL)unregisterAndReturnError:(NSError**)error {
    return [self registerAndReturnError:error];
}
+ (void)openSystemSettingsLoginItems {
}
@end

namespace kinesta::fakes {

FakeLoginItem loginItem;

double uptime = 100;

static const OnReset services([] {
    uptime = 100;
    (void)NSProcessInfo.processInfo;
    loginItem = {};
});

}  // namespace kinesta::fakes
