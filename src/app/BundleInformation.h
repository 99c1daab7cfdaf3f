#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kinesta {

/// The port to the information that a build carries about itself.
class BundleInformation {
  public:
    virtual ~BundleInformation() = default;

    virtual bool contains(std::string_view key) const = 0;
    /// Absent if the key is missing or its value is no text.
    virtual std::optional<std::string> string(std::string_view key) const = 0;
};

}  // namespace kinesta
