// implicit conversion from nullable pointer
#include <AppKit/AppKit.h>

void name(NSMenuItem* item) { item.title = NSWorkspace.sharedWorkspace.frontmostApplication.bundleIdentifier; }
