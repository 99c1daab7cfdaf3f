#include "cli/commands/Commands.h"

#include <array>
#include <memory>
#include <optional>

#include "app/RuleTransfer.h"
#include "cli/GestureReport.h"
#include "cli/PacedPlayer.h"
#include "cli/RecordingFile.h"
#include "cli/terminal/PadScreen.h"
#include "rules/GestureDescription.h"

namespace kinesta {
namespace {

struct Scene {
    std::string_view file;
    std::string_view title;
};

constexpr std::array kScenes{
    Scene{"CyPS2-Cypress-Trackpad.two_finger_tap.events", "Two fingers tap"},
    Scene{"CyPS2-Cypress-Trackpad.three_finger_tap.events", "Three fingers tap"},
    Scene{"bcm5974.three-finger-click.events", "A click with one, two and three fingers"},
    Scene{"tip-tap-right.jsonl", "One finger rests, another taps beside it, twice"},
    Scene{"edge-slide.jsonl", "Two fingers slide along the right edge"},
    Scene{"corner-circle.jsonl", "One finger rests in a corner, another draws"},
};

// Time to read what was recognized before the next scene begins.
constexpr auto kPause = std::chrono::milliseconds(1100);

/// Plays the scenes one after the other.
class DemoPlayer {
  public:
    DemoPlayer(const Console& console, Desktop& desktop, std::vector<GestureRule> rules)
        : m_console(console), m_desktop(desktop), m_rules(std::move(rules)) {
        if (!PadScreen::fits(console))
            return;
        m_screen.emplace(console, desktop);
        desktop.catchSignals({ProgramSignal::stop}, [this](ProgramSignal) { stopUntilContinued(); });
    }

    std::optional<Error> run() {
        playNext();
        if (!m_isOver)
            m_desktop.mainLoop().run();
        return m_error;
    }

    const std::vector<std::string>& recognized() const { return m_recognized; }

  private:
    void stopUntilContinued() {
        const Uptime stopped = m_desktop.clock().uptime();
        m_screen->stopUntilContinued();
        if (m_player)
            m_player->passOver(m_desktop.clock().uptime() - stopped);
    }

    void playNext() {
        m_player.reset();
        m_session.reset();
        m_file.reset();
        if (m_error || m_nextScene == kScenes.size()) {
            m_isOver = true;
            m_desktop.mainLoop().quit();
            return;
        }
        const Scene& scene = kScenes[m_nextScene++];
        auto file =
            RecordingFile::open(m_console, (m_desktop.examplesFolder() / "recordings" / scene.file).string(), "");
        if (!file) {
            m_error = file.error();
            playNext();
            return;
        }
        m_file = std::move(*file);
        announce(scene);
        m_session.emplace(m_file->reader().header(),
                          [this](ReplaySession::Time, const DetectedGesture& gesture) { tell(gesture); });
        m_player.emplace(
            m_desktop.mainLoop(), m_desktop.clock(), m_file->reader(), *m_session,
            [this](const RecordingEvent& event) {
                if (const auto* pad = std::get_if<PadEvent>(&event); pad && m_screen)
                    m_screen->show(*pad);
            },
            [this](std::optional<Error> error) {
                m_error = std::move(error);
                m_wake = m_desktop.mainLoop().after(kPause, [this] { playNext(); });
            });
        m_player->start();
    }

    void announce(const Scene& scene) {
        const std::string device = m_file->reader().header().device;
        if (m_screen)
            m_screen->setTitle(std::string(scene.title), device);
        else
            m_console.out << m_console.bold(scene.title) << (device.empty() ? "" : "  (" + device + ")") << '\n'
                          << std::flush;
    }

    void tell(const DetectedGesture& gesture) {
        const GestureRule* rule = selectRule(m_rules, gesture, ShellCommands::forbidden);
        const std::string consequence = rule ? ruleInWords(*rule) : "no rule";
        const std::string line = describe(gesture) + "  →  " + consequence;
        const bool isRepeated = !m_recognized.empty() && m_recognized.back() == line;
        if (!isRepeated)
            m_recognized.push_back(line);
        if (m_screen)
            m_screen->tell(describe(gesture), consequence);
        else if (!isRepeated)
            m_console.out << "  " << line << '\n' << std::flush;
    }

    const Console& m_console;
    Desktop& m_desktop;
    std::vector<GestureRule> m_rules;
    std::optional<PadScreen> m_screen;
    std::unique_ptr<RecordingFile> m_file;
    std::optional<ReplaySession> m_session;
    std::optional<PacedPlayer> m_player;
    DelayedTask m_wake;
    std::size_t m_nextScene = 0;
    bool m_isOver = false;
    std::optional<Error> m_error;
    std::vector<std::string> m_recognized;
};

}  // namespace

ExitStatus demo(const Console& console, Desktop& desktop) {
    const std::filesystem::path rulesFile = desktop.examplesFolder() / "rules.json";
    auto rules = readRuleFile(rulesFile.string(), console.in);
    if (!rules)
        return console.fail(rules.error().message);
    std::optional<Error> error;
    std::vector<std::string> recognized;
    {
        DemoPlayer player(console, desktop, std::move(*rules));
        error = player.run();
        if (PadScreen::fits(console))
            recognized = player.recognized();
    }
    if (error)
        return console.fail(error->message);
    // The picture disappears with the second screen, so print the gestures again.
    for (const std::string& line : recognized)
        console.out << "  " << line << '\n';
    console.out << "\nNothing was performed: this was a demonstration with the rules of "
                << rulesFile.lexically_normal().string() << ".\n";
    return ExitStatus::success;
}

}  // namespace kinesta
