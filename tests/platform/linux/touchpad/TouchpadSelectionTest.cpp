#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
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
    const std::vector<Case> cases{
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
    };
    for (const Case& one : cases) {
        std::vector<TouchpadCandidate> candidates = one.candidates;
        for (int order = 0; order < 2; ++order) {
            const TouchpadCandidate* chosen = chooseTouchpad(candidates, one.wanted, one.current);
            EXPECT_EQ(chosen ? chosen->inputName : "none", one.expected) << one.wanted << " after " << one.current;
            std::reverse(candidates.begin(), candidates.end());
        }
    }
}

/// A /dev/input and a /sys/class/input to be filled.
class TouchpadScanning : public ::testing::Test {
  protected:
    static constexpr const char* kPadKeys = "e520 10000 0 0 0 0";  // as an I2C pad's: finger tools and BTN_LEFT
    static constexpr const char* kPadAxes = "2e0800000000003";

    struct Device {
        std::string keys = kPadKeys;
        std::string axes = kPadAxes;
        std::string relativeAxes = "0";
        std::string properties = "5";
        std::string bus = "0018";
        bool hasNode = true;
    };

    void add(int number, const Device& device) {
        const auto input = m_folder.path() / "devices" / ("input" + std::to_string(number + 10));
        const auto event = m_folder.path() / "class" / ("event" + std::to_string(number));
        std::filesystem::create_directories(input / "capabilities");
        std::filesystem::create_directories(input / "id");
        std::filesystem::create_directories(event);
        std::filesystem::create_directories(m_folder.path() / "dev");
        std::filesystem::create_directory_symlink(input, event / "device");
        std::ofstream(input / "name") << "Pad " << number << '\n';
        std::ofstream(input / "capabilities" / "key") << device.keys << '\n';
        std::ofstream(input / "capabilities" / "abs") << device.axes << '\n';
        std::ofstream(input / "capabilities" / "rel") << device.relativeAxes << '\n';
        std::ofstream(input / "properties") << device.properties << '\n';
        std::ofstream(input / "id" / "bustype") << device.bus << '\n';
        if (device.hasNode)
            std::ofstream(m_folder.path() / "dev" / ("event" + std::to_string(number))) << "";
    }

    TouchpadScanner scanner() const {
        return TouchpadScanner((m_folder.path() / "dev").string(), (m_folder.path() / "class").string(),
                               [this](const std::string& eventName, const char* key) {
                                   const auto value = m_properties.find(eventName + ' ' + key);
                                   return value == m_properties.end() ? std::string() : value->second;
                               });
    }

    /// "input10 Pad 0", with "*" if built in.
    std::set<std::string> scan() const {
        std::set<std::string> found;
        for (const TouchpadCandidate& pad : scanner().scan())
            found.insert(pad.inputName + ' ' + pad.name + (pad.isBuiltIn ? "*" : ""));
        return found;
    }

    std::map<std::string, std::string> m_properties;
    TemporaryFolder m_folder;
};

TEST_F(TouchpadScanning, TellsTouchpadsFromOtherDevices) {
    EXPECT_TRUE(scan().empty());  // nor is there any folder
    add(0, {});
    add(1, {.keys = "402000007 ff9f207ac14057ff febeffdfffefffff fffffffffffffffe", .axes = "0"});  // a keyboard
    add(2, {.properties = "2"});                                                                    // a touch screen
    add(3, {.keys = "1c23 10000 0 0 0 0"});                                                         // a pen tablet
    add(4, {.axes = "3"});       // a pad without multitouch
    add(5, {.axes = "1"});       // half a pad
    add(6, {.hasNode = false});  // withheld from this container
    add(7, {.keys = "", .axes = "", .properties = "", .bus = ""});
    add(8, {.keys = "no number"});
    EXPECT_EQ(scan(), (std::set<std::string>{"input10 Pad 0*", "input14 Pad 4*"}));
}

TEST_F(TouchpadScanning, TellsBuiltInPadsByUdevElseByTheBus) {
    int number = 0;
    for (const char* bus : {"0011", "0018", "0003", "0005", "0006"})
        add(number++, {.bus = bus});
    EXPECT_EQ(scan(), (std::set<std::string>{"input10 Pad 0*", "input11 Pad 1*", "input12 Pad 2", "input13 Pad 3",
                                             "input14 Pad 4"}));
    m_properties = {{"event0 ID_INPUT_TOUCHPAD_INTEGRATION", "external"},
                    {"event1 LIBINPUT_IGNORE_DEVICE", "1"},
                    {"event2 ID_INPUT_TOUCHPAD_INTEGRATION", "internal"},
                    {"event3 LIBINPUT_IGNORE_DEVICE", "0"}};
    EXPECT_EQ(scan(), (std::set<std::string>{"input10 Pad 0", "input12 Pad 2*", "input13 Pad 3", "input14 Pad 4"}));
}

TEST_F(TouchpadScanning, KnowsAMouseOfItsOwnCable) {
    const auto addMouse = [this](int number, const char* relativeAxes, const char* bus, const char* properties = "0",
                                 const char* keys = "70000 0 0 0 0") {
        add(number, {.keys = keys, .axes = "", .relativeAxes = relativeAxes, .properties = properties, .bus = bus});
    };
    add(0, {});
    addMouse(1, "3", "0003", "21");      // a pointing stick
    addMouse(2, "903", "0006");          // made by software
    addMouse(3, "3", "0003", "0", "0");  // no button
    addMouse(4, "100", "0003");          // a wheel alone
    EXPECT_FALSE(scanner().hasExternalMouse());
    addMouse(5, "903", "0005");
    EXPECT_TRUE(scanner().hasExternalMouse());
}

}  // namespace
}  // namespace kinesta
