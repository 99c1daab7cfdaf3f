#include "Stage.h"

#include <sys/stat.h>

#include <QTest>
#include <algorithm>
#include <iostream>

#include "app/RuleTransfer.h"
#include "platform/linuxdesktop/cue/DesktopActionCue.h"
#include "ui/WindowParts.h"

namespace kinesta {
namespace {

std::filesystem::path in(const QTemporaryDir& folder, const char* name) {
    return std::filesystem::path(folder.path().toStdString()) / name;
}

std::vector<GestureRule> rulesOf(const Setting& setting) {
    std::vector<GestureRule> rules;
    if (!setting.rules.empty()) {
        auto read = readRuleFile(setting.rules, std::cin);
        if (!read)
            qFatal("%s", read.error().message.c_str());
        rules = std::move(*read);
    }
    if (setting.isFirstLaunch)
        rules.push_back(GestureRule::recommendedDefault());
    for (int i = 1; i <= setting.moreRules; ++i) {
        GestureRule rule;
        rule.id = Uuid::random();
        rule.name = "Rule " + std::to_string(i);
        rules.push_back(rule);
    }
    return rules;
}

}  // namespace

Stage::Stage(const Setting& setting)
    : m_setting(setting),
      m_machine(m_mainLoop, {.settings = in(m_folder, "defaults.json"), .examples = {}}),
      m_loginItem(setting.login),
      m_login(m_loginItem),
      m_bundle(setting.hasUpdates),
      m_updates(m_bundle, [](const auto&) { return std::make_unique<FakeUpdater>(); }),
      m_report(m_mainLoop, setting.hasFindings) {
    const auto pad = in(m_folder, "pad");
    if (setting.hasTrackpad)
        mkfifo(pad.c_str(), 0600);
    m_machine.useStream(pad);
    for (const auto& [key, value] : setting.switches)
        m_machine.defaults().setBoolean(key, value);
    m_app = std::make_unique<App>(m_machine, [](const std::string&) {});
    m_cue = std::make_unique<ActionCuePresenter>(
        ActionCuePresenter::Ports{m_machine.defaults(), m_mainLoop, m_screens, m_preferences}, makeActionCuePanel);
    m_app->store().setRules(rulesOf(setting));
    m_updates.start();
    m_login.refresh();
    m_app->start();
    if (setting.hasTrackpad) {
        m_pad.open(pad);
        m_pad << R"({"kinesta":"recording","version":1})" << std::endl;
    }
    m_window = std::make_unique<KinestaWindow>(parts());
    m_window->setWindowTitle(QStringLiteral("Kinesta"));
    m_app->dispatcher().setObserver([this](const DetectedGesture& gesture, const GestureRule* rule) {
        m_window->gestureDispatched(gesture, rule);
    });
    m_window->resize(setting.size);
}

WindowParts Stage::parts() {
    return {.desktop = m_machine,
            .store = m_app->store(),
            .service = m_app->recognition().service(),
            .testSession = m_app->testSession(),
            .cue = *m_cue,
            .launchAtLogin = m_login,
            .updates = m_updates,
            .report = m_report,
            .applications = m_applications,
            .runAction = [](const GestureRule&) {},
            .requestAccessibilityPermission = [] {},
            .isPermissionMissing = [this] { return m_setting.isPermissionMissing; },
            .applyAppearance = [] {},
            .reloadSettings = [] {},
            .version = "1.0.0",
            .isFirstLaunch = m_setting.isFirstLaunch};
}

Uuid Stage::rule(const std::string& name) {
    const auto& rules = m_app->store().rules().value();
    const auto found = std::ranges::find(rules, name, &GestureRule::name);
    if (found == rules.end())
        qFatal("There is no rule called %s.", name.c_str());
    return found->id;
}

void Stage::touch(double time, const std::string& contacts) {
    m_pad << R"({"t":)" << time << R"(,"touches":[)" << contacts << "]}" << std::endl;
}

void Stage::tap(double time) {
    touch(time, "[1,0.3,0.5],[2,0.5,0.6],[3,0.7,0.5]");
    touch(time + 0.05, "");
}

}  // namespace kinesta
