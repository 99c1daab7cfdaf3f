#pragma once

namespace kinesta {

/// The port to the version of the system, in the numbering of macOS.
class SystemVersion {
  public:
    virtual ~SystemVersion() = default;

    /// The major version. Applications offer the window tiling commands from 15 on; other systems that offer them
    /// return 15.
    virtual int majorVersion() const = 0;
};

}  // namespace kinesta
