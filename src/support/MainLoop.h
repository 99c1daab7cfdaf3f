#pragma once

#include "support/MainThread.h"

namespace kinesta {

/// A main thread that a program runs and ends.
class MainLoop : public MainThread {
  public:
    /// Makes the calling thread the main thread until quit(). Must not be called from a task.
    virtual void run() = 0;

    /// Makes run() return after the current task, or the next run() return at once. Remaining tasks stay for another
    /// run(). Any thread, but not a signal handler.
    virtual void quit() = 0;
};

}  // namespace kinesta
