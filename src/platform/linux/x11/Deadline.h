#pragma once

#include <chrono>

#include "support/Seconds.h"

namespace kinesta {

/// The time until which a server or a program may answer.
using Deadline = std::chrono::steady_clock::time_point;

/// `timeout` seconds from now.
Deadline deadlineIn(Seconds timeout);

/// The seconds left, at least 0.
Seconds timeLeft(Deadline deadline);

/// Waits until poll(2) reports one of `events`, or an error, for a descriptor; false at the deadline.
bool awaitReady(int descriptor, short events, Deadline deadline);

}  // namespace kinesta
