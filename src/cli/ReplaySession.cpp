#include "cli/ReplaySession.h"

#include <cmath>

namespace kinesta {
ReplaySession::ReplaySession(const RecordingHeader& header, Handler onGesture) : m_onGesture(std::move(onGesture)) {
    const RecordedSettings& settings = header.settings;
    m_defaults.setBoolean(MultitouchService::enabledStorageKey, settings.gesturesEnabled.value_or(true));
    if (settings.tapWaitingMilliseconds)
        m_defaults.setInteger(TapWaitingInterval::storageKey, *settings.tapWaitingMilliseconds);
    if (settings.cornerPalmRejectionEnabled)
        m_defaults.setBoolean(CornerPalmRejectionSettings::enabledStorageKey, *settings.cornerPalmRejectionEnabled);
    if (settings.cornerPalmRejectionSensitivity)
        m_defaults.setReal(CornerPalmRejectionSettings::sensitivityStorageKey,
                           *settings.cornerPalmRejectionSensitivity);

    m_service.emplace(m_defaults, m_provider, m_pointer, m_mainThread, m_clock);
    m_service->onEveryGesture([this](const DetectedGesture& gesture) { m_onGesture(m_mainThread.now(), gesture); });
    m_service->startIfEnabled();
}

ReplaySession::Time ReplaySession::timeOf(Seconds seconds) { return Time(std::llround(seconds * 1e9)); }

void ReplaySession::deliver(const RecordingEvent& event) {
    const Seconds time = eventTime(event);
    m_mainThread.advanceTo(timeOf(time));
    m_clock.setUptime(time);
    if (const auto* change = std::get_if<SettingsChange>(&event)) {
        apply(change->settings);
    } else if (const auto& pad = std::get<PadEvent>(event); const auto* frame = std::get_if<PadFrame>(&pad.content)) {
        m_clock.setUptime(frame->received.value_or(time));
        m_provider.deliver({frame->samples, time});
        m_clock.setUptime(time);
    } else {
        m_pointer.deliver(pad);
    }
    m_mainThread.runPosted();
    m_clock.clearUptime();
}

void ReplaySession::runTimersThrough(Time time) { m_mainThread.advanceTo(time + Time(1)); }

void ReplaySession::apply(const RecordedSettings& settings) {
    if (settings.tapWaitingMilliseconds)
        if (const auto interval = TapWaitingInterval::fromRawValue(*settings.tapWaitingMilliseconds))
            m_service->setTapWaitingInterval(*interval);
    if (settings.cornerPalmRejectionEnabled)
        m_service->setCornerPalmRejectionEnabled(*settings.cornerPalmRejectionEnabled);
    if (settings.cornerPalmRejectionSensitivity)
        m_service->setCornerPalmRejectionSensitivity(*settings.cornerPalmRejectionSensitivity);
    if (settings.gesturesEnabled)
        m_service->setGestureEnabled(*settings.gesturesEnabled);
}

}  // namespace kinesta
