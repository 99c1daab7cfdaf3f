#include "app/LiveRecognition.h"

namespace kinesta {

LiveRecognition::LiveRecognition(Desktop& desktop)
    : m_trackpad(desktop.trackpad()),
      m_service(desktop.defaults(), m_trackpad.contacts(), m_trackpad.pointerEvents(), desktop.mainLoop(),
                m_trackpad.clock()) {
    m_trackpad.onStatusChange([this] { m_service.contactProviderDidChangeStatus(); });
}

LiveRecognition::~LiveRecognition() {
    m_trackpad.contacts().stop();
    m_trackpad.onStatusChange({});
}

void LiveRecognition::start() {
    m_service.startIfEnabled();
    if (!m_service.isGestureEnabled().value())
        m_trackpad.contacts().stop();  // a stream is read from here on, and what it holds is dropped
}

void LiveRecognition::reloadSettings() {
    m_trackpad.choose({});
    m_service.reloadSettings();
}

}  // namespace kinesta
