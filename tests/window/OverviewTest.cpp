#include "ui/overview/OverviewPage.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <algorithm>

#include "app/SystemCheck.h"
#include "window/NoCommands.h"
#include "window/WindowRig.h"

namespace kinesta::testing {
namespace {

struct FakeReport final : SystemReport {
    void request(Receive receive) override { waiting.push_back(std::move(receive)); }
    void answer(const Result& result) {
        for (const Receive& receive : std::exchange(waiting, {}))
            receive(result);
    }
    std::vector<Receive> waiting;
};

struct FakeCommands : NoCommands {
    void select(const WindowSelection& selection) override {
        called = selection.kind == WindowSelection::Kind::settings ? "settings" : selection.ruleId.toString();
    }
    void addRuleForLastGesture() override { called = "make"; }
    std::string called;
};

class Overview : public WindowRig {
  protected:
    WindowParts fakedParts() {
        WindowParts faked = parts();
        return {.desktop = faked.desktop,
                .store = faked.store,
                .service = faked.service,
                .testSession = faked.testSession,
                .cue = faked.cue,
                .launchAtLogin = faked.launchAtLogin,
                .updates = faked.updates,
                .report = doctor,
                .applications = faked.applications,
                .runAction = {},
                .requestAccessibilityPermission = [this] { commands.called = "allow"; },
                .isPermissionMissing = [] { return true; },
                .applyAppearance = {},
                .reloadSettings = {},
                .version = "1.0"};
    }

    void change(const std::function<void(GestureRule&)>& edit) {
        std::vector<GestureRule> rules = app.store().rules().value();
        edit(rules[0]);
        app.store().setRules(std::move(rules));
    }

    std::string words() const {
        QApplication::processEvents();  // new rows appear from the loop
        std::string all;
        for (const QLabel* label : page->findChildren<QLabel*>())
            if (label->isVisible() && !label->text().isEmpty())
                all += label->text().toStdString() + "\n";
        return all;
    }
    bool says(const std::string& text) const { return words().find(text) != std::string::npos; }
    std::string press(const char* name) {
        QApplication::processEvents();
        commands.called = "no such button";
        for (auto* button : page->findChildren<QAbstractButton*>())
            if (button->isVisible() &&
                (button->text() == QString::fromUtf8(name) || button->accessibleName() == QString::fromUtf8(name))) {
                commands.called = "nothing";
                button->click();
                break;
            }
        return commands.called;
    }

    FakeReport doctor;
    FakeCommands commands;
    WindowParts shown = fakedParts();
    OverviewModel model{{app.store(), app.recognition().service(), app.testSession(), [] { return true; }}};
    std::unique_ptr<OverviewPage> page = std::make_unique<OverviewPage>(model, shown, commands);
};

TEST_F(Overview, AsksWhatWorksAgainWhenThatMayHaveChangedAndOffersWhatHelps) {
    EXPECT_TRUE(doctor.waiting.empty());
    page->show();
    EXPECT_EQ(doctor.waiting.size(), 1U);
    EXPECT_TRUE(says("Looking…"));
    doctor.answer({.findings = {}, .text = {}, .problem = "It did not answer in time."});
    EXPECT_TRUE(says("It did not answer in time.")) << words();

    const GestureRule rule = app.store().rules().value()[0];
    change([](GestureRule& changed) { changed.name = "Paste"; });
    EXPECT_TRUE(doctor.waiting.empty()) << "a name changes nothing";
    change([](GestureRule& changed) { changed.isEnabled = false; });
    change([](GestureRule& changed) { changed.isEnabled = true; });
    EXPECT_EQ(doctor.waiting.size(), 2U);
    doctor.answer({.findings = {{.subject = FindingSubject::windows, .what = "Windows", .works = true, .why = "Good."},
                                {.subject = FindingSubject::shellCommands,
                                 .what = "Shell commands",
                                 .works = false,
                                 .why = "Off.",
                                 .remedy = "Edit defaults.json.",
                                 .isSetting = true},
                                {.subject = FindingSubject::sendInput,
                                 .what = "Sending",
                                 .works = false,
                                 .why = "Not allowed.",
                                 .remedy = "Run once:",
                                 .command = "sudo true",
                                 .rulesInNeed = 1},
                                {.what = "Deleted", .works = false, .why = "Gone.", .rulesInNeed = 1, .rule = Uuid{}},
                                {.what = "Its path", .works = false, .why = "No.", .rulesInNeed = 1, .rule = rule.id}},
                   .text = {},
                   .problem = {}});
    const std::string all = words();
    EXPECT_LT(all.find("Sending"), all.find("Windows")) << "what is missing comes first: " << all;
    EXPECT_TRUE(says("1 rule needs this") && says("Rule “Paste”")) << all;
    EXPECT_FALSE(says("defaults.json") || says("Deleted") || says("did not answer")) << all;
    EXPECT_EQ(press("Allow…"), "allow");
    EXPECT_EQ(press("Open Settings"), "settings");
    EXPECT_EQ(press("Show rule"), rule.id.toString());
    press("Copy the command");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("sudo true"));

    page->hide();
    change([](GestureRule& changed) { changed.isEnabled = false; });
    EXPECT_TRUE(doctor.waiting.empty()) << "the page is hidden";
    page->show();
    EXPECT_EQ(doctor.waiting.size(), 1U);
    page.reset();
    doctor.answer({});
}

TEST_F(Overview, LeadsFromTheLastGestureToItsRuleOrToANewOne) {
    page->show();
    model.gestureDispatched(DetectedTap{4, GestureKind::singleTap}, nullptr);
    EXPECT_TRUE(says("Detected 4-finger single tap\nNo rule uses it")) << words();
    EXPECT_EQ(press("Make a rule"), "make");
    const GestureRule rule = app.store().rules().value()[0];
    app.testSession().begin();
    model.gestureDispatched(DetectedTap{3, GestureKind::singleTap}, nullptr);
    app.testSession().end();
    EXPECT_TRUE(says("Actions are paused while gestures are tried")) << words();
    EXPECT_EQ(press("Show rule"), rule.id.toString());
    press("Gesture recognition");
    EXPECT_TRUE(says("Gestures are off"));
}

TEST_F(Overview, LeadsTabToWhatComesLaterWhereItStands) {
    OverviewModel welcome{{app.store(), app.recognition().service(), app.testSession(), [] { return false; }, true}};
    page = std::make_unique<OverviewPage>(welcome, shown, commands);
    page->show();
    page->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    welcome.setNotices(std::vector<OverviewNotice>(4, {OverviewNotice::Kind::problem, "It is full."}));
    doctor.answer({.findings = {{.subject = FindingSubject::touchpad,
                                 .what = "Touchpad",
                                 .works = false,
                                 .why = "No.",
                                 .command = "sudo true"}},
                   .text = {},
                   .problem = {}});
    QApplication::processEvents();
    QStringList stops;
    do {
        QWidget* from = QApplication::focusWidget();
        QTest::keyClick(from != nullptr ? from : page.get(), Qt::Key_Tab);
        const QWidget* now = QApplication::focusWidget();
        const auto* button = qobject_cast<const QAbstractButton*>(now);
        stops += now->accessibleName().isEmpty() && button != nullptr ? button->text() : now->accessibleName();
    } while (stops.size() < 2 || stops.back() != stops.front());
    EXPECT_EQ(stops.join(QLatin1Char('|')).toStdString(),
              "Gesture recognition|Show 1 more|Command for a terminal|Copy the command|Add a gesture|Copy report|"
              "Details|Perform the gesture|Gesture recognition");
    page.reset();
}

class DoctorReports : public WindowRig {
  protected:
    std::string script(const std::string& name, const std::string& lines) {
        const std::string path = folder.write(name, "#!/bin/sh\n" + lines);
        ::chmod(path.c_str(), 0700);
        return path;
    }
    SystemReport::Result ask(SystemReport& from) {
        std::optional<SystemReport::Result> result;
        from.request([&](const SystemReport::Result& received) { result = received; });
        EXPECT_FALSE(result) << "must answer later";
        EXPECT_TRUE(eventually([&] { return result.has_value(); }));
        return result.value_or(SystemReport::Result{});
    }
};

TEST_F(DoctorReports, SayWhyThereIsNone) {
    for (const auto& [lines, problem] : std::vector<std::pair<std::string, std::string>>{
             {"echo '[{\"what\":\"Cut\"'", "gave no report"},
             {"echo '[]'", "gave no report"},
             {"echo '[{\"subject\":\"moon\",\"what\":\"New\",\"works\":true}]'", "gave no report"},
             {"kill -9 $$", "gave no report"},
             {"echo $$ > \"$0.pid\"; exec sleep 1000", "did not answer in time"}}) {
        DoctorReport broken(mainLoop, script("broken", lines), "1.0", std::chrono::milliseconds(500));
        const SystemReport::Result result = ask(broken);
        EXPECT_NE(result.problem.find(problem), std::string::npos) << lines << result.problem;
        EXPECT_NE(result.text.find(problem), std::string::npos) << result.text;
    }
    const pid_t slow = std::stoi(readText(folder / "broken.pid"));
    EXPECT_TRUE(eventually([&] { return ::kill(slow, 0) != 0; })) << "it must not stay behind";
    DoctorReport absent(mainLoop, folder / "absent");
    EXPECT_NE(ask(absent).problem.find("cannot be started"), std::string::npos);
}

TEST_F(DoctorReports, StartOverForANewerRequestAndAnswerBoth) {
    DoctorReport program(mainLoop, script("slow",
                                          "[ -e \"$0.once\" ] || { : > \"$0.once\"; exec sleep 1000; }\n"
                                          "echo '[{\"subject\":\"cue\",\"what\":\"Cue\",\"works\":true}]'"));
    std::vector<std::string> answers;
    const auto note = [&](const char* name) {
        return [&answers, name](const SystemReport::Result& result) {
            answers.push_back(name + std::to_string(result.findings.size()) + result.problem);
        };
    };
    program.request(note("first "));
    ASSERT_TRUE(eventually([&] { return ::access((folder / "slow.once").c_str(), F_OK) == 0; }));
    program.request(note("second "));
    ASSERT_TRUE(eventually([&] { return answers.size() == 2; }));
    EXPECT_EQ(answers, (std::vector<std::string>{"first 1", "second 1"}));
}

TEST_F(DoctorReports, BringEveryFindingAndKeepWhatIsPersonalOutOfTheText) {
    qputenv("HOME", QByteArray::fromStdString(folder.path().string()));
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder / "config"));
    LinuxDesktop same(mainLoop, LinuxDesktop::Places::current());
    RuleStore store(same.defaults());
    GestureRule rule = GestureRule::recommendedDefault();
    rule.action = {};
    rule.action.kind = ActionKind::openFileOrFolder;
    rule.action.value = folder / "diary";
    store.setRules({rule});
    DoctorReport program(mainLoop, KINESTA_PROGRAM, "1.2.3");
    const SystemReport::Result result = ask(program);
    EXPECT_EQ(result.problem, "");
    EXPECT_EQ(result.findings, checkSystem(same, store.rules().value()));
    EXPECT_TRUE(std::ranges::any_of(result.findings, [](const auto& finding) { return finding.rule.has_value(); }));
    for (const std::string& part : {std::string("diary"), folder.path().string()})
        EXPECT_EQ(result.text.find(part), std::string::npos) << result.text;
    for (const char* part : {"Kinesta 1.2.3\n", "Touchpad", "Left out: 1 finding about single rules"})
        EXPECT_NE(result.text.find(part), std::string::npos) << result.text;
}

}  // namespace
}  // namespace kinesta::testing
