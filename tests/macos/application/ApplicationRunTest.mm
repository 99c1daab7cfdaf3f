#include <QApplication>
#include <QTimer>
#include <chrono>
#include <fstream>
#include <functional>

#include "CFakes.h"
#include "MacTest.h"
#include "support/TemporaryFolder.h"

/// The application's own, under another name.
int kinestaMain(int argc, char** argv);

namespace kinesta {
namespace {

using std::chrono::steady_clock;

/// What the person does, a step each turn of the main loop until it returns true.
std::function<bool()> person;

/// Qt calls this when the application has been made.
void letThePersonAct() {
    auto* const turn = new QTimer(qApp);
    const auto deadline = steady_clock::now() + std::chrono::seconds(20);
    QObject::connect(turn, &QTimer::timeout, qApp, [turn, deadline] {
        @autoreleasepool {
            fakes::drainMainQueue();
            fakes::uptime = std::chrono::duration<double>(steady_clock::now().time_since_epoch()).count();
            if (steady_clock::now() > deadline) {
                ADD_FAILURE() << "what the person waits for does not come";
                QCoreApplication::quit();
            } else if (person()) {
                turn->stop();
            }
        }
    });
    turn->start(1);
}
Q_COREAPP_STARTUP_FUNCTION(letThePersonAct)

using ApplicationOnTheMac = MacTest;

TEST_F(ApplicationOnTheMac, PerformsAGestureAndQuitsFromItsMenu) {
    const TemporaryFolder home;
    fakes::home = home.path().string();
    fakes::setTrusted(true);
    Calls done;
    std::vector<std::string> menu;
    person = [&] {
        for (const std::string& call : objc::takeCalls())
            if (call.starts_with("CGEventPost") || call.find(" orderFrontRegardless") != std::string::npos)
                done.push_back(call);
        if (done.size() < 3)
            return false;
        fakes::setCurrentEvent(fakes::event(NSEventTypeRightMouseUp));
        fakes::whileMenuIsOpen([&] {
            NSArray<NSMenuItem*>* const items = fakes::statusItem().menu.itemArray;
            for (NSMenuItem* each in items)
                menu.emplace_back(each.title.UTF8String);
            fakes::choose(items[items.count - 1]);
        });
        fakes::click(fakes::statusItem().button);
        return true;
    };
    const std::string tap = (home.path() / "tap.jsonl").string();
    std::ofstream(tap) << R"({"kinesta":"recording","version":1}
{"t":0.5,"touches":[[1,0.4,0.5],[2,0.5,0.5],[3,0.6,0.5]]}
{"t":0.6,"touches":[]}
)";
    std::string words[] = {"kinesta-application", "--background", "--trackpad", tap};
    char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
    @autoreleasepool {
        EXPECT_EQ(kinestaMain(4, arguments), 0);
    }
    EXPECT_EQ(done, (Calls{"NSPanel#1 orderFrontRegardless", "CGEventPost 0 CGEvent#2", "CGEventPost 0 CGEvent#3"}));
    EXPECT_EQ(menu, (Calls{"Gestures enabled", "Launch at Login", "Trackpad listening", "-", "Show Kinesta",
                           "Check for Updates…", "-", "Quit"}));
    fakes::setCurrentEvent(nil);
    fakes::endAnimations();
    fakes::drainMainQueue();
}

}  // namespace
}  // namespace kinesta
