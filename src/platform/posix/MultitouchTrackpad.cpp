#include "platform/posix/MultitouchTrackpad.h"

#include "platform/posix/PosixDynamicLibrary.h"

namespace kinesta {

MultitouchTrackpad::Contacts::Contacts(std::string libraryPath, PadEventRelay& watching)
    : m_library(PosixDynamicLibrary::open, std::move(libraryPath)) {
    m_library.setFrameHandler([this, &watching](const TrackpadContactFrame& frame) {
        m_frameHandler.call(frame);
        watching.offer({frame.timestamp, PadFrame{frame.samples, {}}});
    });
}

MultitouchTrackpad::MultitouchTrackpad(MainThread& mainThread, const Clock& clock,
                                       PointerEventMonitoring& pointerEvents, Identity identity,
                                       std::string libraryPath)
    : m_clock(clock),
      m_pointerEvents(pointerEvents),
      m_identity(std::move(identity)),
      m_watching(mainThread, clock),
      m_contacts(std::move(libraryPath), m_watching) {}

MultitouchTrackpad::~MultitouchTrackpad() {
    m_contacts.stop();
    MultitouchSupportContactProvider::waitForHandlers();
}

void MultitouchTrackpad::watch(std::function<void(const PadEvent&)> watcher) {
    m_watchedClicks = {};
    if (watcher) {
        const auto offer = [this](const PointerEvent& event) { offerClick(event); };
        m_watchedClicks = {m_pointerEvents.monitor(PointerEventScope::otherApplications, offer),
                           m_pointerEvents.monitor(PointerEventScope::thisApplication, offer)};
    }
    m_watching.setWatcher(std::move(watcher));
}

void MultitouchTrackpad::offerClick(const PointerEvent& event) {
    PadEvent seen{event.timestamp, PadButton::down};
    if (event.kind == PointerEvent::Kind::pressure)
        seen.content = PadPressure{event.stage};
    else if (event.kind == PointerEvent::Kind::leftUp || event.kind == PointerEvent::Kind::rightUp)
        seen.content = PadButton::up;
    m_watching.offer(seen);
}

}  // namespace kinesta
