#include "platform/macos/login/MacLoginItemService.h"

#include <ServiceManagement/ServiceManagement.h>

#include "platform/macos/foundation/NsText.h"

namespace kinesta {
namespace {

/// In the system's own words, which may be in the person's language.
Error failure(NSError* error) { return {textOf(error.localizedDescription)}; }

}  // namespace

LoginItemStatus MacLoginItemService::status() const {
    switch (SMAppService.mainAppService.status) {
        case SMAppServiceStatusEnabled:
            return LoginItemStatus::enabled;
        case SMAppServiceStatusRequiresApproval:
            return LoginItemStatus::requiresApproval;
        case SMAppServiceStatusNotFound:  // said of an application that was never registered (from memory)
        case SMAppServiceStatusNotRegistered:
            break;
    }
    return LoginItemStatus::notRegistered;
}

Outcome MacLoginItemService::registerItem() {
    NSError* error = nil;
    if ([SMAppService.mainAppService registerAndReturnError:&error])
        return success();
    // The call also fails where only the approval is missing, or where nothing is left to do. The codes differ between
    // systems (from memory), so the status decides.
    const LoginItemStatus reached = status();
    const bool isRegistered = reached == LoginItemStatus::enabled || reached == LoginItemStatus::requiresApproval;
    return isRegistered ? success() : Outcome(failure(error));
}

Outcome MacLoginItemService::unregisterItem() {
    NSError* error = nil;
    if ([SMAppService.mainAppService unregisterAndReturnError:&error])
        return success();
    return status() == LoginItemStatus::notRegistered ? success() : Outcome(failure(error));
}

Outcome MacLoginItemService::openSettings() {
    [SMAppService openSystemSettingsLoginItems];
    return success();
}

}  // namespace kinesta
