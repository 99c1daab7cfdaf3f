#include "platform/linux/settings/DeferredCommit.h"

#include <utility>

namespace kinesta {

bool DeferredCommit::isBusy() const {
    const std::lock_guard guard(m_mutex);
    return m_isRunning;
}

std::optional<Outcome> DeferredCommit::join(std::string_view content) {
    const std::lock_guard guard(m_mutex);  // the other thread holds it for moments only
    if (!m_isRunning)
        return std::nullopt;
    Outcome staged = m_file->stage(content);
    m_hasMore = m_hasMore || staged;
    return staged;
}

void DeferredCommit::begin(DurableFile file, FileDescriptor lock, std::function<void()> onEnd) {
    if (m_thread.joinable())
        m_thread.join();  // has ended its run
    m_file = std::move(file);
    m_lock = std::move(lock);
    m_isRunning = true;
    m_thread = std::thread([this, onEnd = std::move(onEnd)] { run(onEnd); });
}

Outcome DeferredCommit::wait() {
    if (m_thread.joinable())
        m_thread.join();
    return m_outcome;
}

void DeferredCommit::run(const std::function<void()>& onEnd) {
    for (;;) {
        Outcome outcome = m_file->commit();
        {
            const std::lock_guard guard(m_mutex);
            if (std::exchange(m_hasMore, false))
                continue;
            m_lock = {};
            m_outcome = outcome;
            m_isRunning = false;
        }
        onEnd();
        return;
    }
}

}  // namespace kinesta
