#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "platform/linux/touchpad/TouchpadCandidate.h"
#include "platform/linux/touchpad/TouchpadScanner.h"
#include "support/TemporaryFolder.h"

namespace kinesta {
namespace {

TEST(TouchpadSelection, TakesTheNamedElseABuiltInElseTheFirst) {
    const TouchpadCandidate first{"/nowhere/event3", "input9", "Pad", false};
    const TouchpadCandidate second{"/nowhere/event2", "input10", "Pad", false};
    const TouchpadCandidate builtIn{"/nowhere/event4", "input11", "Inner", true};
    const TouchpadCandidate otherBuiltIn{"/nowhere/event5", "input2", "Inner", true};
    struct Case {
        std::vector<TouchpadCandidate> candidates;
        std::string wanted, current, expected;
    };
    for (Case& one : std::vector<Case>{
             {{}, "", "", "none"},
             {{second, first}, "", "", "input9"},
             {{first, second}, "", "input10", "input10"},  // the one that is read stays
             {{first, builtIn}, "", "input9", "input11"},  // but yields to a built-in one
             {{builtIn, otherBuiltIn, first}, "", "", "input2"},
             {{builtIn, otherBuiltIn, first}, "", "input11", "input11"},
             {{builtIn, second, first}, "Pad", "", "input9"},
             {{builtIn, second, first}, "/nowhere/event2", "", "input10"},
             {{builtIn, first}, "/nowhere/event9", "input9", "none"},
             {{builtIn, first}, "pad", "", "none"},
         })
        for (int order = 0; order < 2; ++order) {
            const TouchpadCandidate* chosen = chooseTouchpad(one.candidates, one.wanted, one.current);
            EXPECT_EQ(chosen ? chosen->inputName : "none", one.expected) << one.wanted << " after " << one.current;
            std::reverse(one.candidates.begin(), one.candidates.end());
        }
}

/// Empty folders for /dev/input and /sys/class/input, which a test fills.
struct TouchpadScanning : ::testing::Test {
    /// As sysfs shows it; at first an I2C pad with finger tools and BTN_LEFT.
    struct Device {
        std::string keys = "e520 10000 0 0 0 0";
        std::string axes = "2e0800000000003";
        std::string relativeAxes = "0";
        std::string properties = "5";
        std::string bus = "0018";
    };

    void add(int number, const Device& device) {
        const std::string input = "devices/input" + std::to_string(number + 10) + "/";
        const std::string event = "event" + std::to_string(number);
        for (const std::string& path : {input + "capabilities", input + "id", "class/" + event, std::string("dev")})
            std::filesystem::create_directories(folder / path);
        std::filesystem::create_directory_symlink(folder / input, folder / ("class/" + event + "/device"));
        for (const auto& [name, content] : {std::pair<const char*, std::string>{"name", "Pad"},
                                            {"capabilities/key", device.keys},
                                            {"capabilities/abs", device.axes},
                                            {"capabilities/rel", device.relativeAxes},
                                            {"properties", device.properties},
                                            {"id/bustype", device.bus}})
            folder.write(input + name, content + "\n");
        folder.write("dev/" + event, "");
    }

    /// The numbers of the pads, negative for those that are not built in.
    std::set<int> scan() const {
        std::set<int> found;
        for (const TouchpadCandidate& pad : scanner.scan())
            found.insert(std::stoi(pad.inputName.substr(5)) * (pad.isBuiltIn ? 1 : -1));
        return found;
    }

    TemporaryFolder folder;
    std::map<std::string, std::string> properties;
    TouchpadScanner scanner{folder / "dev", folder / "class", [this](const std::string& eventName, const char* key) {
                                const auto value = properties.find(eventName + ' ' + key);
                                return value == properties.end() ? std::string() : value->second;
                            }};
};

TEST_F(TouchpadScanning, DistinguishesTouchpadsFromOtherDevices) {
    EXPECT_EQ(scan(), std::set<int>{}) << "without any folder";
    add(0, {});
    add(1, {.keys = "402000007 ff9f207ac14057ff febeffdfffefffff fffffffffffffffe", .axes = "0"});  // a keyboard
    add(2, {.properties = "2"});                                                                    // a touch screen
    add(3, {.keys = "1c23 10000 0 0 0 0"});                                                         // a pen tablet
    add(4, {.axes = "3"});                                                                          // no multitouch
    add(5, {.axes = "1"});
    add(6, {});
    std::filesystem::remove(folder / "dev/event6");  // hidden from this container
    add(7, {.keys = "", .axes = "", .properties = "", .bus = ""});
    add(8, {.keys = "no number"});
    EXPECT_EQ(scan(), (std::set<int>{10, 14}));
}

TEST_F(TouchpadScanning, KnowsBuiltInPadsByUdevElseByTheBus) {
    int number = 0;
    for (const char* bus : {"0011", "0018", "0003", "0005", "0006"})
        add(number++, {.bus = bus});
    EXPECT_EQ(scan(), (std::set<int>{10, 11, -12, -13, -14}));
    properties = {{"event0 ID_INPUT_TOUCHPAD_INTEGRATION", "external"},
                  {"event1 LIBINPUT_IGNORE_DEVICE", "1"},
                  {"event2 ID_INPUT_TOUCHPAD_INTEGRATION", "internal"},
                  {"event3 LIBINPUT_IGNORE_DEVICE", "0"}};
    EXPECT_EQ(scan(), (std::set<int>{-10, 12, -13, -14}));
}

TEST_F(TouchpadScanning, KnowsAMouseOfItsOwnCable) {
    int number = 0;
    const auto addMouse = [&](const char* relativeAxes, const char* bus, const char* property = "0",
                              const char* keys = "70000 0 0 0 0") {
        add(number++, {.keys = keys, .axes = "", .relativeAxes = relativeAxes, .properties = property, .bus = bus});
    };
    addMouse("3", "0003", "21");      // a pointing stick
    addMouse("903", "0006");          // made by software
    addMouse("3", "0003", "0", "0");  // no button
    addMouse("100", "0003");          // a wheel alone
    EXPECT_FALSE(scanner.hasExternalMouse());
    addMouse("903", "0005");
    EXPECT_TRUE(scanner.hasExternalMouse());
}

}  // namespace
}  // namespace kinesta
