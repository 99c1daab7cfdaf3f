#include "Scenes.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "support/Text.h"

namespace kinesta {
namespace {

constexpr QSize kTall{980, 1500};
constexpr QSize kNarrow{480, 760};
/// The last gesture and the test sheet wait for a second tap first.
constexpr int kAfterTap = 900;

using Act = std::function<void(Stage&)>;

/// Whether `text`, which `widget` or one around it has set, stands for this English one.
bool means(const QString& text, const char* english, const QWidget* widget) {
    if (text.isEmpty())
        return false;
    for (; widget != nullptr; widget = widget->parentWidget())
        if (text == QCoreApplication::translate(widget->metaObject()->className(), english))
            return true;
    return false;
}

/// The visible widget with this accessible name, or with these words on it.
template <typename Widget>
Widget* named(QWidget& root, const char* name) {
    const auto widgets = root.findChildren<Widget*>();
    for (Widget* widget : widgets) {
        if (!widget->isVisible())
            continue;
        if (means(widget->accessibleName(), name, widget))
            return widget;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        if (button != nullptr && means(button->text(), name, widget))
            return widget;
    }
    qWarning("Nothing is called %s.", name);
    return nullptr;
}

void click(QWidget& root, const char* name) {
    auto* widget = named<QWidget>(root, name);
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        button->click();
    else if (widget != nullptr)
        QTest::mouseClick(widget, Qt::LeftButton);
}

Act selecting(const char* rule) {
    return [rule](Stage& stage) { stage.window().select(WindowSelection::rule(stage.rule(rule))); };
}

Act then(Act first, Act second) {
    return [first = std::move(first), second = std::move(second)](Stage& stage) {
        first(stage);
        QTest::qWait(100);
        second(stage);
    };
}

Act clicking(const char* name) {
    return [name](Stage& stage) { click(stage.window(), name); };
}

void settings(Stage& stage) { stage.window().select(WindowSelection::settings()); }

void drop(Stage& stage, const std::string& file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&stage.window(), &enter);
    QDropEvent event({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&stage.window(), &event);
}

void hold(Stage& stage) {
    for (int i = 0; i <= 40; ++i) {
        const double x = 0.01 * i;
        stage.touch(1 + 0.02 * i,
                    "[1," + numberText(0.2 + x) + ",0.4],[2," + numberText(0.4 + x) + ",0.55],[3,0.95,0.05]");
        QTest::qWait(20);
    }
}

void filterFor(Stage& stage, const char* words) {
    if (auto* field = named<QLineEdit>(stage.window(), "Filter gestures")) {
        field->setFocus();
        field->setText(QString::fromUtf8(words));
    }
}

void openList(Stage& stage, const char* name) {
    if (auto* combo = named<QComboBox>(stage.window(), name))
        combo->showPopup();
}

void openRowMenu(Stage& stage) {
    if (auto* list = named<QListView>(stage.window(), "Gestures")) {
        list->setFocus(Qt::TabFocusReason);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, list->rect().center(),
                                list->mapToGlobal(list->rect().center()));
        QApplication::sendEvent(list->viewport(), &event);
    }
}

std::vector<Scene> overviewScenes(const Setting& usual) {
    Setting off = usual;
    off.switches = {{"gesturesEnabled", false}};
    Setting unavailable = usual;
    unavailable.hasTrackpad = false;
    Setting first;
    first.isFirstLaunch = true;
    Setting findings = usual;
    findings.hasFindings = true;
    Setting forbidden = usual;
    forbidden.isPermissionMissing = true;
    return {{"overview", usual},
            {"overview-none-on", usual, [](Stage& stage) { stage.store().disableAllRules(); }},
            {"overview-off", off},
            {"overview-stopped", usual, [](Stage& stage) { stage.service().stop(); }},
            {"overview-unavailable", unavailable},
            {"overview-first-launch", first},
            {"overview-last-gesture", usual, [](Stage& stage) { stage.tap(1); }, kAfterTap},
            {"overview-findings", findings},
            {"overview-permission", forbidden},
            {"overview-notices", usual, [](Stage& stage) {
                 stage.window().setNotices({{OverviewNotice::Kind::problem, "The settings cannot be stored: the disk is full."},
                                            {OverviewNotice::Kind::remark,
                                             "This desktop shows no status icons. Start Kinesta again to come back to this window."}});
             }}};
}

std::vector<Scene> ruleScenes(const Setting& every) {
    Setting tall = every;
    tall.size = kTall;
    std::vector<Scene> scenes;
    for (const auto& [name, rule] : std::vector<std::pair<const char*, const char*>>{{"rule-editor", "Close window"},
                                                                                     {"rule-clash", "Middle click"},
                                                                                     {"rule-desktop-gesture", "Two fingers"}})
        scenes.push_back({QString::fromUtf8(name), every, selecting(rule)});
    for (const auto& [name, rule] : std::vector<std::pair<const char*, const char*>>{{"rule-volume", "Volume"},
                                                                                     {"rule-tip-tap", "Previous tab"},
                                                                                     {"rule-corner", "Terminal"},
                                                                                     {"rule-force-click", "Lock screen"},
                                                                                     {"rule-click", "Projects"},
                                                                                     {"rule-soft-click", "Backup"},
                                                                                     {"rule-unfinished", "No key yet"},
                                                                                     {"action-address", "News"},
                                                                                     {"action-path-missing", "Nothing there"}})
        scenes.push_back({QString::fromUtf8(name), tall, selecting(rule)});
    const Act recording = then(selecting("No key yet"), clicking("Record shortcut"));
    scenes.push_back({"recorder-listening", tall, recording});
    scenes.push_back({"recorder-held", tall, then(recording, [](Stage&) {
                          // The recorder reads keys as the server sends them. They come up after the picture.
                          QProcess::startDetached("xdotool", {"keydown", "ctrl", "keydown", "shift", "sleep", "1",
                                                              "keyup", "shift", "keyup", "ctrl"});
                      })});
    scenes.push_back({"address-refused", tall, then(selecting("News"), [](Stage& stage) {
                          if (auto* field = named<QLineEdit>(stage.window(), "Address")) {
                              field->clear();
                              QTest::keyClicks(field, "ftp://files.example.org");
                          }
                      })});
    scenes.push_back({"menu-common-shortcuts", tall, then(selecting("Previous tab"), clicking("Common shortcuts"))});
    scenes.push_back({"menu-what-happens", tall, then(selecting("Close window"), [](Stage& stage) {
                          openList(stage, "What happens");
                      })});
    return scenes;
}

std::vector<Scene> settingsScenes(const Setting& usual) {
    Setting tall = usual;
    tall.size = {980, 1800};
    Setting approval = tall;
    approval.login = LoginItemStatus::requiresApproval;
    approval.hasUpdates = true;
    Setting broken = tall;
    broken.login = LoginItemStatus::notFound;
    broken.switches = {{"gesturesEnabled", false}, {"cornerPalmRejectionEnabled.v1", false}};
    return {{"settings", usual, settings},
            {"settings-whole", tall, settings},
            {"settings-approval", approval, settings},
            {"settings-login-error", broken, settings},
            {"settings-reset-question", usual, then(settings, [](Stage& stage) { stage.window().resetSettings(); })}};
}

std::vector<Scene> otherScenes(const Setting& usual, const Setting& every, const std::string& folder) {
    Setting off = usual;
    off.switches = {{"gesturesEnabled", false}};
    Setting narrow = usual;
    narrow.size = kNarrow;
    Setting many = usual;
    many.moreRules = 1000;
    Setting least = usual;
    least.size = {860, 560};
    const Act trying = [](Stage& stage) { stage.window().tryGesture(); };
    return {
        {"rule-new", usual, [](Stage& stage) { stage.window().addRule(); }},
        {"test-waiting", usual, trying},
        {"test-live", usual, then(trying, hold)},
        {"test-detected", usual, then(trying, [](Stage& stage) { stage.tap(1); }), kAfterTap},
        {"test-off", off, trying},
        {"about", usual, [](Stage& stage) { stage.window().showAbout(); }},
        {"delete-question", usual, then(selecting("Next tab"), [](Stage& stage) { stage.window().deleteRules(); })},
        {"import-broken", usual, [folder](Stage& stage) { drop(stage, folder + "/broken-rules.json"); }},
        {"import-toast", usual, [folder](Stage& stage) { drop(stage, folder + "/rules.json"); }},
        {"menu-more", usual, clicking("More")},
        {"menu-row", usual, then(selecting("Next tab"), openRowMenu)},
        {"one-pane", narrow},
        {"one-pane-rule", narrow, selecting("Close window")},
        {"one-pane-overview", narrow, [](Stage& stage) { stage.window().select(WindowSelection::overview()); }},
        {"one-pane-settings", narrow, settings},
        {"smallest", least, selecting("Close window")},
        {"empty-list", {}},
        {"filter-nothing", every, [](Stage& stage) { filterFor(stage, "volime"); }},
        {"rules-1000", many},
        {"focus-ring", usual, [](Stage& stage) {
             if (auto* button = named<QAbstractButton>(stage.window(), "Try a gesture"))
                 button->setFocus(Qt::TabFocusReason);
         }}};
}

}  // namespace

std::vector<Scene> allScenes(const std::string& folder) {
    Setting usual;
    usual.rules = folder + "/rules.json";
    Setting every;
    every.rules = folder + "/every-rule.json";
    std::vector<Scene> scenes;
    for (auto& part : {overviewScenes(usual), ruleScenes(every), settingsScenes(usual), otherScenes(usual, every, folder)})
        scenes.insert(scenes.end(), part.begin(), part.end());
    return scenes;
}

}  // namespace kinesta
