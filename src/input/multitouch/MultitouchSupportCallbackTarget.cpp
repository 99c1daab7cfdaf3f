#include "input/multitouch/MultitouchSupportCallbackTarget.h"

#include <utility>

#include "input/multitouch/TouchRecords.h"

namespace kinesta {

MultitouchSupportCallbackTarget& MultitouchSupportCallbackTarget::shared() {
    static auto& target = *new MultitouchSupportCallbackTarget;
    return target;
}

void MultitouchSupportCallbackTarget::setReceiver(const std::shared_ptr<const FrameHandlerSlot>& receiver) {
    const std::lock_guard lock(m_lock);
    m_receiver = receiver;
}

void MultitouchSupportCallbackTarget::removeReceiver(const std::shared_ptr<const FrameHandlerSlot>& receiver) {
    const std::lock_guard lock(m_lock);
    if (!m_receiver.owner_before(receiver) && !receiver.owner_before(m_receiver))
        m_receiver.reset();
}

void MultitouchSupportCallbackTarget::receive(const void* touches, std::size_t count, Seconds timestamp) {
    // Counted before the receiver is taken, so that after removeReceiver() every callback that has one is counted.
    ++m_runningCallbacks;
    std::shared_ptr<const FrameHandlerSlot> receiver;
    {
        const std::lock_guard lock(m_lock);
        receiver = m_receiver.lock();
    }
    if (receiver)
        receiver->call({touchingContacts(touches, count), timestamp});
    receiver.reset();
    --m_runningCallbacks;
    m_runningCallbacks.notify_all();
}

void MultitouchSupportCallbackTarget::close(std::unique_ptr<DynamicLibrary> library) {
    if (m_runningCallbacks == 0)
        return;
    const std::lock_guard lock(m_lock);
    m_keptLibraries.push_back(std::move(library));
}

void MultitouchSupportCallbackTarget::waitForCallbacks() const {
    while (const int running = m_runningCallbacks)
        m_runningCallbacks.wait(running);
}

}  // namespace kinesta
