#pragma once
#include <MacTypes.h>
#include <os/availability.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
/* as the platform's own macros expand in C++: NS_ENUM = scoped-name fixed enum, NS_OPTIONS = plain integer typedef */
#define CF_ENUM(t, n) \
    enum n : t n;     \
    enum __attribute__((enum_extensibility(open))) n : t
#define CF_OPTIONS(t, n) \
    t n;                 \
    enum __attribute__((flag_enum, enum_extensibility(open))) : t
#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin
typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef double CFTimeInterval;
typedef double CFAbsoluteTime;
typedef unsigned long CFOptionFlags;
typedef const void* CFTypeRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString* CFStringRef;
typedef const struct __attribute__((objc_bridge(NSData))) __CFData* CFDataRef;
typedef const struct __attribute__((objc_bridge(NSArray))) __CFArray* CFArrayRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;
typedef const struct __attribute__((objc_bridge(NSNumber))) __CFBoolean* CFBooleanRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef struct __CFRunLoop* CFRunLoopRef;
typedef struct __CFRunLoopSource* CFRunLoopSourceRef;
typedef struct __CFMachPort* CFMachPortRef;
typedef CFStringRef CFRunLoopMode;
extern const CFAllocatorRef _Nullable kCFAllocatorDefault;
extern const CFBooleanRef kCFBooleanTrue, kCFBooleanFalse;
extern const CFRunLoopMode kCFRunLoopCommonModes;
void CFRelease(CFTypeRef cf);
CFTypeRef CFRetain(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);
CFIndex CFArrayGetCount(CFArrayRef a);
const void* _Nullable CFArrayGetValueAtIndex(CFArrayRef a, CFIndex i);
const UInt8* _Nullable CFDataGetBytePtr(CFDataRef d);
CFRunLoopRef CFRunLoopGetMain(void);
void CFRunLoopRun(void);
void CFRunLoopStop(CFRunLoopRef loop);
void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef src, CFRunLoopMode mode);
CFRunLoopSourceRef _Nullable CFMachPortCreateRunLoopSource(CFAllocatorRef _Nullable a, CFMachPortRef p, CFIndex order);
#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
