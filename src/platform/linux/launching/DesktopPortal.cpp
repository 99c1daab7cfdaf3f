#include "platform/linux/launching/DesktopPortal.h"

#include <fcntl.h>

#include "platform/posix/FileDescriptor.h"

namespace kinesta {
namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kObject = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.OpenURI";

}  // namespace

bool DesktopPortal::openURL(const std::string& url) {
    sd_bus* bus = m_bus.open();
    return bus != nullptr &&
           sd_bus_call_method_async(bus, nullptr, kService, kObject, kInterface, "OpenURI", nullptr, nullptr, "ssa{sv}",
                                    "", url.c_str(), 0) >= 0 &&
           m_bus.flush();
}

bool DesktopPortal::openFile(const std::string& path) {
    sd_bus* bus = m_bus.open();
    const FileDescriptor file(::open(path.c_str(), O_PATH | O_CLOEXEC));
    return bus != nullptr && file &&
           sd_bus_call_method_async(bus, nullptr, kService, kObject, kInterface, "OpenFile", nullptr, nullptr,
                                    "sha{sv}", "", file.number(), 0) >= 0 &&
           m_bus.flush();
}

}  // namespace kinesta
