#pragma once

#include <cerrno>
#include <string>
#include <system_error>

namespace kinesta {

/// The system's reason for a failure (errno), in words for a person.
inline std::string systemErrorText(int reason) {
    const std::string text = std::generic_category().message(reason);
    return reason == ENOSPC ? "the disk is full (" + text + ")" : text;
}

}  // namespace kinesta
