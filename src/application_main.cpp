#include <QApplication>
#include <QWidget>
#include <iostream>

#include "app/App.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/qt/QtMainThread.h"

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
    app.start();
    mainLoop.run();
    return 0;
}
