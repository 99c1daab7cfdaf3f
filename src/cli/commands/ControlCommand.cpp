#include "cli/commands/Commands.h"
#include "cli/terminal/TextTable.h"
#include "support/Json.h"

namespace kinesta {

ExitStatus control(const Console& console, Desktop& desktop, ApplicationRequest request) {
    const Outcome outcome = desktop.runningApplication().ask(request);
    return outcome ? ExitStatus::success : console.fail(printable(outcome.error().message));
}

ExitStatus applicationStatus(const Console& console, Desktop& desktop, OutputForm form) {
    const auto report = desktop.runningApplication().report();
    if (!report)
        return console.fail(printable(report.error().message));
    const ApplicationState& state = report->state;
    if (form == OutputForm::json) {
        const Json json{{"pid", report->process},
                        {"gesturesEnabled", state.isGestureEnabled},
                        {"status", rawValue(state.status)},
                        {"statusText", state.statusText},
                        {"windowVisible", state.isWindowVisible},
                        {"testActive", state.isTestActive},
                        {"enabledRules", state.enabledRules},
                        {"tray", rawValue(state.tray)}};
        console.out << json.text() << '\n';
        return ExitStatus::success;
    }
    console.out << console.bold(printable(state.statusText)) << '\n'
                << "Gestures   " << (state.isGestureEnabled ? "on" : "off")
                << (state.isTestActive ? ", being tested: no action runs" : "") << '\n'
                << "Rules on   " << state.enabledRules << '\n'
                << "Window     " << (state.isWindowVisible ? "visible" : "hidden") << '\n'
                << "Icon       " << title(state.tray) << '\n'
                << "Process    " << report->process << '\n';
    return ExitStatus::success;
}

ExitStatus becomeApplication(const Console& console, Desktop& desktop, const std::vector<std::string>& arguments) {
    console.out.flush();
    return console.fail(printable(desktop.becomeApplication(arguments).message));
}

}  // namespace kinesta
