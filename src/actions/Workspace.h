#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kinesta {

/// Identifies a running application, usually by its process number. For windows without a known process, a desktop may
/// use its own negative numbers if they stay the same for that application.
using ProcessIdentifier = std::int64_t;

/// The port that opens files, addresses and applications and knows which application is in front. Main thread only.
/// Opening does not wait and reports no failure.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// Opens an http or https address, exactly as stored, in the user's browser.
    virtual void openURL(const std::string& url) = 0;

    /// Opens a file or folder with its default application. A relative path starts at the working directory.
    virtual void openFile(const std::string& path) = 0;

    /// Launches the application at `path`. Passes each argument unchanged, neither split nor expanded.
    virtual void launchApplication(const std::string& path, const std::vector<std::string>& arguments) = 0;

    /// The frontmost application, if any.
    virtual std::optional<ProcessIdentifier> frontmostApplication() = 0;

    /// The value of frontmostApplication() for this process.
    virtual ProcessIdentifier ownProcessIdentifier() = 0;
};

}  // namespace kinesta
