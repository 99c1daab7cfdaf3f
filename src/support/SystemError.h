#pragma once

#include <cerrno>
#include <string>
#include <system_error>

namespace kinesta {

/// The system's description of an error number (errno).
inline std::string systemErrorText(int reason) {
    const std::string text = std::generic_category().message(reason);
    return reason == ENOSPC ? "the disk is full (" + text + ")" : text;
}

}  // namespace kinesta
