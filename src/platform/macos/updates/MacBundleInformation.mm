#include "platform/macos/updates/MacBundleInformation.h"

#include "platform/macos/foundation/NsText.h"

namespace kinesta {
namespace {

id value(std::string_view key) { return [NSBundle.mainBundle objectForInfoDictionaryKey:nsText(key)]; }

}  // namespace

bool MacBundleInformation::contains(std::string_view key) const { return value(key) != nil; }

std::optional<std::string> MacBundleInformation::string(std::string_view key) const {
    id const found = value(key);
    return [found isKindOfClass:[NSString class]] ? std::optional(textOf(found)) : std::nullopt;
}

}  // namespace kinesta
