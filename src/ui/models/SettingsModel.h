#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/AppAppearance.h"
#include "app/LaunchAtLoginManager.h"
#include "app/PlatformSettings.h"
#include "app/SoftwareUpdateController.h"
#include "feedback/ActionCuePosition.h"
#include "recognition/MultitouchService.h"
#include "support/Published.h"
#include "support/UserDefaults.h"
#include "ui/models/TrackpadChoices.h"

namespace kinesta {

/// All that the settings page shows.
struct SettingsContent {
    bool isGestureEnabled = false;
    /// Why nothing is recognized although recognition is switched on; empty if it works.
    std::string recognitionProblem;
    /// In milliseconds.
    std::int64_t tapWaitingInterval = 0;
    TrackpadChoices trackpads;
    bool ignoresPalms = false;
    int palmPercent = 0;
    bool showsCue = false;
    ActionCuePosition cuePosition = ActionCuePosition::topRight;
    /// In tenths of a second.
    int cueDuration = 0;
    int cuePercent = 0;
    bool runsShellCommands = false;
    AppAppearance appearance = AppAppearance::system;
    bool launchesAtLogin = false;
    bool waitsForApproval = false;
    std::string loginProblem;
    bool hasUpdates = false;
    bool canCheckForUpdates = false;
    bool checksForUpdates = false;
    /// How updates are checked for, that they are now, or why they are not.
    std::string updateMessage;
    /// Which case holds of each choice of the platform.
    std::vector<std::size_t> platformCases;

    friend bool operator==(const SettingsContent&, const SettingsContent&) = default;
};

/// The settings page: what is set, and how it is changed. Every change is stored and counts at once. Main thread only.
class SettingsModel {
  public:
    /// The referents must outlive the model.
    struct Parts {
        UserDefaults& defaults;
        MultitouchService& service;
        LaunchAtLoginManager& launchAtLogin;
        SoftwareUpdateController& updates;
        PlatformSettings platform;
        std::function<ConnectedTrackpads()> connectedTrackpads;
        /// Reads the trackpad that the settings name.
        std::function<void()> applyTrackpad;
        /// Shows the appearance that the settings name.
        std::function<void()> applyAppearance;
    };

    struct Range {
        int least;
        int most;
    };
    static constexpr Range palmRange{0, 100};
    /// In tenths of a second.
    static Range durationRange();
    /// In percent.
    static Range opacityRange();

    explicit SettingsModel(Parts parts);

    /// Set after every change, and when a change was refused.
    const Published<SettingsContent>& content() const { return m_content; }
    const PlatformSettings& platform() const { return m_parts.platform; }

    /// Reads everything again but the trackpads.
    void refresh();
    /// Looks which trackpads there are. Opens each for a moment.
    void listTrackpads();

    void setGestureEnabled(bool isEnabled);
    /// Tries again to read the trackpad.
    void startRecognition();
    void setTapWaitingInterval(std::int64_t milliseconds);
    void chooseTrackpad(std::size_t index);
    void setIgnoresPalms(bool isOn);
    void setPalmPercent(int percent);
    void setShowsCue(bool isOn);
    void setCuePosition(ActionCuePosition position);
    void setCueDuration(int tenths);
    void setCuePercent(int percent);
    void setRunsShellCommands(bool isOn);
    void setAppearance(AppAppearance appearance);
    /// Shows where it is approved if that is what is missing.
    void setLaunchAtLogin(bool isOn);
    void openLoginItemSettings();
    void checkForUpdates();
    void setChecksForUpdates(bool isOn);
    void choosePlatformCase(std::size_t choice, std::size_t index);

  private:
    SettingsContent read() const;
    void readUpdates(SettingsContent& content) const;
    std::string wantedTrackpad() const;

    Parts m_parts;
    ConnectedTrackpads m_trackpads;
    Published<SettingsContent> m_content;
    std::vector<Subscription> m_observers;
};

}  // namespace kinesta
