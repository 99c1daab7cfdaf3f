#pragma once

namespace kinesta {

/// The port to what the person asked the desktop for. Main thread only.
class DisplayPreferences {
  public:
    virtual ~DisplayPreferences() = default;

    virtual bool reducesTransparency() const = 0;
    virtual bool reducesMotion() const = 0;
};

}  // namespace kinesta
