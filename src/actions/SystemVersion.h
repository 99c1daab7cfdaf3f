#pragma once

namespace kinesta {

/// The port that tells which generation of desktop this is, in the numbering of macOS.
class SystemVersion {
  public:
    virtual ~SystemVersion() = default;

    /// The major version. 15 and above says that applications offer the window tiling commands; a desktop of another
    /// make that offers them says 15.
    virtual int majorVersion() const = 0;
};

}  // namespace kinesta
