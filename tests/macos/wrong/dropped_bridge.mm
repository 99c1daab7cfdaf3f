// requires a bridged cast
#include <AppKit/AppKit.h>
#include <CoreFoundation/CoreFoundation.h>

CFStringRef nameOf(NSMenuItem* item) { return reinterpret_cast<CFStringRef>(item.title); }
