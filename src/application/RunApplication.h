#pragma once

#include <QApplication>
#include <QCommandLineParser>
#include <iostream>
#include <optional>
#include <string>

#include "app/ApplicationOpening.h"
#include "app/Desktop.h"
#include "platform/qt/QtMainThread.h"

namespace kinesta {

struct LaunchOptions {
    /// At login, or by another program: no window.
    bool isInBackground = false;
    /// A recording or a FIFO in place of the trackpad.
    std::optional<std::string> trackpad;
};

/// Ends the process if the arguments are wrong.
inline LaunchOptions launchOptions(const QApplication& application) {
    QCommandLineParser parser;
    const QCommandLineOption background(QStringLiteral("background"));
    const QCommandLineOption trackpad(QStringLiteral("trackpad"), {}, QStringLiteral("PATH"));
    parser.addOptions({background, trackpad});
    parser.process(application);
    return {parser.isSet(background),
            parser.isSet(trackpad) ? std::optional(parser.value(trackpad).toStdString()) : std::nullopt};
}

/// Claims this desktop and runs the application on it: `Application(mainLoop, desktop, options)` with run() and
/// reload(). Returns the status for main().
template <typename Application, typename PlatformDesktop>
int runApplication(QtMainThread& mainLoop, PlatformDesktop& desktop, const LaunchOptions& options) {
    desktop.surviveClosedPipes();
    Application* running = nullptr;
    desktop.catchSignals({ProgramSignal::end, ProgramSignal::reload}, [&](ProgramSignal signal) {
        if (signal == ProgramSignal::end)
            mainLoop.quit();
        else if (running)
            running->reload();
    });
    const auto claim = desktop.claimApplication(options.isInBackground ? ApplicationOpening::inBackground
                                                                       : ApplicationOpening::withWindow);
    if (!claim) {
        std::cerr << claim.error().message << '\n';
        return 1;
    }
    if (!*claim)
        return 0;  // the other application has shown its window
    if (options.trackpad)
        desktop.useStream(*options.trackpad);
    Application application(mainLoop, desktop, options);
    running = &application;
    application.run();
    running = nullptr;
    return 0;
}

}  // namespace kinesta
