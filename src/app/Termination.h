#pragma once

namespace kinesta {

/// The port that ends the application. Main thread only.
class Termination {
  public:
    virtual ~Termination() = default;

    /// Ends the main loop; returns at once.
    virtual void terminate() = 0;
};

}  // namespace kinesta
