#include <QApplication>
#include <QStandardPaths>
#include <QSysInfo>
#include <iostream>

#include <gnu/libc-version.h>

#include "app/App.h"
#include "app/ApplicationController.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linuxdesktop/UpdaterProcess.h"
#include "platform/qt/JsonBundleInformation.h"
#include "platform/qt/QtActivationPolicy.h"
#include "platform/qt/QtConfigurationWindow.h"
#include "platform/qt/QtMainThread.h"
#include "platform/qt/QtTermination.h"
#include "ui/StatusWindow.h"

namespace kinesta {
struct S final : StatusItem, LoginItemService {
    void create(Handlers) override {}
    void setState(bool, const std::string&) override {}
    void setToolTip(const std::string&) override {}
    void setMenu(const StatusMenu&) override {}
    void openMenu() override {}
    LoginItemStatus status() const override { return LoginItemStatus::notRegistered; }
    Outcome registerItem() override { return success(); }
    Outcome unregisterItem() override { return success(); }
    Outcome openSettings() override { return success(); }
};
}  // namespace kinesta

int main(int argc, char** argv) {
    using namespace kinesta;
    QApplication::setApplicationName("Kinesta");
    QApplication::setDesktopFileName("com.orvane.kinesta");
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    QtMainThread mainLoop;
    LinuxDesktop desktop(mainLoop, LinuxDesktop::Places::current());
    desktop.surviveClosedPipes();
    desktop.catchSignals({ProgramSignal::end}, [&mainLoop](ProgramSignal /*signal*/) { mainLoop.quit(); });
    App app(desktop, [](const std::string& problem) { std::cerr << problem << std::endl; });
    JsonBundleInformation bundle(argv[1]);
    S s;
    LaunchAtLoginManager login(s);
    const auto folder = QCoreApplication::applicationDirPath().toStdString();
    SoftwareUpdateController updates(bundle, [&](const UpdateConfiguration&) {
        return std::make_unique<UpdaterProcess>(UpdaterProcess::Environment{
            mainLoop, desktop.clock(), desktop.defaults(), folder + "/kinesta-updater", argv[1]});
    });
    ApplicationEvents events;
    QtTermination termination(mainLoop);
    QtActivationPolicy policy;
    std::optional<ApplicationController> controller;
    QtConfigurationWindow window(
        events, [&] { return std::make_unique<StatusWindow>(*controller, app.recognition().service()); });
    controller.emplace(ApplicationPorts{mainLoop, desktop.defaults(), bundle, events, s, window, policy, termination});
    controller->configureWindowOpening([&] { window.open(); });
    controller->configureRuntime(app.store(), app.recognition().service(), login, updates);
    controller->applicationWillFinishLaunching();
    controller->applicationDidFinishLaunching();
    app.start();
    if (argc > 2)
        updates.checkForUpdates();
    mainLoop.run();
    return 0;
}
