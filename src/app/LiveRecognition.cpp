#include "app/LiveRecognition.h"

namespace kinesta {

LiveRecognition::LiveRecognition(Desktop& desktop)
    : m_trackpad(desktop.trackpad()),
      m_service(desktop.defaults(), m_trackpad.contacts(), m_trackpad.pointerEvents(), desktop.mainLoop(),
                desktop.clock()) {
    m_trackpad.onStatusChange([this] { m_service.contactProviderDidChangeStatus(); });
}

LiveRecognition::~LiveRecognition() {
    m_trackpad.contacts().stop();
    m_trackpad.onStatusChange({});
}

void LiveRecognition::reloadSettings() {
    m_trackpad.choose({});
    m_service.reloadSettings();
}

}  // namespace kinesta
