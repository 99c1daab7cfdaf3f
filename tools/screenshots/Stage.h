#pragma once

#include <QTemporaryDir>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "Fakes.h"
#include "app/App.h"
#include "app/LaunchAtLoginManager.h"
#include "app/SoftwareUpdateController.h"
#include "feedback/ActionCuePresenter.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/qt/QtMainThread.h"
#include "ui/window/KinestaWindow.h"

namespace kinesta {

/// What a scene begins with.
struct Setting {
    /// The file with the rules; empty for none.
    std::string rules;
    /// How many rules to make besides.
    int moreRules = 0;
    /// Stored settings: a key and its value.
    std::vector<std::pair<std::string, bool>> switches;
    bool hasTrackpad = true;
    bool isFirstLaunch = false;
    bool isPermissionMissing = false;
    bool hasFindings = false;
    bool hasUpdates = false;
    LoginItemStatus login = LoginItemStatus::enabled;
    QSize size{980, 700};
};

/// The window with everything behind it: real rules, settings and recognition in a folder of its own, and in place of
/// the machine what a scene wants of it.
class Stage {
  public:
    explicit Stage(const Setting& setting);

    KinestaWindow& window() { return *m_window; }
    MultitouchService& service() { return m_app->recognition().service(); }
    RuleStore& store() { return m_app->store(); }
    Uuid rule(const std::string& name);
    /// Contacts as "[1,0.5,0.5],[2,…]", none for the lift of all.
    void touch(double time, const std::string& contacts);
    /// Three fingers touch and lift.
    void tap(double time);

  private:
    WindowParts parts();

    Setting m_setting;
    QTemporaryDir m_folder;
    QtMainThread m_mainLoop;
    LinuxDesktop m_machine;
    std::unique_ptr<App> m_app;
    FakeScreens m_screens;
    FakePreferences m_preferences;
    std::unique_ptr<ActionCuePresenter> m_cue;
    FakeLoginItem m_loginItem;
    LaunchAtLoginManager m_login;
    FakeBundle m_bundle;
    SoftwareUpdateController m_updates;
    FakeReport m_report;
    FakeApplications m_applications;
    std::ofstream m_pad;
    std::unique_ptr<KinestaWindow> m_window;
};

}  // namespace kinesta
