#include "platform/macos/accessibility/MacAccessibilityPermission.h"

#include <ApplicationServices/ApplicationServices.h>

#include "platform/macos/corefoundation/CfReference.h"

namespace kinesta {

bool MacAccessibilityPermission::isTrusted() { return AXIsProcessTrusted() != 0; }

bool MacAccessibilityPermission::prompt() {
    const void* key = kAXTrustedCheckOptionPrompt;
    const void* value = kCFBooleanTrue;
    const CfReference<CFDictionaryRef> options(CFDictionaryCreate(
        kCFAllocatorDefault, &key, &value, 1, &kCFTypeDictionaryKeyCallBacks, &kCFTypeDictionaryValueCallBacks));
    return AXIsProcessTrustedWithOptions(options.get()) != 0;  // without options it shows no prompt
}

}  // namespace kinesta
