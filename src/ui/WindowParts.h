#pragma once

#include <functional>
#include <string>

#include "app/AppAppearance.h"

namespace kinesta {

class ActionCuePresenter;
class Desktop;
class GestureTestSession;
class InstalledApplications;
class LaunchAtLoginManager;
class MultitouchService;
class RuleStore;
class SoftwareUpdateController;
class SystemReport;
struct GestureRule;

/// What the window shows and changes. The referents must outlive it. Main thread only.
struct WindowParts {
    Desktop& desktop;
    RuleStore& store;
    MultitouchService& service;
    GestureTestSession& testSession;
    ActionCuePresenter& cue;
    LaunchAtLoginManager& launchAtLogin;
    SoftwareUpdateController& updates;
    SystemReport& report;
    const InstalledApplications& applications;
    /// Runs the action of a rule, whether it is on or not; a volume action goes one step up.
    std::function<void(const GestureRule&)> runAction;
    std::function<void()> requestAccessibilityPermission;
    std::function<bool()> isPermissionMissing;
    /// Shows the appearance that the settings hold now.
    std::function<void()> applyAppearance;
    /// Applies all settings again after they were reset.
    std::function<void()> reloadSettings;
    std::string version;
    bool isFirstLaunch = false;
};

}  // namespace kinesta
