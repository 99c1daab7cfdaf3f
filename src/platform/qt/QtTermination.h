#pragma once

#include "app/Termination.h"
#include "support/MainLoop.h"

namespace kinesta {

/// Ends the application by ending its main loop.
class QtTermination final : public Termination {
  public:
    /// `mainLoop` must outlive this.
    explicit QtTermination(MainLoop& mainLoop) : m_mainLoop(mainLoop) {}

    void terminate() override { m_mainLoop.quit(); }

  private:
    MainLoop& m_mainLoop;
};

}  // namespace kinesta
