#include "cli/commands/Commands.h"

#include <optional>

#include "app/LiveRecognition.h"
#include "cli/GestureReport.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/LogLines.h"
#include "cli/terminal/PadScreen.h"
#include "cli/terminal/TextTable.h"
#include "rules/GestureDescription.h"
#include "rules/ShellCommandSettings.h"

namespace kinesta {

ExitStatus monitor(const Console& console, Desktop& desktop) {
    std::optional<PadScreen> screen;
    desktop.catchSignals({ProgramSignal::end, ProgramSignal::stop}, [&](ProgramSignal signal) {
        if (signal == ProgramSignal::end)
            desktop.mainLoop().quit();
        else
            screen ? screen->stopUntilContinued() : desktop.stopUntilContinued();
    });
    StoredSettings settings(console, desktop);
    const RuleStore store(settings.defaults());
    settings.check(store);
    const LogLines log(console);
    LiveRecognition live(desktop);
    MultitouchService& service = live.service();

    service.onEveryGesture([&](const DetectedGesture& gesture) {
        const ShellCommands shellCommands =
            ShellCommandSettings::isEnabled(settings.defaults()) ? ShellCommands::allowed : ShellCommands::forbidden;
        const GestureRule* rule = selectRule(store.rules().value(), gesture, shellCommands);
        const std::string consequence =
            rule ? "would run: " + ruleInWords(*rule) : whyNoRule(store.rules().value(), gesture);
        if (screen)
            screen->tell(describe(gesture), consequence);
        else
            log.write(describe(gesture) + "  →  " + consequence);
    });

    const auto tellStatus = [&](const MultitouchService::Status& status) {
        const bool isListening = status == MultitouchService::Status::listening();
        const std::string text = printable(isListening ? live.identity().name : status.message);
        if (screen)
            screen->setTitle("Kinesta monitor", text + "   (no action runs; Ctrl-C ends)");
        else if (!text.empty())
            log.write(text);
    };
    const Subscription subscription = service.status().observe(tellStatus);
    if (PadScreen::fits(console)) {
        screen.emplace(console, desktop);
        desktop.trackpad().watch([&](const PadEvent& event) { screen->show(event); });
    }
    live.start();
    if (service.status().value() == MultitouchService::Status::stopped() && !service.isGestureEnabled().value())
        tellStatus(MultitouchService::Status::unavailable("Gesture recognition is off"));
    desktop.mainLoop().run();
    return ExitStatus::success;
}

}  // namespace kinesta
