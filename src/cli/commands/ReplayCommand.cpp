#include "cli/commands/ReplayCommand.h"

#include <utility>

#include "cli/ActionPerformer.h"
#include "cli/GestureReport.h"
#include "cli/OutputFile.h"
#include "cli/PacedPlayer.h"
#include "cli/RecordingFile.h"
#include "cli/RuleFile.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/ProgressLine.h"
#include "input/recording/RecordingWriter.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "rules/RuleStore.h"
#include "rules/ShellCommandSettings.h"
#include "support/SteadyClock.h"

namespace kinesta {
namespace {

struct RulesInForce {
    std::vector<GestureRule> rules;
    ShellCommands shellCommands = ShellCommands::forbidden;
};

Result<RulesInForce> rulesInForce(const Console& console, const std::filesystem::path& defaults,
                                  const ReplayRequest& request, ExitStatus& status) {
    if (!request.rules.empty()) {
        auto rules = readRuleFile(request.rules, console.in);
        if (!rules)
            return rules.error();
        return RulesInForce{std::move(*rules), request.shellCommands};
    }
    StoredSettings settings(console, defaults);
    const RuleStore store(settings.defaults());
    settings.check(store);
    status = settings.status();
    return RulesInForce{store.rules().value(), ShellCommandSettings::isEnabled(settings.defaults())
                                                   ? ShellCommands::allowed
                                                   : ShellCommands::forbidden};
}

std::optional<Error> playAtOnce(const Console& console, RecordingFile& file, ReplaySession& session) {
    ProgressLine progress(console, "Replaying");
    for (;;) {
        const auto next = file.reader().next();
        if (!next)
            return next.error();
        if (!*next)
            break;
        session.deliver(**next);
        progress.step([&] { return file.progress(); });
    }
    session.finish();
    return std::nullopt;
}

std::optional<Error> playInRealTime(RecordingFile& file, ReplaySession& session) {
    RunLoop loop;
    const SteadyClock clock;
    std::optional<Error> error;
    PacedPlayer player(
        loop, clock, file.reader(), session, [](const RecordingEvent&) {},
        [&](std::optional<Error> problem) {
            error = std::move(problem);
            loop.quit();
        });
    player.start();
    loop.run();
    return error;
}

}  // namespace

ExitStatus replay(const Console& console, const std::filesystem::path& defaults, const ReplayRequest& request) {
    if (request.recording == "-" && request.rules == "-")
        return console.fail("The recording and the rules cannot both come from standard input.");
    ExitStatus status = ExitStatus::success;
    auto inForce = rulesInForce(console, defaults, request, status);
    if (!inForce)
        return console.fail(inForce.error().message);
    const auto file = RecordingFile::open(console, request.recording, request.device);
    if (!file)
        return console.fail(file.error().message);

    // What the executor asks is what the rules were chosen by: the switch of the settings, or that of the arguments.
    InMemoryUserDefaults performed;
    {
        StoredSettings settings(console, defaults);
        for (const std::string_view key : {LinuxActionSettings::kCommandKey, LinuxActionSettings::kInputRoute})
            if (const auto value = settings.defaults().string(key))
                performed.setString(key, *value);
    }
    performed.setBoolean(ShellCommandSettings::enabledKey, inForce->shellCommands == ShellCommands::allowed);
    std::optional<ActionPerformer> performer;
    if (request.performing == Performing::performed) {
        performer.emplace(console, performed, defaults);
        performer->prepareToPost();
    }
    const auto perform = [&](const GestureRule& rule, const DetectedGesture& gesture) {
        const auto* slide = std::get_if<DetectedEdgeSlide>(&gesture);
        const auto report = performer->perform(rule, slide ? slide->steps : 0);
        if (report.outcome == ActionPerformer::Outcome::failed)
            status = console.fail(ruleInWords(rule) + ": " + report.why);
        else if (rule.action.kind == ActionKind::disableAllRules)
            for (GestureRule& each : inForce->rules)
                each.isEnabled = false;
    };

    std::size_t gestures = 0;
    ReplaySession session((*file)->reader().header(), [&](ReplaySession::Time time, const DetectedGesture& gesture) {
        ++gestures;
        const GestureRule* rule = selectRule(inForce->rules, gesture, inForce->shellCommands);
        console.out << (request.form == OutputForm::json ? gestureAsJson(time, gesture, rule)
                                                         : gestureForPeople(console, time, gesture, rule))
                    << '\n';
        // Someone who watches, or reads through a pipe as it happens, wants each line when it is true.
        if (request.pace == Pace::realTime || console.outIsTerminal)
            console.out.flush();
        if (performer && rule)
            perform(*rule, gesture);
    });
    const auto error =
        request.pace == Pace::realTime ? playInRealTime(**file, session) : playAtOnce(console, **file, session);
    if (const std::string problems = performer ? performer->finish() : ""; !problems.empty())
        status = console.fail(problems);
    if (error)
        return console.fail(error->message);
    if (request.form == OutputForm::forPeople && gestures == 0)
        console.out << "No gesture was recognized.\n";
    return status;
}

ExitStatus convert(const Console& console, const std::string& recording, const std::string& device,
                   const std::string& output) {
    const auto file = RecordingFile::open(console, recording, device);
    if (!file)
        return console.fail(file.error().message);
    std::unique_ptr<OutputFile> target;
    if (output != "-") {
        auto created = OutputFile::create(output);
        if (!created)
            return console.fail(created.error().message);
        target = std::move(*created);
    }
    std::size_t events = 0;
    {
        RecordingWriter writer(target ? target->stream() : console.out);
        if (const Outcome written = writer.writeHeader((*file)->reader().header()); !written)
            return console.fail(written.error().message);
        ProgressLine progress(console, "Converting");
        for (;;) {
            const auto next = (*file)->reader().next();
            if (!next)
                return console.fail(next.error().message);
            if (!*next)
                break;
            if (const Outcome written = writer.write(**next); !written)
                return console.fail(written.error().message);
            ++events;
            progress.step([&] { return (*file)->progress(); });
        }
    }
    if (target) {
        if (const Outcome saved = target->commit(); !saved)
            return console.fail(saved.error().message);
        console.err << "Wrote " << events << " events to " << output << ".\n";
    }
    return ExitStatus::success;
}

}  // namespace kinesta
