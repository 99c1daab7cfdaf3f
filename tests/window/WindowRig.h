#pragma once

#include <sys/stat.h>

#include <fstream>
#include <memory>
#include <string>

#include "app/App.h"
#include "app/LaunchAtLoginManager.h"
#include "app/SoftwareUpdateController.h"
#include "feedback/ActionCuePresenter.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/launching/DesktopApplications.h"
#include "platform/linuxdesktop/DoctorReport.h"
#include "platform/linuxdesktop/appearance/DesktopAppearance.h"
#include "platform/linuxdesktop/cue/DesktopActionCue.h"
#include "platform/linuxdesktop/cue/DesktopScreens.h"
#include "platform/qt/JsonBundleInformation.h"
#include "platform/qt/QtMainThread.h"
#include "shell/QtTest.h"
#include "support/TemporaryFolder.h"
#include "ui/WindowParts.h"

namespace kinesta::testing {

/// What a window needs, as the application has it, on a trackpad whose events the test writes.
class WindowRig : public QtTest {
  protected:
    WindowRig() {
        app.dispatcher().setObserver([this](const DetectedGesture& gesture, const GestureRule*) {
            if (onGesture)
                onGesture(gesture);
        });
    }

    /// Begins to read the trackpad.
    void startPad() {
        app.start();
        pad.open(padPath());
        pad << R"({"kinesta":"recording","version":1})" << std::endl;
    }
    /// Contacts as "[1,0.5,0.5],[2,…]", none for the lift of all.
    void touch(Seconds time, const std::string& contacts) {
        pad << R"({"t":)" << time << R"(,"touches":[)" << contacts << "]}" << std::endl;
    }
    /// The trackpad is gone.
    void unplug() { pad.close(); }

    WindowParts parts() {
        return {.desktop = machine,
                .store = app.store(),
                .service = app.recognition().service(),
                .testSession = app.testSession(),
                .cue = cue,
                .launchAtLogin = login,
                .updates = updates,
                .report = report,
                .applications = applications,
                .runAction = [](const GestureRule&) {},
                .requestAccessibilityPermission = [] {},
                .isPermissionMissing = [] { return false; },
                .applyAppearance = [] {},
                .reloadSettings = [] {},
                .version = "1.0"};
    }

    std::function<void(const DetectedGesture&)> onGesture;
    TemporaryFolder folder;
    QtMainThread mainLoop;
    LinuxDesktop machine{mainLoop, {.settings = folder / "defaults.json", .examples = {}}};

  private:
    std::string padPath() const { return folder / "pad"; }
    LinuxDesktop& machineWithPad() {
        EXPECT_EQ(mkfifo(padPath().c_str(), 0600), 0);
        machine.useStream(padPath());
        return machine;
    }

    QDBusConnection m_bus{connectToBus()};
    JsonBundleInformation m_bundle{folder.path()};
    DesktopSettings m_settings{m_bus};
    DesktopScreens m_screens{[] { return std::vector<EwmhMonitor>(); }};

  protected:
    App app{machineWithPad(), [](const std::string&) {}};
    ActionCuePresenter cue{{machine.defaults(), mainLoop, m_screens, m_settings}, makeActionCuePanel};
    LaunchAtLoginManager login{machine.loginItem()};
    SoftwareUpdateController updates{m_bundle, [](const auto&) { return nullptr; }};
    DoctorReport report{mainLoop, "/nowhere/kinesta"};
    DesktopApplications applications;
    std::ofstream pad;
};

}  // namespace kinesta::testing
