#include "recognition/MultitouchService.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "recognition/StoredRecognitionSettings.h"
#include "rules/GestureDescription.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr int kMostRepetitions = 3;  // a sequence cannot grow further

constexpr int kFeedbackSeconds = 5;
constexpr Seconds kFeedbackTick = 1;

/// The system adjusts the wall clock by running it a little slower or faster than the timers. Without this a tick that
/// comes slightly early would leave the countdown unchanged for a second.
constexpr Seconds kClockDrift = 0.001;

}  // namespace

MultitouchService::MultitouchService(UserDefaults& defaults, TrackpadContactProviding& contactProvider,
                                     PointerEventMonitoring& pointerEvents, MainThread& mainThread, const Clock& clock)
    : m_defaults(defaults),
      m_contactProvider(contactProvider),
      m_pointerEvents(pointerEvents),
      m_mainThread(mainThread),
      m_clock(clock),
      m_isGestureEnabled(storedGestureEnabled(defaults)),
      m_tapWaitingInterval(storedTapWaitingInterval(defaults)),
      m_cornerPalmRejection(storedCornerPalmRejection(defaults)) {
    m_frameProcessor->setMaximumTapInterval(m_tapWaitingInterval.value().seconds());
    m_frameProcessor->setCornerPalmRejection(m_cornerPalmRejection.value());
    // On the provider's thread, where the service may be destroyed at any time: the handler owns the processor, and the
    // posted task locks the service on the main thread.
    const auto receive = [processor = m_frameProcessor, &mainThread, &clock,
                          self = std::weak_ptr(m_self)](const TrackpadContactFrame& frame) {
        const FrameRecognition recognition = processor->process(frame.samples, frame.timestamp, clock.uptime());
        if (recognition.isEmpty())
            return;
        mainThread.post([self, recognition] {
            if (const auto service = self.lock())
                (*service)->deliver(recognition);
        });
    };
    m_contactProvider.setFrameHandler(receive);
}

MultitouchService::~MultitouchService() {
    m_self.reset();
    m_contactProvider.setFrameHandler({});
}

void MultitouchService::start() {
    if (!m_isGestureEnabled.value() || m_status.value() == Status::listening())
        return;
    m_contactProvider.start();
    Status status = m_contactProvider.status();
    if (status == Status::listening())
        startClickMonitoring();
    m_status.set(std::move(status));
}

void MultitouchService::stop() {
    cancelPendingRecognitions();
    m_globalClickMonitor.cancel();
    m_localClickMonitor.cancel();
    clearGestureFeedback();
    m_contactProvider.stop();
    m_status.set(Status::stopped());
    m_frameProcessor->reset();
}

void MultitouchService::startIfEnabled() {
    if (m_isGestureEnabled.value()) {
        start();
        return;
    }
    m_status.set(Status::stopped());
    clearGestureFeedback();
}

void MultitouchService::contactProviderDidChangeStatus() {
    Status status = m_contactProvider.status();
    // Stopped follows from stop() alone, which has published it.
    if (!m_isGestureEnabled.value() || status == m_status.value() || status == Status::stopped())
        return;
    if (status == Status::listening()) {
        startClickMonitoring();
    } else if (m_status.value() == Status::listening()) {
        cancelPendingRecognitions();
        m_globalClickMonitor.cancel();
        m_localClickMonitor.cancel();
        m_frameProcessor->reset();
    }
    m_status.set(std::move(status));
}

void MultitouchService::reloadSettings() {
    updateTapWaitingInterval(storedTapWaitingInterval(m_defaults), Origin::storage);
    updateCornerPalmRejection(storedCornerPalmRejection(m_defaults), Origin::storage);
    updateGestureEnabled(storedGestureEnabled(m_defaults), Origin::storage);
}

void MultitouchService::setGestureEnabled(bool enabled) { updateGestureEnabled(enabled, Origin::person); }

void MultitouchService::setTapWaitingInterval(TapWaitingInterval interval) {
    updateTapWaitingInterval(interval, Origin::person);
}

void MultitouchService::setCornerPalmRejectionEnabled(bool enabled) {
    CornerPalmRejectionSettings settings = m_cornerPalmRejection.value();
    settings.isEnabled = enabled;
    updateCornerPalmRejection(settings, Origin::person);
}

void MultitouchService::setCornerPalmRejectionSensitivity(double sensitivity) {
    CornerPalmRejectionSettings settings = m_cornerPalmRejection.value();
    settings.sensitivity = CornerPalmRejectionSettings::clampedSensitivity(sensitivity);
    updateCornerPalmRejection(settings, Origin::person);
}

void MultitouchService::updateGestureEnabled(bool enabled, Origin origin) {
    if (enabled == m_isGestureEnabled.value())
        return;
    m_isGestureEnabled.set(enabled);
    if (origin == Origin::person)
        m_defaults.setBoolean(enabledStorageKey, enabled);
    enabled ? start() : stop();
}

void MultitouchService::updateTapWaitingInterval(TapWaitingInterval interval, Origin origin) {
    if (interval == m_tapWaitingInterval.value())
        return;
    m_tapWaitingInterval.set(interval);
    if (origin == Origin::person)
        m_defaults.setInteger(TapWaitingInterval::storageKey, interval.rawValue());
    m_frameProcessor->setMaximumTapInterval(interval.seconds());
}

void MultitouchService::updateCornerPalmRejection(const CornerPalmRejectionSettings& settings, Origin origin) {
    if (settings == m_cornerPalmRejection.value())
        return;
    m_frameProcessor->setCornerPalmRejection(settings);
    cancelPendingRecognitions();
    m_cornerPalmRejection.set(settings);
    if (origin == Origin::storage)
        return;
    m_defaults.setBoolean(CornerPalmRejectionSettings::enabledStorageKey, settings.isEnabled);
    m_defaults.setReal(CornerPalmRejectionSettings::sensitivityStorageKey, settings.sensitivity);
}

void MultitouchService::cancelPendingRecognitions() {
    m_pendingRecognition.cancel();
    m_pendingClickRecognition.cancel();
    m_pendingTipTapRecognition.cancel();
}

void MultitouchService::startClickMonitoring() {
    const auto handler = [this](const PointerEvent& event) { receivePhysicalClickEvent(event); };
    m_globalClickMonitor = m_pointerEvents.monitor(PointerEventScope::otherApplications, handler);
    m_localClickMonitor = m_pointerEvents.monitor(PointerEventScope::thisApplication, handler);
}

void MultitouchService::receivePhysicalClickEvent(const PointerEvent& event) {
    switch (event.kind) {
        case PointerEvent::Kind::leftDown:
        case PointerEvent::Kind::rightDown:
            m_frameProcessor->beginPhysicalClick(m_clock.uptime());
            break;
        case PointerEvent::Kind::pressure:
            m_frameProcessor->registerPressureStage(event.stage);
            break;
        case PointerEvent::Kind::leftUp:
        case PointerEvent::Kind::rightUp:
            if (const auto click = m_frameProcessor->completePhysicalClick(event.timestamp))
                m_mainThread.post([self = std::weak_ptr(m_self), click = *click] {
                    if (const auto service = self.lock())
                        (*service)->schedulePhysicalClickRecognition(click.sequence, click.generation);
                });
            break;
    }
}

template <typename Gesture>
void MultitouchService::report(const Gesture& gesture, const std::function<void(const Gesture&)>& callback) {
    showGestureFeedback(gesture);
    if (const auto copy = callback)  // a copy: it may install another one
        copy(gesture);
}

void MultitouchService::deliver(const FrameRecognition& recognition) {
    if (!m_frameProcessor->isCurrent(recognition.generation))
        return;
    if (const auto& draw = recognition.anchorDraw)
        report(DetectedAnchorDraw{draw->corner, draw->pattern}, onAnchorDraw);
    if (const auto& slide = recognition.edgeSlide)
        report(DetectedEdgeSlide{slide->fingers, slide->side, slide->steps}, onEdgeSlide);
    if (recognition.tipTapSequence)
        scheduleTipTapRecognition(*recognition.tipTapSequence, recognition.generation);
    if (recognition.tapSequence)
        scheduleRecognition(*recognition.tapSequence, recognition.generation);
}

void MultitouchService::scheduleRecognition(const TapSequence& sequence, std::uint64_t generation) {
    m_pendingRecognition.cancel();
    if (sequence.taps == kMostRepetitions) {
        recognize(sequence, generation);
        return;
    }
    m_pendingRecognition = m_mainThread.after(wholeNanoseconds(m_frameProcessor->maximumTapInterval()),
                                              [=, this] { recognize(sequence, generation); });
}

void MultitouchService::scheduleTipTapRecognition(const TipTapSequence& sequence, std::uint64_t generation) {
    m_pendingTipTapRecognition.cancel();
    if (sequence.taps == kMostRepetitions) {
        recognizeTipTap(sequence, generation);
        return;
    }
    m_pendingTipTapRecognition = m_mainThread.after(wholeNanoseconds(m_frameProcessor->maximumTipTapInterval()),
                                                    [=, this] { recognizeTipTap(sequence, generation); });
}

void MultitouchService::schedulePhysicalClickRecognition(const PhysicalClickSequence& sequence,
                                                         std::uint64_t generation) {
    m_pendingClickRecognition.cancel();
    if (sequence.clicks == kMostRepetitions) {
        recognizePhysicalClick(sequence, generation);
        return;
    }
    m_pendingClickRecognition = m_mainThread.after(wholeNanoseconds(m_frameProcessor->maximumClickInterval()),
                                                   [=, this] { recognizePhysicalClick(sequence, generation); });
}

void MultitouchService::recognize(const TapSequence& sequence, std::uint64_t generation) {
    if (!m_frameProcessor->finalize(sequence, generation))
        return;
    if (const auto gesture = tapGesture(sequence.taps))
        report(DetectedTap{sequence.fingers, *gesture}, onTap);
}

void MultitouchService::recognizeTipTap(const TipTapSequence& sequence, std::uint64_t generation) {
    if (!m_frameProcessor->finalizeTipTap(sequence, generation))
        return;
    constexpr int kFingers = 2;  // the resting and the tapping one
    if (const auto gesture = tipTapGesture(sequence.taps, sequence.direction))
        report(DetectedTap{kFingers, *gesture}, onTap);
}

void MultitouchService::recognizePhysicalClick(const PhysicalClickSequence& sequence, std::uint64_t generation) {
    if (!m_frameProcessor->finalizePhysicalClick(sequence, generation))
        return;
    if (const auto gesture = physicalClickGesture(sequence.clicks, sequence.pressure))
        report(DetectedTap{sequence.fingers, *gesture}, onTap);
}

void MultitouchService::showGestureFeedback(const DetectedGesture& gesture) {
    m_gestureFeedbackTimer.cancel();
    m_lastGesture.set(translated("Detected %1", {describe(gesture)}));
    m_gestureCountdown.set(kFeedbackSeconds);
    m_gestureFeedbackExpiresAt = m_clock.wallClock() + kFeedbackSeconds;
    m_gestureFeedbackTickAt = m_clock.uptime();
    scheduleFeedbackTick();
}

// From the last tick's own time: a late tick must not make those after it late too. Ticks that were missed whole are
// not made up for.
void MultitouchService::scheduleFeedbackTick() {
    const Uptime now = m_clock.uptime();
    do
        m_gestureFeedbackTickAt += kFeedbackTick;
    while (m_gestureFeedbackTickAt <= now);
    m_gestureFeedbackTimer = m_mainThread.after(wholeNanoseconds(m_gestureFeedbackTickAt - now), [this] {
        scheduleFeedbackTick();
        updateGestureFeedback();
    });
}

void MultitouchService::updateGestureFeedback() {
    const Seconds remaining =
        m_gestureFeedbackExpiresAt ? std::ceil(*m_gestureFeedbackExpiresAt - m_clock.wallClock() - kClockDrift) : 0;
    if (!(remaining >= 1)) {
        clearGestureFeedback();
        return;
    }
    const int countdown = static_cast<int>(std::min(remaining, 1e9));  // a wall clock may be set back by decades
    if (m_gestureCountdown.value() != countdown)
        m_gestureCountdown.set(countdown);
}

void MultitouchService::clearGestureFeedback() {
    m_gestureFeedbackTimer.cancel();
    m_gestureFeedbackExpiresAt.reset();
    m_lastGesture.set(std::nullopt);
    m_gestureCountdown.set(std::nullopt);
}

}  // namespace kinesta
