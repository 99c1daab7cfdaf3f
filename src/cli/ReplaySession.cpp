#include "cli/ReplaySession.h"

#include <cmath>

#include "recognition/EveryGesture.h"
#include "recognition/RecordedPointerEvent.h"

namespace kinesta {
ReplaySession::ReplaySession(const RecordingHeader& header, Handler onGesture) : m_onGesture(std::move(onGesture)) {
    const RecordedSettings& settings = header.settings;
    m_defaults.setBoolean(MultitouchService::enabledStorageKey, settings.gesturesEnabled.value_or(true));
    if (settings.tapWaitingMilliseconds)
        m_defaults.setInteger(kTapWaitingIntervalStorageKey, *settings.tapWaitingMilliseconds);
    if (settings.cornerPalmRejectionEnabled)
        m_defaults.setBoolean(CornerPalmRejectionSettings::enabledStorageKey, *settings.cornerPalmRejectionEnabled);
    if (settings.cornerPalmRejectionSensitivity)
        m_defaults.setReal(CornerPalmRejectionSettings::sensitivityStorageKey,
                           *settings.cornerPalmRejectionSensitivity);

    m_service.emplace(m_defaults, m_provider, m_pointer, m_mainThread, m_clock);
    onEveryGesture(*m_service, [this](const DetectedGesture& gesture) { m_onGesture(m_mainThread.now(), gesture); });
    m_service->startIfEnabled();
}

ReplaySession::Time ReplaySession::timeOf(Seconds seconds) { return Time(std::llround(seconds * 1e9)); }

void ReplaySession::deliver(const RecordingEvent& event) {
    m_mainThread.advanceTo(timeOf(event.time));
    m_clock.setUptime(event.time);
    if (const auto* frame = std::get_if<RecordedFrame>(&event.content)) {
        m_clock.setUptime(frame->received.value_or(event.time));
        m_provider.deliver({frame->samples, event.time});
        m_clock.setUptime(event.time);
    } else if (const auto pointer = pointerEventOf(event)) {
        m_pointer.deliver(*pointer);
    } else if (const auto* settings = std::get_if<RecordedSettings>(&event.content)) {
        apply(*settings);
    }
    m_mainThread.runPosted();
    m_clock.clearUptime();
}

void ReplaySession::runTimersThrough(Time time) { m_mainThread.advanceTo(time + Time(1)); }

void ReplaySession::apply(const RecordedSettings& settings) {
    if (settings.tapWaitingMilliseconds)
        if (const auto interval = tapWaitingInterval(*settings.tapWaitingMilliseconds))
            m_service->setTapWaitingInterval(*interval);
    if (settings.cornerPalmRejectionEnabled)
        m_service->setCornerPalmRejectionEnabled(*settings.cornerPalmRejectionEnabled);
    if (settings.cornerPalmRejectionSensitivity)
        m_service->setCornerPalmRejectionSensitivity(*settings.cornerPalmRejectionSensitivity);
    if (settings.gesturesEnabled)
        m_service->setGestureEnabled(*settings.gesturesEnabled);
}

}  // namespace kinesta
