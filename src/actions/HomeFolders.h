#pragma once

#include <optional>
#include <string>

namespace kinesta {

/// The port that knows where people live in the file system.
class HomeFolders {
  public:
    virtual ~HomeFolders() = default;

    /// The absolute path of the home folder of a user of this machine, or of the person running us if the name is
    /// empty; nothing if there is no such user.
    virtual std::optional<std::string> homeFolder(const std::string& userName) const = 0;
};

}  // namespace kinesta
