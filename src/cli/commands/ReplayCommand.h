#pragma once

#include <filesystem>
#include <string>

#include "cli/terminal/Console.h"
#include "rules/RuleSelection.h"

namespace kinesta {

enum class Pace { asFastAsPossible, realTime };

/// Whether the rules that take the gestures are only told, or their actions run too.
enum class Performing { onlyTold, performed };

struct ReplayRequest {
    std::string recording;
    /// An evemu device description, or empty.
    std::string device;
    /// A rule file, or empty for the stored rules.
    std::string rules;
    /// With a rule file: whether its shell-command rules count.
    ShellCommands shellCommands = ShellCommands::forbidden;
    OutputForm form = OutputForm::forPeople;
    Pace pace = Pace::asFastAsPossible;
    Performing performing = Performing::onlyTold;
};

/// `kinesta replay`: what a recording is recognized as, and which rules would take it.
ExitStatus replay(const Console& console, const std::filesystem::path& defaults, const ReplayRequest& request);

/// `kinesta convert`: rewrites a recording of any known format as Kinesta's own, to a file or to the output for "-".
ExitStatus convert(const Console& console, const std::string& recording, const std::string& device,
                   const std::string& output);

}  // namespace kinesta
