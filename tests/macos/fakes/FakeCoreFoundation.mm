// Strings, arrays, dictionaries and numbers of CoreFoundation are those of Foundation, as on the platform.
#include <Foundation/Foundation.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <vector>

#include "CFakes.h"
#include "Registrations.h"
#include "TestRuntime.h"
#include "support/Text.h"

namespace kinesta::fakes {
namespace {

std::set<std::string>& failing() {
    static auto& calls = *new std::set<std::string>;
    return calls;
}

const OnReset coreFoundation([] { failing().clear(); });

}  // namespace

void makeFail(const std::string& call) { failing().insert(call); }

bool isToFail(const std::string& call) {
    return std::any_of(failing().begin(), failing().end(), [&](const auto& start) { return call.starts_with(start); });
}

CFTypeID typeNamed(const std::string& kind) {
    static auto& kinds = *new std::vector<std::string>;
    const auto known = std::find(kinds.begin(), kinds.end(), kind);
    if (known != kinds.end())
        return static_cast<CFTypeID>(known - kinds.begin()) + 1;
    kinds.push_back(kind);
    return kinds.size();
}

}  // namespace kinesta::fakes

using namespace kinesta::fakes;
using kinesta::objc::kindOf;

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFBooleanRef kCFBooleanTrue = (__bridge_retained CFBooleanRef)[NSNumber numberWithBool:YES];
const CFBooleanRef kCFBooleanFalse = (__bridge_retained CFBooleanRef)[NSNumber numberWithBool:NO];
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks = {};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks = {};

CFTypeID CFGetTypeID(CFTypeRef object) {
    return object == kCFBooleanTrue || object == kCFBooleanFalse ? CFBooleanGetTypeID() : typeNamed(kindOf(object));
}
CFTypeID CFArrayGetTypeID() { return typeNamed("NSArray"); }
CFTypeID CFBooleanGetTypeID() { return typeNamed("CFBoolean"); }
CFTypeID CFStringGetTypeID() { return typeNamed("NSString"); }

CFIndex CFArrayGetCount(CFArrayRef array) { return static_cast<CFIndex>(((__bridge NSArray*)array).count); }
const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    @autoreleasepool {
        return (__bridge void*)((__bridge NSArray*)array)[static_cast<NSUInteger>(index)];
    }
}
Boolean CFBooleanGetValue(CFBooleanRef boolean) { return boolean == kCFBooleanTrue ? 0x80 : 0; }

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks) {
    if (keyCallBacks != &kCFTypeDictionaryKeyCallBacks || valueCallBacks != &kCFTypeDictionaryValueCallBacks)
        std::abort();  // keys would be compared by address, and nothing retained
    @autoreleasepool {
        const void* const objects = values;
        const void* const names = keys;
        return isToFail("CFDictionaryCreate")
                   ? nullptr
                   : (__bridge_retained CFDictionaryRef)[NSDictionary
                         dictionaryWithObjects:static_cast<const id __unsafe_unretained*>(objects)
                                       forKeys:static_cast<const id<NSCopying> __unsafe_unretained*>(names)
                                         count:static_cast<NSUInteger>(count)];
    }
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* text, CFStringEncoding encoding) {
    @autoreleasepool {
        return isToFail("CFStringCreateWithCString") || encoding != kCFStringEncodingUTF8
                   ? nullptr
                   : (__bridge_retained CFStringRef)[NSString stringWithUTF8String:text];
    }
}
CFStringRef CFStringCreateWithCharacters(CFAllocatorRef, const UniChar* units, CFIndex count) {
    @autoreleasepool {
        return isToFail("CFStringCreateWithCharacters")
                   ? nullptr
                   : (__bridge_retained CFStringRef)[NSString stringWithCharacters:units
                                                                            length:static_cast<NSUInteger>(count)];
    }
}
CFIndex CFStringGetLength(CFStringRef string) { return static_cast<CFIndex>(((__bridge NSString*)string).length); }
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding) {
    return isToFail("CFStringGetMaximumSizeForEncoding") ? -1 : length * 3;
}
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size, CFStringEncoding encoding) {
    const char* const text = ((__bridge NSString*)string).UTF8String;
    if (isToFail("CFStringGetCString") || encoding != kCFStringEncodingUTF8 || !kinesta::isUtf8(text) ||
        std::strlen(text) >= static_cast<std::size_t>(size))
        return 0;
    std::strcpy(buffer, text);
    return 0x80;
}

}  // extern "C"
