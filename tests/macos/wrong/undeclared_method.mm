// no visible @interface for 'NSStatusBar' declares the selector 'statusItemWithWidth:'
#include <AppKit/AppKit.h>

NSStatusItem* makeStatusItem() { return [NSStatusBar.systemStatusBar statusItemWithWidth:20]; }
