#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "app/BundleInformation.h"

namespace kinesta {

/// What the build says about itself in a JSON file: an object of texts and other values under the keys of an
/// application bundle.
class JsonBundleInformation final : public BundleInformation {
  public:
    /// Reads `file`. A missing or damaged file has no keys.
    explicit JsonBundleInformation(const std::filesystem::path& file);

    bool contains(std::string_view key) const override { return m_values.contains(key); }
    std::optional<std::string> string(std::string_view key) const override;

  private:
    /// Absent for a value that is no text.
    std::map<std::string, std::optional<std::string>, std::less<>> m_values;
};

}  // namespace kinesta
