#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>

#include <ServiceManagement/ServiceManagement.h>

#include "MacTest.h"
#include "platform/macos/login/MacLoginItemService.h"
#include "platform/macos/workspace/MacHomeFolders.h"
#include "platform/macos/workspace/MacInstalledApplications.h"
#include "platform/macos/workspace/MacProcessLauncher.h"
#include "platform/macos/workspace/MacSystemVersion.h"
#include "platform/macos/workspace/MacWorkspace.h"

namespace kinesta {
namespace {

namespace fs = std::filesystem;

class WorkspaceOnTheMac : public MacTest {
  protected:
    ~WorkspaceOnTheMac() override { fakes::forgetValues(); }
};

TEST_F(WorkspaceOnTheMac, OpensPagesFilesAndApplications) {
    @autoreleasepool {
        HandOvers handOvers;
        MacWorkspace workspace(handOvers);
        for (const char* address : {"HTTPS://a.example/?q=%20", "http://b.example", "file:///etc", "mailto:a@b",
                                    "https://a.example/with blank", "\xff", ""})
            workspace.openURL(address);
        workspace.openFile("/a/./b/../c");
        workspace.openFile("\xff");
        workspace.launchApplication("/a/../b.app", {"two words", "$HOME"});
        workspace.launchApplication("/b.app", {"\xff"});
        EXPECT_EQ(
            objc::takeCalls(),
            (Calls{"NSURL URLWithString:\"HTTPS://a.example/?q=%20\"", "NSWorkspace#1 openURL:HTTPS://a.example/?q=%20",
                   "NSURL URLWithString:\"http://b.example\"", "NSWorkspace#1 openURL:http://b.example",
                   "NSURL URLWithString:\"file:///etc\"", "NSURL URLWithString:\"mailto:a@b\"",
                   "NSURL URLWithString:\"https://a.example/with blank\"", "NSURL URLWithString:\"\"",
                   "NSURL URLWithString:\"\"", "NSURL fileURLWithPath:\"/a/./b/../c\"", "NSWorkspace#1 openURL:/a/c",
                   "NSWorkspaceOpenConfiguration#1 setArguments:[\"two words\", \"$HOME\"]",
                   "NSURL fileURLWithPath:\"/a/../b.app\"",
                   "NSWorkspace#1 openApplicationAtURL:/a/../b.app configuration:NSWorkspaceOpenConfiguration#1 "
                   "completionHandler:block"}));
        EXPECT_TRUE(handOvers.wait(std::chrono::milliseconds(0)));
        EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
        fakes::bringToFront(77);
        EXPECT_EQ(workspace.frontmostApplication(), 77);
        fakes::bringToFront(-1);
        EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
        EXPECT_EQ(workspace.ownProcessIdentifier(), 42);
        EXPECT_EQ(MacSystemVersion().majorVersion(), 15);
        const MacHomeFolders homes;
        EXPECT_EQ(homes.homeFolder(""), "/Users/ada");
        EXPECT_EQ(homes.homeFolder("bob"), "/Users/bob");
        EXPECT_EQ(homes.homeFolder("nobody"), std::nullopt);
    }
}

TEST_F(WorkspaceOnTheMac, StartsProgramsFromTheGlobalQueue) {
    @autoreleasepool {
        std::vector<std::string> problems;
        HandOvers handOvers;
        {
            MacProcessLauncher launcher([&](const std::string& problem) { problems.push_back(problem); }, handOvers);
            launcher.launch("/bin/zsh", {"-lc", " echo  'two words' "});
            launcher.launch("/missing/program", {});
        }
        EXPECT_EQ(objc::takeCalls(), (Calls{"dispatch_get_global_queue 25", "dispatch_async FakeQueue#1",
                                            "dispatch_get_global_queue 25", "dispatch_async FakeQueue#1"}));
        EXPECT_FALSE(handOvers.wait(std::chrono::milliseconds(0)));
        fakes::drainMainQueue();
        EXPECT_TRUE(handOvers.wait(std::chrono::milliseconds(0)));
        const Calls calls = objc::takeCalls();
        EXPECT_EQ(Calls(calls.begin(), calls.begin() + 4),
                  (Calls{"NSURL fileURLWithPath:\"/bin/zsh\"", "NSTask#1 setExecutableURL:/bin/zsh",
                         "NSTask#1 setArguments:[\"-lc\", \" echo  'two words' \"]",
                         "NSTask#1 launchAndReturnError:pointer"}));
        EXPECT_EQ(problems, Calls{"/missing/program could not be started: no such file."});
    }
}

TEST_F(WorkspaceOnTheMac, ListsApplicationsByTheirNames) {
    @autoreleasepool {
        const fs::path folder = fs::temp_directory_path() / ("kinesta-applications-" + std::to_string(::getpid()));
        for (const char* application : {"Zebra.app", "Calendar.app/Contents/Resources", "Makers/Alpha.app",
                                        "Makers/Deeper/Hidden.app", "Plain", "Outer.app/Contents/Inner.app"})
            fs::create_directories(folder / application);
        std::ofstream(folder / "File.app") << "no folder";
        const fs::path calendar = folder / "Calendar.app";
        const fs::path icon = calendar / "Contents/Resources/Icon.icns";
        std::ofstream(icon) << "icon";
        fakes::setInformation([NSString stringWithUTF8String:calendar.c_str()], @"CFBundleIconFile", @"Icon");
        fakes::setInformation([NSString stringWithUTF8String:(folder / "Zebra.app").c_str()], @"CFBundleIconFile",
                              @"Missing.icns");
        fakes::setInformation([NSString stringWithUTF8String:(folder / "Outer.app").c_str()], @"CFBundleIconFile", @7);
        const MacInstalledApplications applications({folder, folder / "not there"});
        const InstalledApplication inCalendar{"Kalender", calendar.string(), icon.string()};
        EXPECT_EQ(applications.all(), (std::vector<InstalledApplication>{{"Alpha", folder / "Makers/Alpha.app", ""},
                                                                         inCalendar,
                                                                         {"Outer", folder / "Outer.app", ""},
                                                                         {"Zebra", folder / "Zebra.app", ""}}));
        EXPECT_EQ(applications.at(calendar.string() + "/"), inCalendar);
        EXPECT_EQ(applications.at((folder / "File.app").string()), std::nullopt);
        EXPECT_EQ(applications.at((folder / "Plain").string()), std::nullopt);
        fs::remove_all(folder);
    }
}

class LoginItemOnTheMac : public MacTest {
  protected:
    /// What comes of a call after which the system is in `status`, with an error or null.
    static std::string outcome(Outcome (MacLoginItemService::*call)(), SMAppServiceStatus status, const char* error) {
        fakes::loginItem = {status, error};
        MacLoginItemService service;
        const Outcome result = (service.*call)();
        return result ? "done" : result.error().message;
    }
};

TEST_F(LoginItemOnTheMac, TrustsTheStatusMoreThanTheError) {
    @autoreleasepool {
        const auto add = &MacLoginItemService::registerItem;
        const auto remove = &MacLoginItemService::unregisterItem;
        EXPECT_EQ(outcome(add, SMAppServiceStatusEnabled, nullptr), "done");
        EXPECT_EQ(outcome(add, SMAppServiceStatusRequiresApproval, "denied"), "done");
        EXPECT_EQ(outcome(add, SMAppServiceStatusEnabled, "denied"), "done");
        EXPECT_EQ(outcome(add, SMAppServiceStatusNotFound, "denied"), "denied");
        EXPECT_EQ(outcome(remove, SMAppServiceStatusNotRegistered, "denied"), "done");
        EXPECT_EQ(outcome(remove, SMAppServiceStatusEnabled, "denied"), "denied");
        EXPECT_EQ(outcome(remove, SMAppServiceStatusRequiresApproval, "denied"), "denied");
        EXPECT_EQ(outcome(&MacLoginItemService::openSettings, SMAppServiceStatusEnabled, nullptr), "done");
        const Calls calls = objc::takeCalls();
        EXPECT_EQ(calls.front(), "SMAppService#1 registerAndReturnError:pointer");
        EXPECT_EQ(calls.back(), "SMAppService openSystemSettingsLoginItems");
        fakes::loginItem.status = SMAppServiceStatusRequiresApproval;
        EXPECT_EQ(MacLoginItemService().status(), LoginItemStatus::requiresApproval);
        fakes::loginItem.status = SMAppServiceStatusNotFound;
        EXPECT_EQ(MacLoginItemService().status(), LoginItemStatus::notRegistered);
    }
}

}  // namespace
}  // namespace kinesta
