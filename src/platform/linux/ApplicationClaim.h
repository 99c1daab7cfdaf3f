#pragma once

#include <filesystem>
#include <optional>

#include "app/ApplicationOpening.h"
#include "platform/linux/session/SessionApplication.h"
#include "platform/posix/SingleInstance.h"

namespace kinesta {

/// Makes this process the one application. A daemon that runs is asked to end, and waited for. If another application
/// runs, this gives nothing: it shows its window now, unless the opening is in the background. The error says who is
/// in the way.
Result<std::optional<SingleInstance>> claimForApplication(const std::filesystem::path& settings,
                                                          SessionApplication& other, ApplicationOpening opening);

}  // namespace kinesta
