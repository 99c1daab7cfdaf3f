#include "platform/macos/MacClock.h"

#include <Foundation/Foundation.h>

namespace kinesta {

Uptime MacClock::uptime() const { return NSProcessInfo.processInfo.systemUptime; }

}  // namespace kinesta
