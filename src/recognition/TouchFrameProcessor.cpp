#include "recognition/TouchFrameProcessor.h"

namespace kinesta {
namespace {

/// A click reported within this time after a lift belongs to the lifted fingers.
constexpr Seconds kClickReportDelay = 0.12;

constexpr std::int64_t kForceStage = 2;

}  // namespace

FrameRecognition TouchFrameProcessor::process(std::span<const TouchSample> samples, Seconds timestamp,
                                              Uptime receivedAt) {
    const std::lock_guard lock(m_lock);
    m_rawContactCount = samples.size();
    if (m_suppressUntilRawLift) {
        m_suppressUntilRawLift = m_rawContactCount > 0;
        return FrameRecognition::empty;
    }
    const std::span<const TouchSample> filtered = m_cornerPalmFilter.process(samples);
    rememberContacts(filtered, receivedAt);
    if (m_suppressTapUntilLift) {
        if (m_rawContactCount == 0) {
            m_suppressTapUntilLift = false;
            clearContactState();
        }
        return FrameRecognition::empty;
    }
    return recognize(filtered, timestamp);
}

void TouchFrameProcessor::rememberContacts(std::span<const TouchSample> filtered, Uptime receivedAt) {
    m_activeFingerCount = static_cast<int>(filtered.size());
    if (m_activeFingerCount > 0) {
        m_lastContactFingerCount = m_activeFingerCount;
        m_lastContactReceivedAt = receivedAt;
    } else if (m_rawContactCount > 0) {
        m_lastContactFingerCount = 0;
        m_lastContactReceivedAt = 0;
    }
}

FrameRecognition TouchFrameProcessor::recognize(std::span<const TouchSample> filtered, Seconds timestamp) {
    const auto tipTap = m_tipTap.process(filtered, timestamp);
    // Initializers run in this order.
    return {.generation = m_generation,
            .anchorDraw = m_anchorDraw.process(filtered, timestamp),
            .edgeSlide = m_edgeSlide.process(filtered),
            .tipTapSequence = tipTap ? std::optional(m_tipTapSequence.process(*tipTap, timestamp)) : std::nullopt,
            .tapSequence = m_multiTap.process(filtered, timestamp)};
}

void TouchFrameProcessor::beginPhysicalClick(Uptime receivedAt) {
    const std::lock_guard lock(m_lock);
    m_pendingPhysicalClick.reset();
    if (m_suppressUntilRawLift || (m_rawContactCount > 0 && m_activeFingerCount == 0))
        return;
    int fingers = m_activeFingerCount;
    if (fingers == 0) {
        if (receivedAt - m_lastContactReceivedAt > kClickReportDelay)
            return;
        fingers = m_lastContactFingerCount;
    }
    if (!PhysicalClickRecognizer::acceptsFingers(fingers)) {
        m_physicalClick.reset();
        return;
    }
    m_pendingPhysicalClick = PendingPhysicalClick{fingers, false};
    m_suppressTapUntilLift = true;
    clearContactState();
}

void TouchFrameProcessor::registerPressureStage(std::int64_t stage) {
    if (stage < kForceStage)
        return;
    const std::lock_guard lock(m_lock);
    if (m_pendingPhysicalClick)
        m_pendingPhysicalClick->reachedForceStage = true;
}

std::optional<TouchFrameProcessor::CompletedClick> TouchFrameProcessor::completePhysicalClick(Uptime timestamp) {
    const std::lock_guard lock(m_lock);
    if (!m_pendingPhysicalClick)
        return std::nullopt;
    const PendingPhysicalClick click = *m_pendingPhysicalClick;
    m_pendingPhysicalClick.reset();
    const auto pressure = click.reachedForceStage ? PhysicalClickPressure::force : PhysicalClickPressure::soft;
    const auto sequence = m_physicalClick.process(click.fingers, pressure, timestamp);
    if (!sequence)
        return std::nullopt;
    return CompletedClick{*sequence, m_generation};
}

std::optional<TapSequence> TouchFrameProcessor::finalize(const TapSequence& expected, std::uint64_t generation) {
    const std::lock_guard lock(m_lock);
    return generation == m_generation ? m_multiTap.finalize(expected) : std::nullopt;
}

std::optional<TipTapSequence> TouchFrameProcessor::finalizeTipTap(const TipTapSequence& expected,
                                                                  std::uint64_t generation) {
    const std::lock_guard lock(m_lock);
    return generation == m_generation ? m_tipTapSequence.finalize(expected) : std::nullopt;
}

std::optional<PhysicalClickSequence> TouchFrameProcessor::finalizePhysicalClick(const PhysicalClickSequence& expected,
                                                                                std::uint64_t generation) {
    const std::lock_guard lock(m_lock);
    return generation == m_generation ? m_physicalClick.finalize(expected) : std::nullopt;
}

bool TouchFrameProcessor::isCurrent(std::uint64_t generation) const {
    const std::lock_guard lock(m_lock);
    return generation == m_generation;
}

Seconds TouchFrameProcessor::maximumTapInterval() const {
    const std::lock_guard lock(m_lock);
    return m_multiTap.maximumInterval();
}

Seconds TouchFrameProcessor::maximumTipTapInterval() const {
    const std::lock_guard lock(m_lock);
    return m_tipTapSequence.maximumInterval();
}

Seconds TouchFrameProcessor::maximumClickInterval() const {
    const std::lock_guard lock(m_lock);
    return m_physicalClick.maximumInterval();
}

void TouchFrameProcessor::setMaximumTapInterval(Seconds interval) {
    const std::lock_guard lock(m_lock);
    m_multiTap.setMaximumInterval(interval);
    m_tipTapSequence.setMaximumInterval(interval);
}

void TouchFrameProcessor::setCornerPalmRejection(const CornerPalmRejectionSettings& settings) {
    const std::lock_guard lock(m_lock);
    if (settings == m_cornerPalmFilter.settings())
        return;
    m_cornerPalmFilter.setSettings(settings);
    m_cornerPalmFilter.reset();
    resetRecognizers();
    m_suppressUntilRawLift = m_rawContactCount > 0;
}

void TouchFrameProcessor::reset() {
    const std::lock_guard lock(m_lock);
    resetRecognizers();
    m_cornerPalmFilter.reset();
    m_rawContactCount = 0;
    m_suppressUntilRawLift = false;
}

void TouchFrameProcessor::clearContactState() {
    m_multiTap.cancelCurrentContact();
    m_anchorDraw.reset();
    m_edgeSlide.reset();
    m_tipTap = {};
    m_tipTapSequence.reset();
}

void TouchFrameProcessor::resetRecognizers() {
    ++m_generation;
    const Seconds tapInterval = m_multiTap.maximumInterval();
    m_multiTap = {};
    m_multiTap.setMaximumInterval(tapInterval);
    m_anchorDraw.reset();
    m_edgeSlide = {};
    m_tipTap = {};
    m_tipTapSequence = {};
    m_tipTapSequence.setMaximumInterval(tapInterval);
    m_physicalClick = {};
    m_pendingPhysicalClick.reset();
    m_activeFingerCount = 0;
    m_lastContactFingerCount = 0;
    m_lastContactReceivedAt = 0;
    m_suppressTapUntilLift = false;
}

}  // namespace kinesta
