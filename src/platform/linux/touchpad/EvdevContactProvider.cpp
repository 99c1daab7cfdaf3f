#include "platform/linux/touchpad/EvdevContactProvider.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <future>
#include <thread>
#include <utility>

#include "platform/posix/FileDescriptor.h"

namespace kinesta {

struct EvdevContactProvider::Run {
    /// Posts `task` to the main thread. It does not run if `run` has ended by then.
    static void post(MainThread& mainThread, const std::weak_ptr<Run>& run, std::function<void()> task) {
        mainThread.post([run, task = std::move(task)] {
            if (const auto alive = run.lock())
                task();
        });
    }

    /// A write to it ends the thread's reading.
    FileDescriptor ending{eventfd(0, EFD_CLOEXEC)};
    /// Whether frames of another pad follow: then the fingers on this one must lift first.
    std::atomic<bool> isPadChanging = false;
    std::future<void> hasEnded;
    std::thread thread;  // owns the reader
};

EvdevContactProvider::EvdevContactProvider(MainThread& mainThread, Settings settings)
    : m_mainThread(mainThread), m_settings(std::move(settings)) {}

EvdevContactProvider::~EvdevContactProvider() {
    stop();
    waitUntilClosed();
}

void EvdevContactProvider::start() {
    if (m_state.status == TrackpadContactProviderStatus::listening())
        return;
    stop();
    waitUntilClosed();
    m_run = std::make_shared<Run>();
    const std::weak_ptr<Run> run = m_run;
    auto reader = std::make_unique<EvdevReader>(
        m_settings,
        [this, run](const PadEvent& event) {
            if (const auto* frame = std::get_if<PadFrame>(&event.content))
                m_frameHandler.call({frame->samples, event.time});
            else
                Run::post(m_mainThread, run, [this, event] {
                    if (m_pointerHandler)
                        m_pointerHandler(event);
                });
            if (m_eventHandler)
                m_eventHandler(event);
        },
        [this, run](const EvdevReader::State& state) {
            Run::post(m_mainThread, run, [this, state] {
                m_state = state;
                if (m_statusHandler)
                    m_statusHandler();
            });
        });
    m_state = reader->open();
    std::promise<void> ended;
    m_run->hasEnded = ended.get_future();
    m_run->thread = std::thread([reader = std::move(reader), ended = std::move(ended), &current = *m_run]() mutable {
        reader->run(current.ending.number());
        if (current.isPadChanging)
            reader->liftAll();
        ended.set_value();  // from here on the run may be destroyed
        // Closing an input device takes the kernel about 50 ms. stop() does not wait for that.
        reader.reset();
    });
}

void EvdevContactProvider::setDevice(std::string device) {
    if (device == m_settings.device)
        return;
    m_settings.device = std::move(device);
    if (!m_run)
        return;
    m_run->isPadChanging = true;
    stop();
    start();
    if (m_statusHandler)
        m_statusHandler();
}

void EvdevContactProvider::stop() {
    if (m_run) {
        const std::uint64_t one = 1;
        // Cannot fail: the counter is far from full, and a full one would be readable just as well.
        [[maybe_unused]] const ssize_t written = ::write(m_run->ending.number(), &one, sizeof one);
        m_run->hasEnded.wait();
        m_closing = std::move(m_run->thread);
        m_run.reset();
    }
    m_state = {};
}

void EvdevContactProvider::waitUntilClosed() {
    if (m_closing.joinable())
        m_closing.join();
}

}  // namespace kinesta
