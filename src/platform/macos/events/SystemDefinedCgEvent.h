#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include "actions/EventSynthesizer.h"
#include "platform/macos/corefoundation/CfReference.h"

namespace kinesta {

/// Null if the system makes no such event. Main thread only.
CfReference<CGEventRef> systemDefinedCgEvent(const SystemDefinedEvent& event);

}  // namespace kinesta
