#include <QApplication>
#include <QCommandLineParser>
#include <iostream>

#include "app/App.h"
#include "app/ApplicationControl.h"
#include "app/ApplicationController.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/process/ProgramFiles.h"
#include "platform/linux/process/SignalBlock.h"
#include "platform/linuxdesktop/UpdaterProcess.h"
#include "platform/linuxdesktop/session/ControlService.h"
#include "platform/linuxdesktop/session/SessionBus.h"
#include "platform/linuxdesktop/session/SessionEvents.h"
#include "platform/qt/JsonBundleInformation.h"
#include "platform/qt/QtActivationPolicy.h"
#include "platform/qt/QtConfigurationWindow.h"
#include "platform/qt/QtMainThread.h"
#include "platform/qt/QtTermination.h"
#include "ui/StatusWindow.h"

namespace kinesta {
namespace {

/// Until there is one.
class NoStatusItem final : public StatusItem {
  public:
    void create(Handlers /*handlers*/) override {}
    void setState(bool /*isEnabled*/, const std::string& /*accessibilityLabel*/) override {}
    void setToolTip(const std::string& /*toolTip*/) override {}
    void setMenu(const StatusMenu& /*menu*/) override {}
    void openMenu() override {}
};

}  // namespace
}  // namespace kinesta

int main(int argc, char** argv) {
    using namespace kinesta;
    blockProgramSignals();  // before Qt starts threads
    QApplication::setApplicationName("Kinesta");
    QApplication::setDesktopFileName("com.orvane.kinesta");
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    QCommandLineParser options;
    const QCommandLineOption background("background");
    const QCommandLineOption trackpad("trackpad", {}, "PATH");
    options.addOptions({background, trackpad});
    options.process(application);
    const bool isInBackground = options.isSet(background);

    QtMainThread mainLoop;
    LinuxDesktop desktop(mainLoop, LinuxDesktop::Places::current());
    const auto tell = [](const std::string& problem) { std::cerr << problem << std::endl; };
    std::function<void()> reload;
    desktop.surviveClosedPipes();
    desktop.catchSignals({ProgramSignal::end, ProgramSignal::reload}, [&](ProgramSignal signal) {
        if (signal == ProgramSignal::reload)
            reload();
        else
            mainLoop.quit();
    });
    const auto claim =
        desktop.claimApplication(isInBackground ? ApplicationOpening::inBackground : ApplicationOpening::withWindow);
    if (!claim) {
        tell(claim.error().message);
        return 1;
    }
    if (!*claim)
        return 0;  // the other application has shown its window
    if (options.isSet(trackpad))
        desktop.useStream(options.value(trackpad).toStdString());

    App app(desktop, tell);
    reload = [&] {
        if (desktop.reloadDefaults())
            app.reload();
    };
    desktop.watchDefaults(reload);
    const ProgramFiles files = ProgramFiles::ofThisProcess();
    const JsonBundleInformation bundle(files.prefix / "share" / "kinesta" / "bundle.json");
    LaunchAtLoginManager login(desktop.loginItem());
    SoftwareUpdateController updates(bundle, [&](const UpdateConfiguration&) {
        return std::make_unique<UpdaterProcess>(UpdaterProcess::Environment{
            mainLoop, desktop.clock(), desktop.defaults(), files.application().parent_path() / "kinesta-updater",
            (files.prefix / "share" / "kinesta" / "bundle.json").string()});
    });
    const ApplicationEvents events;
    QtTermination termination(mainLoop);
    QtActivationPolicy policy;
    NoStatusItem statusItem;
    std::optional<ApplicationController> controller;
    QtConfigurationWindow window(
        events, [&] { return std::make_unique<StatusWindow>(*controller, app.recognition().service()); });
    controller.emplace(
        ApplicationPorts{mainLoop, desktop.defaults(), bundle, events, statusItem, window, policy, termination});
    controller->configureWindowOpening([&] { window.open(); });
    controller->configureRuntime(app.store(), app.recognition().service(), login, updates);
    controller->applicationWillFinishLaunching();
    ApplicationControl control({.store = app.store(),
                                .service = app.recognition().service(),
                                .statusText = [&] { return controller->statusLine(); },
                                .isWindowVisible = [&] { return controller->isWindowShown(); },
                                .isTestActive = [] { return false; },
                                .tray = [] { return TrayKind::none; },
                                .show = [&] { controller->showConfigurationWindow(); },
                                .hide = [&] { controller->hideConfigurationWindow(); },
                                .toggle = [&] { controller->toggleConfigurationWindow(); },
                                .reload = reload,
                                .quit = [&] { controller->quit(); }});
    controller->onChange = [&] { control.refresh(); };
    const ControlService service(sessionBus(), control, tell);
    const SessionEvents session(events);
    controller->applicationDidFinishLaunching(isInBackground ? ApplicationController::LaunchKind::inBackground
                                                             : ApplicationController::LaunchKind::byPerson);
    app.start();
    mainLoop.run();
    controller->onChange = {};  // the window changes once more as it goes, after the control
    return 0;
}
