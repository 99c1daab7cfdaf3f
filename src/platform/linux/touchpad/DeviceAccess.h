#pragma once

#include <string>

namespace kinesta {

/// The shell command that lets the person at the seat read touchpads: it installs Kinesta's udev rule where no package
/// has done so, and applies it to the devices that are there.
std::string touchpadAccessCommand();

/// The shell command that lets the person at the seat make virtual input devices, in the same way. It loads the
/// kernel's module too.
std::string uinputAccessCommand();

}  // namespace kinesta
