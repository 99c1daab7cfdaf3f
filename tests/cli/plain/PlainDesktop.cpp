#include <cstdlib>

#include "cli/CommandRunner.h"
#include "support/InMemoryUserDefaults.h"
#include "support/SteadyClock.h"

namespace kinesta::testing {
namespace {

/// For commands that need no system: settings in memory, examples and the time. The test ends if a command asks for
/// more.
class PlainDesktop final : public Desktop {
  public:
    explicit PlainDesktop(MainLoop& mainLoop) : m_mainLoop(mainLoop) {}

    MainLoop& mainLoop() override { return m_mainLoop; }
    const Clock& clock() const override { return m_clock; }
    std::filesystem::path examplesFolder() const override { return KINESTA_SOURCE_DIR "/examples"; }
    GestureSystem gestureSystem() const override { return GestureSystem::none; }
    Tell onSettingsProblem(Tell /*tell*/) override { return {}; }
    UserDefaults& defaults() override { return m_defaults; }

    void catchSignals(const std::vector<ProgramSignal>&, std::function<void(ProgramSignal)>) override { std::abort(); }
    void surviveClosedPipes() override { std::abort(); }
    Error becomeApplication(const std::vector<std::string>&) override { std::abort(); }
    RunningApplication& runningApplication() override { std::abort(); }
    Result<SingleInstanceClaim> claimSingleInstance() override { std::abort(); }
    void takeTerminal() override { std::abort(); }
    void giveTerminalBack() override { std::abort(); }
    void stopUntilContinued() override { std::abort(); }
    bool reloadDefaults() override { std::abort(); }
    Outcome checkSaving() override { std::abort(); }
    Outcome lastSaving() override { std::abort(); }
    bool watchDefaults(std::function<void()>) override { std::abort(); }
    std::string howToSet(std::string_view, const std::string&) const override { std::abort(); }
    Result<std::filesystem::path> settingsFolder() override { std::abort(); }
    PlatformSettings platformSettings() const override { std::abort(); }
    void useStream(std::string) override { std::abort(); }
    void useMultitouchLibrary(std::string) override { std::abort(); }
    LiveTrackpad& trackpad() override { std::abort(); }
    ConnectedTrackpads connectedTrackpads() override { std::abort(); }
    void onActionProblem(Tell, ProgramOutput) override { std::abort(); }
    ActionPorts actionPorts(const UserDefaults&) override { std::abort(); }
    void prepareToPost() override { std::abort(); }
    ApplicationNotifications& notifications() override { std::abort(); }
    WindowActionOutcomes& windowOutcomes() override { std::abort(); }
    void letDesktopCatchUp() override { std::abort(); }
    void finishActions() override { std::abort(); }
    std::vector<DesktopFinding> findings() override { std::abort(); }
    const HomeFolders& homeFolders() const override { std::abort(); }
    std::optional<Obstacle> obstacleToKey(std::uint16_t, std::uint64_t) override { std::abort(); }
    bool typesLetterOf(std::uint16_t, const std::string&) override { std::abort(); }
    bool tilesWindows() override { std::abort(); }
    KeyRecording& keyRecording() override { std::abort(); }
    std::optional<Obstacle> obstacleToLaunching(const std::string&) override { std::abort(); }

  private:
    MainLoop& m_mainLoop;
    SteadyClock m_clock;
    InMemoryUserDefaults m_defaults;
};

}  // namespace

std::unique_ptr<Desktop> desktopIn(const std::filesystem::path& /*folder*/, MainLoop& mainLoop) {
    return std::make_unique<PlainDesktop>(mainLoop);
}

}  // namespace kinesta::testing
