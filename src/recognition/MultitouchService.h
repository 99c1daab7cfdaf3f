#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "input/PointerEventMonitoring.h"
#include "input/SettingsKeys.h"
#include "input/TapWaitingInterval.h"
#include "input/TrackpadContactProviding.h"
#include "recognition/TouchFrameProcessor.h"
#include "rules/RuleSelection.h"
#include "support/Clock.h"
#include "support/MainThread.h"
#include "support/Published.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// The hub of gesture recognition: feeds contact frames and clicks to the processor, waits as long as a gesture may
/// still grow, and hands finished gestures to its callbacks. Main thread only, except that frames reach the processor
/// on the provider's thread, even while the service is destroyed. Callbacks may do anything but destroy the service.
class MultitouchService {
  public:
    using Status = TrackpadContactProviderStatus;
    static constexpr std::string_view enabledStorageKey = SettingsKeys::gesturesEnabled;

    /// Reads the settings and installs the provider's frame handler; starts nothing. All ports must outlive the
    /// service, main thread and clock also the last frame of the provider.
    MultitouchService(UserDefaults& defaults, TrackpadContactProviding& contactProvider,
                      PointerEventMonitoring& pointerEvents, MainThread& mainThread, const Clock& clock);
    MultitouchService(const MultitouchService&) = delete;
    MultitouchService& operator=(const MultitouchService&) = delete;
    ~MultitouchService();

    /// Receives finished taps, physical clicks and tip-taps; a tip-tap has 2 fingers.
    std::function<void(const DetectedTap&)> onTap;
    /// Receives every step of an edge slide as it happens.
    std::function<void(const DetectedEdgeSlide&)> onEdgeSlide;
    /// Receives finished corner drawings.
    std::function<void(const DetectedAnchorDraw&)> onAnchorDraw;

    /// Installs one handler as all three callbacks.
    void onEveryGesture(const std::function<void(const DetectedGesture&)>& handler) {
        onTap = handler;
        onEdgeSlide = handler;
        onAnchorDraw = handler;
    }

    const Published<Status>& status() const { return m_status; }
    /// The last gesture, as a sentence for a person, for some seconds.
    const Published<std::optional<std::string>>& lastGesture() const { return m_lastGesture; }
    /// Whole seconds until that sentence disappears.
    const Published<std::optional<int>>& gestureCountdown() const { return m_gestureCountdown; }
    const Published<bool>& isGestureEnabled() const { return m_isGestureEnabled; }
    const Published<TapWaitingInterval>& tapWaitingInterval() const { return m_tapWaitingInterval; }
    const Published<CornerPalmRejectionSettings>& cornerPalmRejection() const { return m_cornerPalmRejection; }

    /// Starts the provider if gestures are enabled. Does not try again by itself if the provider is unavailable.
    void start();
    /// Stops the provider and cancels what is pending.
    void stop();
    void startIfEnabled();

    /// To be called when the provider's status has changed by itself, after start(): the pad came, or went.
    void contactProviderDidChangeStatus();

    /// Takes over the stored settings after another process has changed them.
    void reloadSettings();

    /// Settings take effect at once and are stored; an equal value does nothing.
    void setGestureEnabled(bool enabled);
    void setTapWaitingInterval(TapWaitingInterval interval);
    void setCornerPalmRejectionEnabled(bool enabled);
    /// Clamped to 0…1.
    void setCornerPalmRejectionSensitivity(double sensitivity);

  private:
    /// Who changes a setting. A value from storage is not stored again: storage may hold a newer one by then.
    enum class Origin { person, storage };

    template <typename Gesture>
    void report(const Gesture& gesture, const std::function<void(const Gesture&)>& callback);
    void deliver(const FrameRecognition& recognition);
    void receivePhysicalClickEvent(const PointerEvent& event);
    void scheduleRecognition(const TapSequence& sequence, std::uint64_t generation);
    void scheduleTipTapRecognition(const TipTapSequence& sequence, std::uint64_t generation);
    void schedulePhysicalClickRecognition(const PhysicalClickSequence& sequence, std::uint64_t generation);
    void recognize(const TapSequence& sequence, std::uint64_t generation);
    void recognizeTipTap(const TipTapSequence& sequence, std::uint64_t generation);
    void recognizePhysicalClick(const PhysicalClickSequence& sequence, std::uint64_t generation);

    void startClickMonitoring();
    void cancelPendingRecognitions();
    void updateGestureEnabled(bool enabled, Origin origin);
    void updateTapWaitingInterval(TapWaitingInterval interval, Origin origin);
    void updateCornerPalmRejection(const CornerPalmRejectionSettings& settings, Origin origin);

    void showGestureFeedback(const DetectedGesture& gesture);
    void scheduleFeedbackTick();
    void updateGestureFeedback();
    void clearGestureFeedback();

    UserDefaults& m_defaults;
    TrackpadContactProviding& m_contactProvider;
    PointerEventMonitoring& m_pointerEvents;
    MainThread& m_mainThread;
    const Clock& m_clock;

    Published<Status> m_status;
    Published<std::optional<std::string>> m_lastGesture;
    Published<std::optional<int>> m_gestureCountdown;
    Published<bool> m_isGestureEnabled;
    Published<TapWaitingInterval> m_tapWaitingInterval;
    Published<CornerPalmRejectionSettings> m_cornerPalmRejection;

    std::shared_ptr<TouchFrameProcessor> m_frameProcessor = std::make_shared<TouchFrameProcessor>();
    DelayedTask m_pendingRecognition;
    DelayedTask m_pendingClickRecognition;
    DelayedTask m_pendingTipTapRecognition;
    PointerEventMonitor m_globalClickMonitor;
    PointerEventMonitor m_localClickMonitor;
    DelayedTask m_gestureFeedbackTimer;
    std::optional<Seconds> m_gestureFeedbackExpiresAt;  // wall clock
    Uptime m_gestureFeedbackTickAt = 0;

    /// Points here while the service lives. Posted tasks hold it weakly and lock it on the main thread.
    std::shared_ptr<MultitouchService*> m_self = std::make_shared<MultitouchService*>(this);
};

}  // namespace kinesta
