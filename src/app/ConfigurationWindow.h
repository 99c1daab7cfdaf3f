#pragma once

namespace kinesta {

/// The port to the configuration window, titled "Kinesta". Main thread only.
class ConfigurationWindow {
  public:
    virtual ~ConfigurationWindow() = default;

    /// Whether it has been made.
    virtual bool exists() const = 0;
    /// False while it is closed or hidden; a miniaturized window may be either.
    virtual bool isVisible() const = 0;
    virtual bool isMiniaturized() const = 0;
    /// Whether it has the keyboard focus.
    virtual bool isKey() const = 0;
    /// Brings it to the front, out of miniaturization, and asks for the keyboard focus.
    virtual void makeKeyAndOrderFront() = 0;
    /// Hides it without asking anything.
    virtual void orderOut() = 0;
    /// Closes it as its close button does.
    virtual void performClose() = 0;
};

}  // namespace kinesta
