#include "cli/commands/Commands.h"

#include <cerrno>
#include <utility>

#include "app/OutputFile.h"
#include "app/RulePerformer.h"
#include "cli/GestureReport.h"
#include "cli/PacedPlayer.h"
#include "cli/RecordingFile.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/ProgressLine.h"
#include "input/recording/RecordingWriter.h"
#include "rules/ShellCommandSettings.h"
#include "support/SystemError.h"

namespace kinesta {
namespace {

struct RulesInForce {
    std::vector<GestureRule> rules;
    ShellCommands shellCommands = ShellCommands::forbidden;
};

Result<RulesInForce> rulesOfFile(const Console& console, const ReplayRequest& request) {
    auto rules = readRuleFile(request.rules, console.in);
    if (!rules)
        return rules.error();
    return RulesInForce{std::move(*rules), request.shellCommands};
}

RulesInForce storedRules(StoredSettings& settings) {
    const RuleStore store(settings.defaults());
    settings.check(store);
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

std::optional<Error> playInRealTime(Desktop& desktop, RecordingFile& file, ReplaySession& session) {
    std::optional<Error> error;
    PacedPlayer player(
        desktop.mainLoop(), desktop.clock(), file.reader(), session, [](const RecordingEvent&) {},
        [&](std::optional<Error> problem) {
            error = std::move(problem);
            desktop.mainLoop().quit();
        });
    player.start();
    desktop.mainLoop().run();
    return error;
}

}  // namespace

ExitStatus replay(const Console& console, Desktop& desktop, const ReplayRequest& request) {
    if (request.recording == "-" && request.rules == "-")
        return console.fail("The recording and the rules cannot both come from standard input.");
    std::optional<StoredSettings> settings;
    if (request.rules.empty() || request.performing == Performing::performed)
        settings.emplace(console, desktop);
    auto inForce = request.rules.empty() ? storedRules(settings.value()) : rulesOfFile(console, request);
    if (!inForce)
        return console.fail(inForce.error().message);
    ExitStatus status = request.rules.empty() ? settings.value().status() : ExitStatus::success;
    const auto file = RecordingFile::open(console, request.recording, request.device);
    if (!file)
        return console.fail(file.error().message);

    InMemoryUserDefaults permissions;
    permissions.setBoolean(ShellCommandSettings::enabledKey, inForce->shellCommands == ShellCommands::allowed);
    std::optional<RulePerformer> performer;
    if (request.performing == Performing::performed) {
        performer.emplace(desktop, permissions, [&] { return settings->disableAllRules(); });
        performer->prepareToPost();
    }
    const auto perform = [&](const GestureRule& rule, const DetectedGesture& gesture) {
        const auto report = performer->perform(rule, adjustmentSteps(gesture));
        if (report.outcome == RulePerformer::Outcome::failed)
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
        // People at a terminal and programs that read along in real time need each line at once.
        if (request.pace == Pace::realTime || console.outIsTerminal)
            console.out.flush();
        if (performer && rule)
            perform(*rule, gesture);
    });
    const auto error = request.pace == Pace::realTime ? playInRealTime(desktop, **file, session)
                                                      : playAtOnce(console, **file, session);
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
    std::ostream& stream = target ? target->stream() : console.out;
    const auto fail = [&](const Error& refused) {
        const int reason = errno;
        if (stream)
            return console.fail(refused.message);
        return console.fail(target ? target->commit().error().message
                                   : "standard output: writing failed: " + systemErrorText(reason));
    };
    std::size_t events = 0;
    RecordingWriter writer(stream);
    if (const Outcome written = writer.writeHeader((*file)->reader().header()); !written)
        return fail(written.error());
    {
        ProgressLine progress(console, "Converting");
        for (;;) {
            const auto next = (*file)->reader().next();
            if (!next)
                return console.fail(next.error().message);
            if (!*next)
                break;
            if (const Outcome written = writer.write(**next); !written)
                return fail(written.error());
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
