#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>

#include "platform/linux/touchpad/TouchpadCandidate.h"
#include "platform/linux/touchpad/TouchpadScanner.h"
#include "support/TableRows.h"
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

// Devices as sysfs shows them: how each differs from an I2C pad with finger tools and BTN_LEFT, with "," for a blank.
TEST(TouchpadScanning, TellsTouchpadsAndMiceFromOtherDevices) {
    const TemporaryFolder folder;
    const TouchpadScanner scanner(folder / "dev", folder / "class", [&](const std::string& event, const char* key) {
        const std::string file = folder / ("class/" + event + "/device/" + key);
        return std::filesystem::exists(file) ? readText(file) : "";
    });
    EXPECT_TRUE(scanner.scan().empty()) << "without any folder";
    int number = 0;
    for (const auto& row : tableRows(R"(
a pad: => built-in
a keyboard: capabilities/key=402000007,ff9f207ac14057ff,febeffdfffefffff,fffffffffffffffe capabilities/abs=0 => none
a touch screen: properties=2 => none
a pen tablet: capabilities/key=1c23,10000,0,0,0,0 => none
no multitouch: capabilities/abs=3 => built-in
one axis: capabilities/abs=1 => none
hidden from this container: hidden=1 => none
nothing known: capabilities/key= capabilities/abs= properties= id/bustype= => none
no number: capabilities/key=no,number => none
PS/2: id/bustype=0011 => built-in
USB: id/bustype=0003 => external
Bluetooth: id/bustype=0005 => external
virtual: id/bustype=0006 => external
udev knows better: id/bustype=0011 ID_INPUT_TOUCHPAD_INTEGRATION=external => external
udev knows better: id/bustype=0003 ID_INPUT_TOUCHPAD_INTEGRATION=internal => built-in
to be ignored: LIBINPUT_IGNORE_DEVICE=1 => none
not to be ignored: LIBINPUT_IGNORE_DEVICE=0 => built-in
a pointing stick: mouse=1 properties=21 => none
a mouse made by software: mouse=1 id/bustype=0006 => none
without a button: mouse=1 capabilities/key=0 => none
a wheel alone: mouse=1 capabilities/rel=100 => none
a mouse: mouse=1 id/bustype=0005 => none, and a mouse is there
)")) {
        std::map<std::string, std::string> files{{"name", "Pad"},
                                                 {"capabilities/key", "e520 10000 0 0 0 0"},
                                                 {"capabilities/abs", "2e0800000000003"},
                                                 {"capabilities/rel", "0"},
                                                 {"properties", "5"},
                                                 {"id/bustype", "0018"}};
        std::istringstream changes(row[0].substr(row[0].find(':') + 1));
        for (std::string word; changes >> word;) {
            if (word == "mouse=1")
                files = {{"capabilities/key", "70000 0 0 0 0"}, {"capabilities/rel", "903"}, {"id/bustype", "0003"}};
            std::replace(word.begin(), word.end(), ',', ' ');
            files[word.substr(0, word.find('='))] = word.substr(word.find('=') + 1);
        }
        const std::string event = "event" + std::to_string(number), input = "input" + std::to_string(++number);
        for (const std::string& path : {input + "/capabilities", input + "/id", "class/" + event, std::string("dev")})
            std::filesystem::create_directories(folder / path);
        std::filesystem::create_directory_symlink(folder / input, folder / ("class/" + event + "/device"));
        for (const auto& [name, content] : files)
            folder.write(input + "/" + name, content);
        if (!files.contains("hidden"))
            folder.write("dev/" + event, "");
        std::string found = "none";
        for (const TouchpadCandidate& pad : scanner.scan())
            if (pad.inputName == input)
                found = pad.isBuiltIn ? "built-in" : "external";
        EXPECT_EQ(found + (scanner.hasExternalMouse() ? ", and a mouse is there" : ""), row[1]) << row[0];
    }
}

}  // namespace
}  // namespace kinesta
