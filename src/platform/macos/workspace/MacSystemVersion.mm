#include "platform/macos/workspace/MacSystemVersion.h"

#include <Foundation/Foundation.h>

namespace kinesta {

int MacSystemVersion::majorVersion() const {
    return static_cast<int>(NSProcessInfo.processInfo.operatingSystemVersion.majorVersion);
}

}  // namespace kinesta
