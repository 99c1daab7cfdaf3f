#include "cli/commands/MonitorCommand.h"

#include <optional>

#include "app/GestureDispatcher.h"
#include "cli/GestureReport.h"
#include "cli/Interrupts.h"
#include "cli/LiveRecognition.h"
#include "cli/LogLines.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/PadScreen.h"
#include "cli/terminal/TextTable.h"
#include "rules/GestureDescription.h"
#include "rules/RuleStore.h"
#include "rules/ShellCommandSettings.h"
#include "support/SteadyClock.h"

namespace kinesta {

ExitStatus monitor(const Console& console, const std::filesystem::path& defaults) {
    RunLoop loop;
    std::optional<PadScreen> screen;
    const Interrupts interrupts(loop, [&] { screen ? screen->stopUntilContinued() : stopUntilContinued(); });
    const SteadyClock clock;
    StoredSettings settings(console, defaults);
    const RuleStore store(settings.defaults());
    settings.check(store);
    const LogLines log(console);
    LiveRecognition live(loop, clock, settings.defaults());
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
        const std::string text = printable(isListening ? live.pad().state().name : status.message);
        if (screen)
            screen->setTitle("Kinesta monitor", text + "   (no action runs; Ctrl-C ends)");
        else if (!text.empty())
            log.write(text);
    };
    const Subscription subscription = service.status().observe(tellStatus);
    if (PadScreen::fits(console)) {
        screen.emplace(console);
        live.setWatcher([&](const PadEvent& event) { screen->show(event); });
    }
    live.start();
    if (service.status().value() == MultitouchService::Status::stopped() && !service.isGestureEnabled().value())
        tellStatus(MultitouchService::Status::unavailable("Gesture recognition is off"));
    loop.run();
    return ExitStatus::success;
}

}  // namespace kinesta
