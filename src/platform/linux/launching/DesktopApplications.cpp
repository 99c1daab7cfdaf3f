#include "platform/linux/launching/DesktopApplications.h"

namespace kinesta {

std::vector<InstalledApplication> DesktopApplications::all() const { return {}; }

std::optional<InstalledApplication> DesktopApplications::at(const std::string& /*path*/) const { return std::nullopt; }

}  // namespace kinesta
