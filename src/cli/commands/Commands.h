#pragma once

#include <string>
#include <vector>

#include "app/Desktop.h"
#include "cli/terminal/Console.h"
#include "rules/RuleSelection.h"

namespace kinesta {

// The subcommands of `kinesta`, one function each.

/// `kinesta` alone: turns this process into the graphical application. Returns only if that is not possible.
ExitStatus becomeApplication(const Console& console, Desktop& desktop, const std::vector<std::string>& arguments);

/// `kinesta ctl show` and its like: asks the running application, and returns when it has done so.
ExitStatus control(const Console& console, Desktop& desktop, ApplicationRequest request);

/// `kinesta ctl status`: what the running application does.
ExitStatus applicationStatus(const Console& console, Desktop& desktop, OutputForm form);

enum class LogLevel { gestures, everything };

/// `kinesta daemon`: recognition, rules and actions without any window, until SIGTERM or Ctrl-C. SIGHUP, and every
/// change of the settings file, reload rules and settings. Ends when the application starts. Logs one line for each
/// gesture: which rule ran, or why none did.
ExitStatus runDaemon(const Console& console, Desktop& desktop, LogLevel level);

/// `kinesta demo`: plays the bundled recordings in real time, with a picture of the pad on a terminal, else as
/// plain lines. Nothing is performed.
ExitStatus demo(const Console& console, Desktop& desktop);

/// `kinesta devices`: the touchpads of this machine, and which one is read.
ExitStatus listDevices(const Console& console, Desktop& desktop, OutputForm form);

/// `kinesta doctor`: what works on this machine and desktop, and what to do about the rest. badInput if anything is
/// missing that an enabled rule needs.
ExitStatus doctor(const Console& console, Desktop& desktop, OutputForm form);

/// `kinesta monitor`: what is recognized on the live pad, with a picture of it on a terminal; no action runs. Until
/// Ctrl-C.
ExitStatus monitor(const Console& console, Desktop& desktop);

/// `kinesta perform`: runs the action of one stored rule now, whether or not the rule is on. `rule` is its id or its
/// name. A slide's action is performed with one step upward.
ExitStatus perform(const Console& console, Desktop& desktop, const std::string& rule);

/// `kinesta record`: writes what the pad reports to a file, or to the output for "-", until Ctrl-C. The file is a valid
/// recording at any time; it replaces an older one when recording begins. `device` names the pad by path or name; empty
/// for the one that the settings name. The settings of recognition go into the header, so that a replay recognizes the
/// same gestures.
ExitStatus record(const Console& console, Desktop& desktop, const std::string& output, const std::string& device);

enum class Pace { asFastAsPossible, realTime };

/// Whether the matching rules are only shown, or their actions run too.
enum class Performing { onlyShown, performed };

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
    Performing performing = Performing::onlyShown;
};

/// `kinesta replay`: the gestures in a recording, and the rules that would run for them.
ExitStatus replay(const Console& console, Desktop& desktop, const ReplayRequest& request);

/// `kinesta convert`: rewrites a recording of any known format as Kinesta's own, to a file or to the output for "-".
ExitStatus convert(const Console& console, const std::string& recording, const std::string& device,
                   const std::string& output);

/// `kinesta rules check FILE`: whether a rule file decodes, and the state, clashes and warnings of each of its rules.
ExitStatus checkRules(const Console& console, const std::string& file, GestureSystem system, OutputForm form);

/// `kinesta rules list`: the same for the stored rules.
ExitStatus listRules(const Console& console, Desktop& desktop, GestureSystem system, OutputForm form);

/// `kinesta rules export FILE`: writes the stored rules to a file, or to the output for "-".
ExitStatus exportRules(const Console& console, Desktop& desktop, const std::string& file);

/// `kinesta rules import FILE`: replaces the stored rules by those of a file, if all of it is valid, and keeps a copy
/// of the previous list.
ExitStatus importRules(const Console& console, Desktop& desktop, const std::string& file);

/// `kinesta gestures`: every gesture that a rule can be bound to.
ExitStatus listGestures(const Console& console, OutputForm form);

/// `kinesta actions`: every kind of action.
ExitStatus listActions(const Console& console, OutputForm form);

/// `kinesta shortcuts`: the shortcut presets.
ExitStatus listShortcuts(const Console& console, OutputForm form);

}  // namespace kinesta
