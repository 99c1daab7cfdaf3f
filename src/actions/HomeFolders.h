#pragma once

#include <optional>
#include <string>

namespace kinesta {

/// The port to the home folders of users.
class HomeFolders {
  public:
    virtual ~HomeFolders() = default;

    /// The absolute path of a user's home folder; of the current user if the name is empty. Empty if there is no such
    /// user.
    virtual std::optional<std::string> homeFolder(const std::string& userName) const = 0;
};

}  // namespace kinesta
