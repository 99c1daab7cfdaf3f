#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kinesta {

/// Names a running application. Usually the process number; a desktop that shows a window without telling its
/// process may use numbers of its own making, below zero, as long as they stay the same for that application.
using ProcessIdentifier = std::int64_t;

/// The port to the desktop's opening of things and its idea of what is in front. Main thread only. Nothing here
/// waits for the outcome, and none is told: an address without a handler or a missing file is the desktop's affair.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// Opens an http or https address, given as it is stored, with the person's browser.
    virtual void openURL(const std::string& url) = 0;

    /// Opens a file or folder with what the person opens it with. A path that does not begin with "/" is meant from
    /// the working directory.
    virtual void openFile(const std::string& path) = 0;

    /// Launches the application at `path`. Each argument reaches it as it is: nothing is split or expanded.
    virtual void launchApplication(const std::string& path, const std::vector<std::string>& arguments) = 0;

    /// The application that has the person's attention now, if any.
    virtual std::optional<ProcessIdentifier> frontmostApplication() = 0;

    /// What frontmostApplication() says when it is this process.
    virtual ProcessIdentifier ownProcessIdentifier() = 0;
};

}  // namespace kinesta
