#pragma once

namespace kinesta {

/// The port to how the system presents this application. Main thread only.
class ActivationPolicy {
  public:
    enum class Kind {
        /// Without an entry in the dock or the list of applications.
        accessory,
        regular
    };

    virtual ~ActivationPolicy() = default;

    virtual Kind kind() const = 0;
    virtual void set(Kind kind) = 0;
    virtual bool isActive() const = 0;
    virtual void activateIgnoringOtherApplications() = 0;
};

}  // namespace kinesta
