#pragma once

#include <QObject>
#include <QTimer>
#include <mutex>
#include <vector>

#include "support/MainLoop.h"
#include "support/TimerQueue.h"

namespace kinesta {

/// The main thread of a program with Qt's event loop. Needs the QCoreApplication before it. Delayed tasks run at most
/// about a millisecond late on an idle thread.
class QtMainThread final : public QObject, public MainLoop {
  public:
    QtMainThread();
    ~QtMainThread() override;

    void run() override;
    void quit() override;
    void post(Task task) override;
    [[nodiscard]] DelayedTask after(std::chrono::nanoseconds delay, Task task) override;

  protected:
    void cancel(std::uint64_t id) override;
    bool event(QEvent* event) override;

  private:
    void runPosted();
    void runDue();
    void startTimer();

    std::mutex m_lock;  // guards m_posted; never held while a task runs or is destroyed
    std::vector<Task> m_posted;
    TimerQueue m_delayed;
    QTimer m_timer;
};

}  // namespace kinesta
