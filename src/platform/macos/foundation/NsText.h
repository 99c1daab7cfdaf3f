#pragma once

#include <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace kinesta {

/// For Objective-C++ files only. Empty for nil.
inline std::string textOf(NSString* _Nullable string) {
    const char* const text = string.UTF8String;
    return text ? text : "";
}

/// `text` is UTF-8; empty if it is not.
inline NSString* _Nonnull nsText(std::string_view text) {
    NSString* const string = [NSString stringWithUTF8String:std::string(text).c_str()];
    return string ? string : @"";
}

}  // namespace kinesta
