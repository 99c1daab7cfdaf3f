#include "platform/linux/touchpad/DeviceAccess.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "support/Translation.h"

namespace kinesta {
namespace {

// Where udev looks for rules.
constexpr std::array kRuleDirectories{"/etc/udev/rules.d/", "/run/udev/rules.d/", "/usr/local/lib/udev/rules.d/",
                                      "/usr/lib/udev/rules.d/", "/lib/udev/rules.d/"};

/// The command that has udev apply a rule, after installing it if it is not there.
std::string command(const std::string& file, const std::string& rule, const std::string& subsystem) {
    const bool isInstalled = std::any_of(kRuleDirectories.begin(), kRuleDirectories.end(), [&](const char* directory) {
        std::error_code error;
        return std::filesystem::exists(directory + file, error);
    });
    const std::string install = "echo '" + rule + "' | sudo tee /etc/udev/rules.d/" + file + " && ";
    return (isInstalled ? "" : install) +
           "sudo udevadm control --reload && sudo udevadm trigger --subsystem-match=" + subsystem;
}

}  // namespace

std::string touchpadAccessCommand() {
    return command("70-kinesta-touchpad.rules",
                   R"(SUBSYSTEM=="input", KERNEL=="event*", ENV{ID_INPUT_TOUCHPAD}=="1", TAG+="uaccess")", "input");
}

std::string touchpadAccessAdvice() { return translated("; to allow it, run: %1", {touchpadAccessCommand()}); }

std::string uinputAccessCommand() {
    return "sudo modprobe uinput && " +
           command("70-kinesta-uinput.rules",
                   R"(SUBSYSTEM=="misc", KERNEL=="uinput", TAG+="uaccess", OPTIONS+="static_node=uinput")", "misc");
}

}  // namespace kinesta
