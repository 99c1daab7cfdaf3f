#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "support/RunLoop.h"
#include "support/TemporaryFolder.h"

namespace kinesta::testing {

struct Ran {
    int status = -1;
    std::string out;
    std::string err;
};

/// A desktop whose settings are in `folder`.
std::unique_ptr<Desktop> desktopIn(const std::filesystem::path& folder, MainLoop& mainLoop);

/// Runs subcommands as main() does, with settings and files in a temporary folder.
class CommandRunner {
  public:
    TemporaryFolder folder;

    Ran run(std::vector<std::string> arguments, const std::string& input = {}) const {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const Console console{.in = in, .out = out, .err = err};
        RunLoop mainLoop;
        const auto desktop = desktopIn(folder.path() / "settings", mainLoop);
        arguments.insert(arguments.begin(), "kinesta");
        std::vector<const char*> pointers;
        for (const std::string& argument : arguments)
            pointers.push_back(argument.c_str());
        const ExitStatus status = runCommandLine(console, *desktop, static_cast<int>(pointers.size()), pointers.data());
        return {static_cast<int>(status), out.str(), err.str()};
    }
};

/// A bundled recording by its file name.
inline std::string recording(const std::string& name) {
    return std::string(KINESTA_SOURCE_DIR) + "/examples/recordings/" + name;
}

/// A rule that is on, as JSON: the last digits of its identifier, its fields and those of its action.
inline std::string rule(const std::string& last, const std::string& fields, const std::string& action) {
    return R"({"id":"00000000-0000-4000-8000-0000000000)" + last + R"(","isEnabled":true,)" + fields +
           R"(,"action":{"modifiers":0,"value":"",)" + action + "}}";
}

inline const std::string kTap =
    rule("0a", R"("name":"Paste","fingerCount":2,"gesture":"doubleTap")",
         R"("kind":"keyboardShortcut","keyCode":9,"modifiers":1,"customCueLabel":" Insert ")");
inline const std::string kIncomplete = rule("0b", R"("name":"","gesture":"tipTapLeft")", R"("kind":"openURL")");

}  // namespace kinesta::testing
