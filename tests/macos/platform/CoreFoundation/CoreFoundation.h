#pragma once

#include <MacTypes.h>
#include <os/availability.h>
#include <stdbool.h>
#include <stddef.h>

// As the platform's own macros expand in C++: enumerations are fixed and open, options are plain integer typedefs.
#define CF_ENUM(t, n) \
    enum n : t n;     \
    enum __attribute__((enum_extensibility(open))) n : t
#define CF_OPTIONS(t, n) \
    t n;                 \
    enum __attribute__((flag_enum, enum_extensibility(open))) : t
#define CFSTR(s) ((CFStringRef)__builtin___CFStringMakeConstantString("" s ""))

#ifdef __cplusplus
extern "C" {
#endif
#pragma clang assume_nonnull begin

typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef unsigned long CFOptionFlags;
typedef double CFTimeInterval;
typedef double CFAbsoluteTime;
typedef const void* CFTypeRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString* CFStringRef;
typedef const struct __attribute__((objc_bridge(NSData))) __CFData* CFDataRef;
typedef const struct __attribute__((objc_bridge(NSArray))) __CFArray* CFArrayRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;
typedef const struct __attribute__((objc_bridge(NSNumber))) __CFBoolean* CFBooleanRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef struct __CFRunLoop* CFRunLoopRef;
typedef CFStringRef CFRunLoopMode;
typedef UInt32 CFStringEncoding;
enum { kCFStringEncodingUTF8 = 0x08000100 };

// Passed by address only; what is in them is the platform's.
typedef struct {
    CFIndex version;
} CFDictionaryKeyCallBacks;
typedef CFDictionaryKeyCallBacks CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

extern const CFAllocatorRef _Nullable kCFAllocatorDefault;
extern const CFBooleanRef kCFBooleanTrue, kCFBooleanFalse;
extern const CFRunLoopMode kCFRunLoopDefaultMode, kCFRunLoopCommonModes;

// Null crashes these four.
void CFRelease(CFTypeRef object);
CFTypeRef CFRetain(CFTypeRef object);
CFTypeID CFGetTypeID(CFTypeRef object);
Boolean CFEqual(CFTypeRef a, CFTypeRef b);

CFTypeID CFArrayGetTypeID(void);
CFTypeID CFBooleanGetTypeID(void);
CFTypeID CFDataGetTypeID(void);
CFTypeID CFNumberGetTypeID(void);
CFTypeID CFStringGetTypeID(void);

CFIndex CFArrayGetCount(CFArrayRef array);
const void* _Nullable CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);
Boolean CFBooleanGetValue(CFBooleanRef boolean);
const UInt8* _Nullable CFDataGetBytePtr(CFDataRef data);
CFIndex CFDataGetLength(CFDataRef data);
CFDictionaryRef _Nullable CFDictionaryCreate(CFAllocatorRef _Nullable allocator, const void* _Nullable* _Nullable keys,
                                             const void* _Nullable* _Nullable values, CFIndex count,
                                             const CFDictionaryKeyCallBacks* _Nullable keyCallBacks,
                                             const CFDictionaryValueCallBacks* _Nullable valueCallBacks);

CFStringRef _Nullable CFStringCreateWithCString(CFAllocatorRef _Nullable allocator, const char* text,
                                                CFStringEncoding encoding);
CFStringRef _Nullable CFStringCreateWithCharacters(CFAllocatorRef _Nullable allocator, const UniChar* _Nullable units,
                                                   CFIndex count);
CFIndex CFStringGetLength(CFStringRef string);
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size, CFStringEncoding encoding);

CFRunLoopRef CFRunLoopGetMain(void);
void CFRunLoopRun(void);
void CFRunLoopStop(CFRunLoopRef loop);
void CFRunLoopWakeUp(CFRunLoopRef loop);
#if __has_extension(blocks)
void CFRunLoopPerformBlock(CFRunLoopRef loop, CFTypeRef mode, void (^block)(void));
#endif

#pragma clang assume_nonnull end
#ifdef __cplusplus
}
#endif
