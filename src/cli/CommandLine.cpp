#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <functional>

#include "cli/commands/Commands.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr const char* kTrackpad =
    "A recording, or a FIFO to which one is written, to read in real time in place of the trackpad";

constexpr const char* kMultitouchLibrary =
    "A library with the functions of the trackpad framework of macOS, to read in place of the trackpad";

constexpr const char* kExamples =
    R"(Without a subcommand, Kinesta starts with its icon in the tray, or shows its window if it runs already.

Examples:
  kinesta demo                             watch recognition at work on real recordings
  kinesta replay tap.jsonl                 what is recognized in a recording, and which rule takes it
  kinesta replay bug.yml --json            the same for a program to read
  kinesta convert pad.events -o pad.jsonl  bring a recording of another tool into Kinesta's form
  kinesta rules check my-rules.json        is this rule file in order?
  kinesta rules export backup.json         keep a copy of the rules

Exit status: 0 done, 1 bad input, 2 bad usage.)";

/// Collects what the arguments ask for; `run` is set by the one subcommand that was chosen.
class Parser {
  public:
    Parser(const Console& console, Desktop& desktop) : m_console(console), m_desktop(desktop) {
        m_app.set_version_flag("--version", "kinesta " KINESTA_VERSION, "Show the version and exit");
        m_app.set_help_flag("-h,--help", "Show this help and exit");
        m_app.require_subcommand(0, 1);
        m_app.footer(kExamples);
        addApplication();
        addPlaying();
        addLive();
        addRules();
        addVocabulary();
    }

    ExitStatus parse(int count, const char* const* arguments) {
        try {
            m_app.parse(count, arguments);
        } catch (const CLI::Success& success) {  // --help and --version
            m_app.exit(success, m_console.out, m_console.err);
            return ExitStatus::success;
        } catch (const CLI::Error& error) {
            m_app.exit(error, m_console.out, m_console.err);
            return ExitStatus::badUsage;
        }
        if (!m_run)
            return becomeApplication(m_console, m_desktop, m_application);
        if (!m_application.empty()) {
            m_console.fail(m_application.front() + " stands before a subcommand; it is for kinesta without one.");
            return ExitStatus::badUsage;
        }
        return m_run();
    }

  private:
    CLI::App* command(CLI::App& parent, const std::string& name, const std::string& summary,
                      std::function<ExitStatus()> run) {
        CLI::App* added = parent.add_subcommand(name, summary);
        added->callback([this, run = std::move(run)] { m_run = run; });
        return added;
    }

    void addJson(CLI::App* app) { app->add_flag("--json", m_json, "Write JSON and nothing else to standard output"); }

    GestureSystem system() const { return fromRawValue<GestureSystem>(m_system).value_or(m_desktop.gestureSystem()); }

    OutputForm form() const { return m_json ? OutputForm::json : OutputForm::forPeople; }

    void addApplication() {
        m_app.add_flag_callback(
            "--background", [this] { m_application.emplace_back("--background"); }, "Start without showing the window");
        m_app
            .add_option_function<std::string>(
                "--trackpad",
                [this](const std::string& path) {
                    m_application.insert(m_application.end(), {"--trackpad", path});
                },
                kTrackpad)
            ->type_name("PATH");

        CLI::App* running = m_app.add_subcommand("ctl", "Control the application that runs");
        running->require_subcommand(1);
        for (const ApplicationRequest request : allCases<ApplicationRequest>())
            command(*running, std::string(rawValue(request)), std::string(title(request)),
                    [this, request] { return control(m_console, m_desktop, request); });
        addJson(command(*running, "status", "Tell what it does",
                        [this] { return applicationStatus(m_console, m_desktop, form()); }));
    }

    void addPlaying() {
        command(m_app, "demo", "Play the bundled recordings and show what is recognized",
                [this] { return demo(m_console, m_desktop); });

        CLI::App* replayCommand = command(m_app, "replay", "Tell what is recognized in a recording", [this] {
            m_replay.form = form();
            m_replay.performing = m_perform ? Performing::performed : Performing::onlyShown;
            m_replay.pace = m_realTime ? Pace::realTime : Pace::asFastAsPossible;
            m_replay.shellCommands = m_allowShellCommands ? ShellCommands::allowed : ShellCommands::forbidden;
            return replay(m_console, m_desktop, m_replay);
        });
        replayCommand
            ->add_option("FILE", m_replay.recording,
                         "A recording: Kinesta's own, evemu-record's or libinput record's; - for standard input")
            ->required();
        CLI::Option* rules =
            replayCommand->add_option("--rules", m_replay.rules, "Rules to use instead of the stored ones");
        replayCommand
            ->add_flag("--allow-shell-commands", m_allowShellCommands,
                       "With --rules: let rules that run shell commands take part")
            ->needs(rules);
        replayCommand->add_flag("--perform", m_perform, "Run the actions of the rules that take the gestures");
        replayCommand->add_flag("--realtime", m_realTime, "Play at the pace at which it was recorded");
        addDevice(replayCommand, m_replay.device);
        addJson(replayCommand);

        CLI::App* convertCommand = command(m_app, "convert", "Rewrite a recording in Kinesta's own form",
                                           [this] { return convert(m_console, m_input, m_device, m_output); });
        convertCommand->add_option("FILE", m_input, "A recording in any known form; - for standard input")->required();
        convertCommand->add_option("-o,--output", m_output, "Where to write it (default: standard output)");
        addDevice(convertCommand, m_device);
    }

    void addLive() {
        CLI::App* daemon = command(
            m_app, "daemon", "Recognize gestures and run their actions, without a window",
            [this] { return runDaemon(m_console, m_desktop, m_verbose ? LogLevel::everything : LogLevel::gestures); });
        daemon->add_flag("--verbose", m_verbose, "Also list the rules that are on");
        CLI::App* live = command(m_app, "monitor", "Show the live pad and what is recognized; no action runs",
                                 [this] { return monitor(m_console, m_desktop); });
        for (CLI::App* app : {daemon, live})
            app->add_option_function<std::string>(
                   "--trackpad", [this](const std::string& path) { m_desktop.useStream(path); }, kTrackpad)
                ->type_name("PATH");
        live->add_option_function<std::string>(
                "--multitouch-library",
                // A path without a slash would be searched for among the libraries of the system; none is this program.
                [this](const std::string& path) {
                    m_desktop.useMultitouchLibrary(std::filesystem::absolute(path.empty() ? "." : path).string());
                },
                kMultitouchLibrary)
            ->type_name("PATH")
            ->excludes("--trackpad");
        CLI::App* recording = command(m_app, "record", "Write what the pad reports to a recording",
                                      [this] { return record(m_console, m_desktop, m_output, m_device); });
        recording->add_option("-o,--output", m_output, "Where to write it (default: standard output)");
        recording->add_option("--device", m_device, "The touchpad to record, by path or name");
        addJson(command(m_app, "devices", "Show the touchpads of this machine",
                        [this] { return listDevices(m_console, m_desktop, form()); }));
        CLI::App* doctorCommand =
            command(m_app, "doctor", "Tell what works on this machine, and what to do about the rest",
                    [this] { return doctor(m_console, m_desktop, form()); });
        addJson(doctorCommand);
        // For the window, which shows the findings in the person's language.
        doctorCommand->add_flag_callback("--marked-texts", markTexts)->group("");
        command(m_app, "perform", "Run the action of one stored rule now",
                [this] { return perform(m_console, m_desktop, m_input); })
            ->add_option("RULE", m_input, "The rule's name or id")
            ->required();
    }

    void addDevice(CLI::App* app, std::string& device) {
        app->add_option("--device", device, "Device description for an evemu recording without axis ranges");
    }

    void addRules() {
        CLI::App* rules = m_app.add_subcommand("rules", "Check, list, export and import rules");
        rules->require_subcommand(1);
        CLI::App* check = command(*rules, "check", "Judge a rule file without using it",
                                  [this] { return checkRules(m_console, m_input, system(), form()); });
        check->add_option("FILE", m_input, "A rule file; - for standard input")->required();
        CLI::App* list = command(*rules, "list", "Show the stored rules",
                                 [this] { return listRules(m_console, m_desktop, system(), form()); });
        for (CLI::App* app : {check, list}) {
            app->add_option("--system", m_system, "Whose own gestures to warn of (default: the running desktop's)")
                ->check(CLI::IsMember({"macos", "gnome", "kde", "none"}));
            addJson(app);
        }
        command(*rules, "export", "Write the stored rules to a file",
                [this] { return exportRules(m_console, m_desktop, m_output); })
            ->add_option("FILE", m_output, "Where to write; - for standard output")
            ->required();
        command(*rules, "import", "Replace the stored rules by those of a file, keeping a copy",
                [this] { return importRules(m_console, m_desktop, m_input); })
            ->add_option("FILE", m_input, "A rule file; - for standard input")
            ->required();
    }

    void addVocabulary() {
        addJson(command(m_app, "gestures", "Show every gesture that a rule can wait for",
                        [this] { return listGestures(m_console, form()); }));
        addJson(
            command(m_app, "actions", "Show every kind of action", [this] { return listActions(m_console, form()); }));
        addJson(command(m_app, "shortcuts", "Show the keyboard shortcut presets",
                        [this] { return listShortcuts(m_console, form()); }));
    }

    const Console& m_console;
    Desktop& m_desktop;
    CLI::App m_app{"Kinesta: deliberate trackpad gestures that run what you choose.", "kinesta"};
    std::function<ExitStatus()> m_run;
    std::vector<std::string> m_application;  // the arguments of the application
    ReplayRequest m_replay;
    std::string m_input;
    std::string m_output = "-";
    std::string m_device;
    std::string m_system;
    bool m_json = false;
    bool m_verbose = false;
    bool m_perform = false;
    bool m_realTime = false;
    bool m_allowShellCommands = false;
};

}  // namespace

ExitStatus runCommandLine(const Console& console, Desktop& desktop, int count, const char* const* arguments) {
    return Parser(console, desktop).parse(count, arguments);
}

}  // namespace kinesta
