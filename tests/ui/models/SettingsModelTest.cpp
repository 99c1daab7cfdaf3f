#include "ui/models/SettingsModel.h"

#include <gtest/gtest.h>

#include "app/SettingsReset.h"
#include "support/FakeShell.h"
#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

constexpr const char* kWay = "linux.way.v1";

/// The settings page among fakes, on a platform with one choice of its own.
struct Settings {
    Settings() {
        shell.bundle = {{"SUFeedURL", "https://example.com/feed"}, {"SUPublicEDKey", std::string(43, 'A') + "="}};
    }

    SettingsModel& open() {
        model.reset();
        updates.emplace(shell, [this](const UpdateConfiguration&) { return std::make_unique<FakeUpdater>(shell); });
        updates->start();
        login.emplace(shell);
        return model.emplace(SettingsModel::Parts{.defaults = rig.defaults,
                                                  .service = rig.launch(),
                                                  .launchAtLogin = *login,
                                                  .updates = *updates,
                                                  .platform = platform,
                                                  .connectedTrackpads = [this] { return trackpads; },
                                                  .applyTrackpad = [this] { shell.log.add("trackpad"); },
                                                  .applyAppearance = [this] { shell.log.add("appearance"); }});
    }
    const SettingsContent& content() const { return model->content().value(); }
    std::string stored(std::string_view key) const { return rig.defaults.anyAsText(key).value_or("-"); }

    GestureRig rig;
    FakeShell shell;
    PlatformSettings platform{{{kWay, "Way", {{"one", "One", ""}, {"two", "Two", ""}}}}, "linux.touchpad.v1"};
    ConnectedTrackpads trackpads;
    std::optional<SoftwareUpdateController> updates;
    std::optional<LaunchAtLoginManager> login;
    std::optional<SettingsModel> model;
};

ConnectedTrackpad trackpad(const char* name, const char* path) {
    ConnectedTrackpad trackpad;
    trackpad.name = name;
    trackpad.path = path;
    return trackpad;
}

struct Change {
    const char* key;
    const char* stored;
    void (*make)(SettingsModel&);
};

const Change kChanges[] = {
    {"gesturesEnabled", "false", [](SettingsModel& model) { model.setGestureEnabled(false); }},
    {"tapWaitingInterval.v1", "400", [](SettingsModel& model) { model.setTapWaitingInterval(400); }},
    {"cornerPalmRejectionEnabled.v1", "true", [](SettingsModel& model) { model.setIgnoresPalms(true); }},
    {"cornerPalmRejectionSensitivity.v1", "0.7", [](SettingsModel& model) { model.setPalmPercent(70); }},
    {"actionCueEnabled.v1", "false", [](SettingsModel& model) { model.setShowsCue(false); }},
    {"actionCuePosition.v1", "center", [](SettingsModel& model) { model.setCuePosition(ActionCuePosition::center); }},
    {"actionCueDuration.v1", "2.3", [](SettingsModel& model) { model.setCueDuration(23); }},
    {"actionCueOpacity.v1", "0.29", [](SettingsModel& model) { model.setCuePercent(29); }},
    {"shellCommandActionsEnabled.v1", "true", [](SettingsModel& model) { model.setRunsShellCommands(true); }},
    {"appAppearance.v1", "dark", [](SettingsModel& model) { model.setAppearance(AppAppearance::dark); }},
    {kWay, "two", [](SettingsModel& model) { model.choosePlatformCase(0, 1); }},
    {"linux.touchpad.v1", "Pad", [](SettingsModel& model) { model.chooseTrackpad(1); }},
};

TEST(SettingsModel, StoresEachChangeOnceAndResetsThemAllAndBack) {
    Settings settings;
    settings.trackpads.all = {trackpad("Pad", "/dev/input/event4")};
    SettingsModel& model = settings.open();
    model.listTrackpads();
    const SettingsContent first = settings.content();
    for (const auto& [key, stored, make] : kChanges) {
        const SettingsContent before = settings.content();
        const int writes = settings.rig.defaults.writes;
        make(model);
        make(model);
        EXPECT_EQ(settings.stored(key), stored);
        EXPECT_LE(settings.rig.defaults.writes, writes + 2) << key;  // both palm settings are stored together
        EXPECT_NE(settings.content(), before) << key;
    }
    EXPECT_EQ(joined(settings.shell.log.take()), "start updater; appearance; trackpad");
    model.setChecksForUpdates(true);

    settings.rig.defaults.setData("gestureRules.v1", "[]");
    settings.rig.defaults.setInteger("actionCueOpacity.v1", 7);  // of another type, and as such put back
    const StoredValues changed = settings.rig.defaults.values();
    SettingsReset reset(settings.rig.defaults, *settings.updates, settings.platform);
    const SettingsReset::Backup backup = reset.reset();
    settings.rig.service->reloadSettings();
    model.refresh();
    EXPECT_EQ(settings.content(), first);
    EXPECT_TRUE(settings.rig.defaults.contains("gestureRules.v1"));
    model.setCueDuration(30);
    settings.rig.defaults.remove("gestureRules.v1");  // meanwhile the person has changed rules
    reset.restore(backup);
    StoredValues expected = changed;
    expected.erase("gestureRules.v1");
    EXPECT_EQ(settings.rig.defaults.values(), expected);
    EXPECT_TRUE(settings.updates->automaticallyChecksForUpdates().value());
    reset.restore({});
    EXPECT_TRUE(settings.rig.defaults.values().empty());
}

TEST(SettingsModel, KeepsAValueBetweenTwoStepsUntilAnotherStepIsChosen) {
    Settings settings;
    settings.rig.defaults.setReal("cornerPalmRejectionSensitivity.v1", 0.557);
    settings.rig.defaults.setReal("actionCueDuration.v1", 9);
    settings.rig.defaults.setString("appAppearance.v1", "pink");
    settings.rig.defaults.setString(kWay, "three");
    SettingsModel& model = settings.open();
    EXPECT_EQ(settings.content().palmPercent, 56);
    EXPECT_EQ(settings.content().cueDuration, SettingsModel::durationRange().most);
    EXPECT_EQ(settings.content().appearance, AppAppearance::system);
    EXPECT_EQ(settings.content().platformCases, std::vector<std::size_t>{0});
    model.setPalmPercent(56);
    EXPECT_EQ(settings.stored("cornerPalmRejectionSensitivity.v1"), "0.557");
    model.setTapWaitingInterval(350);
    EXPECT_EQ(settings.content().tapWaitingInterval, 250);
}

TEST(SettingsModel, TellsWhatTheSystemMakesOfAWish) {
    Settings settings;
    SettingsModel& model = settings.open();
    settings.shell.loginFailure = "The folder is full.";
    model.setLaunchAtLogin(true);
    EXPECT_FALSE(settings.content().launchesAtLogin);
    EXPECT_EQ(settings.content().loginProblem, "The folder is full.");
    settings.shell.loginFailure.clear();
    model.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.content().launchesAtLogin);
    EXPECT_EQ(settings.content().loginProblem, "");
    settings.shell.login = LoginItemStatus::requiresApproval;
    settings.login->refresh();
    model.setLaunchAtLogin(true);
    EXPECT_TRUE(settings.content().waitsForApproval);
    EXPECT_EQ(joined(settings.shell.log.take()), "start updater; login settings");

    EXPECT_EQ(settings.content().updateMessage,
              "Checks use the signed Kinesta update feed and do not send a hardware profile.");
    settings.shell.canCheck.set(false);
    EXPECT_EQ(settings.content().updateMessage, "Looking for an update…");
    EXPECT_FALSE(settings.content().canCheckForUpdates);
    settings.shell.bundle.clear();
    settings.open();
    EXPECT_EQ(settings.content().updateMessage, "The update feed is not configured in this build.");
    EXPECT_FALSE(settings.content().hasUpdates);

    EXPECT_EQ(settings.content().recognitionProblem, "");
    settings.rig.provider.statusAfterStart = TrackpadContactProviderStatus::unavailable("No trackpad.");
    settings.rig.service->stop();
    EXPECT_EQ(settings.content().recognitionProblem, "The trackpad is not being read.");
    settings.model->startRecognition();
    EXPECT_EQ(settings.content().recognitionProblem, "No trackpad.");
    settings.model->setGestureEnabled(false);
    EXPECT_EQ(settings.content().recognitionProblem, "");
}

TEST(TrackpadChoices, NameTheTrackpadsSoThatTheSettingFindsThemAgain) {
    ConnectedTrackpad builtIn = trackpad("Synaptics", "/dev/input/event4");
    builtIn.isBuiltIn = true;
    ConnectedTrackpad locked = trackpad("Magic", "/dev/input/event9");
    locked.problem = "It may not be read.";
    ConnectedTrackpad twin = locked;
    twin.path = "/dev/input/event10";
    const auto text = [](std::vector<ConnectedTrackpad> all, const std::string& wanted, std::size_t read) {
        if (read < all.size())
            all[read].isChosen = true;
        const auto choices = TrackpadChoices::of({std::move(all), {"It is not here.", ""}}, wanted);
        std::string result;
        for (const auto& choice : choices.all)
            result += (&choice == &choices.all[choices.chosen] ? ">" : "") + choice.title + "=" + choice.stored + "; ";
        return result + choices.detail + (choices.isOffered() ? "" : " (hidden)");
    };
    constexpr std::size_t kNone = 9;
    EXPECT_EQ(text({builtIn}, "", 0), ">Automatic=; Synaptics (built in)=Synaptics; “Synaptics” is read now. (hidden)");
    EXPECT_EQ(text({builtIn, locked}, "Magic", 1),
              "Automatic=; Synaptics (built in)=Synaptics; >Magic=Magic; It may not be read.");
    EXPECT_EQ(text({locked, twin}, "/dev/input/event10", 1),
              "Automatic=; Magic · /dev/input/event9=/dev/input/event9; "
              ">Magic · /dev/input/event10=/dev/input/event10; It may not be read.");
    EXPECT_EQ(text({builtIn}, "Gone", kNone),
              "Automatic=; Synaptics (built in)=Synaptics; >Gone (not connected)=Gone; It is not here.");
    EXPECT_EQ(text({}, "", kNone), ">Automatic=;  (hidden)");
}

}  // namespace
}  // namespace kinesta::testing
