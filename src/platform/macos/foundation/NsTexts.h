#pragma once

#include <string>
#include <vector>

#include "platform/macos/foundation/NsText.h"

namespace kinesta {

/// For Objective-C++ files only.
inline NSArray<NSString*>* _Nonnull nsTexts(const std::vector<std::string>& texts) {
    std::vector<NSString*> all;
    for (const std::string& each : texts)
        all.push_back(nsText(each));
    return [NSArray arrayWithObjects:all.data() count:all.size()];
}

}  // namespace kinesta
