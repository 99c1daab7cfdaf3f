#include "platform/macos/corefoundation/CfText.h"

namespace kinesta {

CfReference<CFStringRef> cfString(const std::string& text) {
    return CfReference<CFStringRef>(
        CFStringCreateWithCString(kCFAllocatorDefault, text.c_str(), kCFStringEncodingUTF8));
}

std::optional<std::string> utf8Text(CFStringRef string) {
    const CFIndex size = CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8);
    std::string text(static_cast<std::size_t>(size) + 1, '\0');
    if (CFStringGetCString(string, text.data(), size + 1, kCFStringEncodingUTF8) == 0)
        return std::nullopt;
    text.resize(text.find('\0'));
    return text;
}

}  // namespace kinesta
