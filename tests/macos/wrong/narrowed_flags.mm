// x86_64: implicit conversion from integral type 'unsigned long long' to 'BOOL'
#include <AppKit/AppKit.h>

// The bit is beyond a signed char: there the answer would always be NO.
BOOL isForPressure(NSEventMask mask) { return mask & NSEventMaskPressure; }
