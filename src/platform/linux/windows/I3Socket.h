#pragma once

#include <optional>
#include <string>

#include "platform/linux/x11/Deadline.h"

namespace kinesta {

/// Message types of the protocol that i3 and sway speak.
enum class I3Question { command = 0, workspaces = 1, tree = 4 };

/// Sends the window manager at a socket one question and returns its answer, which is JSON; nothing if it does not
/// listen there or does not answer in time. Each question opens its own connection, which takes microseconds: no
/// connection can be lost when the window manager restarts.
std::optional<std::string> askI3(const std::string& socketPath, I3Question question, const std::string& payload,
                                 Deadline deadline);

}  // namespace kinesta
