#pragma once

#include <memory>

#include "support/MainLoop.h"

namespace kinesta {

/// The main thread of a program without a window: the platform's main run loop, which also brings signals,
/// notifications and, once there is an application object, the window server's events. Tasks run in order of time, so
/// that posted and delayed ones do not starve each other, and the loop sleeps between them.
class MacMainLoop final : public MainLoop {
  public:
    MacMainLoop();
    ~MacMainLoop() override;

    void run() override;
    void quit() override;
    void post(Task task) override;
    [[nodiscard]] DelayedTask after(std::chrono::nanoseconds delay, Task task) override;

  protected:
    void cancel(std::uint64_t id) override;

  private:
    struct State;

    std::shared_ptr<State> m_state;
};

}  // namespace kinesta
