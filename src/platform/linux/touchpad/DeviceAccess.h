#pragma once

#include <string>

namespace kinesta {

/// The shell command that lets the user at the seat read touchpads: it installs Kinesta's udev rule unless a package
/// has done so, and applies it to the connected devices.
std::string touchpadAccessCommand();
/// How an error says so: "; to allow it, run: …"
std::string touchpadAccessAdvice();

/// The same for creating virtual input devices. Also loads the kernel module.
std::string uinputAccessCommand();

}  // namespace kinesta
