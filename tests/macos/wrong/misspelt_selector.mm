// undeclared selector 'statusItemClickd:'
#include <AppKit/AppKit.h>

SEL actionOfTheStatusItem() { return @selector(statusItemClickd:); }
