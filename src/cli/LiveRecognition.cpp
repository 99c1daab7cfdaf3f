#include "cli/LiveRecognition.h"

namespace kinesta {

LiveRecognition::LiveRecognition(MainThread& mainThread, const Clock& clock, UserDefaults& defaults)
    : m_mainThread(mainThread),
      m_defaults(defaults),
      m_provider(mainThread, {.device = defaults.string(kTouchpadSettingKey).value_or(""), .pressure = {}}),
      m_service(defaults, m_provider, m_pointer, mainThread, clock) {
    m_provider.setPointerHandler([this](const PadEvent& event) {
        if (m_watcher)
            m_watcher(event);
        m_pointer.deliver(event);
    });
    m_provider.setStatusHandler([this] { m_service.contactProviderDidChangeStatus(); });
}

LiveRecognition::~LiveRecognition() { m_provider.stop(); }

void LiveRecognition::reloadSettings() {
    m_provider.setDevice(m_defaults.string(kTouchpadSettingKey).value_or(""));
    m_service.reloadSettings();
}

void LiveRecognition::setWatcher(std::function<void(const PadEvent&)> watcher) {
    m_watcher = std::move(watcher);
    // Frames arrive on the provider's thread. Each takes its own way to the main thread; stop() in the destructor
    // makes sure that none is on the way to a watcher that is gone.
    m_provider.setFrameHandler([this, recognize = m_provider.frameHandler()](const TrackpadContactFrame& frame) {
        recognize(frame);
        m_mainThread.post([this, frame] { m_watcher({frame.timestamp, PadFrame{frame.samples, std::nullopt}}); });
    });
}

}  // namespace kinesta
