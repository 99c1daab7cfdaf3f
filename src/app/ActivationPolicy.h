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
    /// Whether a request to activate can be lost, so that it must be repeated.
    virtual bool losesRequests() const { return true; }
};

}  // namespace kinesta
