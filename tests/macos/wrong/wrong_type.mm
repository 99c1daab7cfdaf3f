// cannot initialize a parameter of type 'NSApplicationActivationPolicy'
#include <AppKit/AppKit.h>

void becomeAccessory() { [NSApplication.sharedApplication setActivationPolicy:1]; }
