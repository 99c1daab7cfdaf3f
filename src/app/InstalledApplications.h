#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kinesta {

/// A program that the person could start from a menu of the desktop.
struct InstalledApplication {
    std::string name;
    /// What a rule stores: an absolute path.
    std::string path;
    /// A name of the icon theme or an absolute path; may be empty.
    std::string icon;

    friend bool operator==(const InstalledApplication&, const InstalledApplication&) = default;
};

/// The port to the installed programs. Main thread only.
class InstalledApplications {
  public:
    virtual ~InstalledApplications() = default;

    /// All that the desktop would show in its menu, by name. Reads the disk.
    virtual std::vector<InstalledApplication> all() const = 0;
    /// What stands at this path, or nothing if it is no program. A "~" at its start is the home folder.
    virtual std::optional<InstalledApplication> at(const std::string& path) const = 0;
};

}  // namespace kinesta
