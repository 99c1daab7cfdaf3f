#include <linux/input-event-codes.h>
#include <xcb/xtest.h>

#include <QAccessible>
#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include "actions/ActionExecutor.h"
#include "desktop/harness/TestWindow.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/qt/QtMainThread.h"
#include "rules/ShortcutKey.h"
#include "shell/QtTest.h"
#include "ui/action/ShortcutMenus.h"
#include "ui/action/ShortcutRecorder.h"
#include "ui/models/ShortcutPresets.h"

namespace kinesta::testing {
namespace {

using Keys = std::vector<std::uint8_t>;

const std::string kNone = "none";
const std::string kPress = "Press the keys. Escape cancels, Delete clears.";
const std::string kSuper =
    "While ⌘ stands for Ctrl, Super counts only together with Ctrl. Settings can change what ⌘ stands for.";
const std::string kAltGr = "AltGr and Hyper cannot be part of a shortcut.";
const std::string kLayout = "With this keyboard layout no shortcut can press this key. Press another one.";

class ShortcutRecorderTest : public QtTest {
  protected:
    ShortcutRecorderTest() {
        auto* column = new QVBoxLayout(&window);
        for (QWidget* part : std::initializer_list<QWidget*>{recorder, menus, other})
            column->addWidget(part);
        QObject::connect(recorder, &ShortcutRecorder::recorded, [this](bool has, quint16 key, ShortcutModifiers held) {
            shortcut = has ? std::optional(RecordedShortcut{key, held}) : std::nullopt;
            ++count;
        });
        window.show();
        bringForward();
    }

    void bringForward() {
        desktop.activate(static_cast<xcb_window_t>(window.winId()));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void send(std::uint8_t type, std::uint8_t key) const {
        xcb_test_fake_input(desktop.connection(), type, static_cast<std::uint8_t>(key + 8), XCB_CURRENT_TIME, XCB_NONE,
                            0, 0, 0);
        xcb_flush(desktop.connection());
    }
    void press(std::uint8_t key) const { send(XCB_KEY_PRESS, key); }
    void release(std::uint8_t key) const { send(XCB_KEY_RELEASE, key); }
    /// All down, then all up in the opposite order.
    void chord(const Keys& keys) const {
        for (const std::uint8_t key : keys)
            press(key);
        for (auto key = keys.rbegin(); key != keys.rend(); ++key)
            release(*key);
    }

    bool shows(const std::string& words) {
        return eventually([&] { return recorder->words() == QString::fromStdString(words); });
    }
    bool hints(const std::string& hint) {
        return eventually([&] { return recorder->hint() == QString::fromStdString(hint); });
    }

    /// The label of what is recorded when these keys are pressed; else the hint.
    std::string recordedFrom(const Keys& keys) {
        recorder->start();
        const int before = count;
        chord(keys);
        eventually([&] { return count > before || recorder->hint() != QString::fromStdString(kPress); });
        if (count == before)
            return recorder->hint().toStdString();
        return shortcut ? ShortcutKey::label(shortcut->keyCode, shortcut->modifiers) : kNone;
    }

    void post() {
        GestureAction action;
        action.kind = ActionKind::keyboardShortcut;
        action.keyCode = shortcut->keyCode;
        action.modifiers = shortcut->modifiers;
        auto ports = machine.actionPorts(machine.defaults());
        ActionExecutor(ports).execute(action, 0, false, std::nullopt);
        ports.events.probePointerLocation(nullptr);  // once the server has taken them
    }

    QtMainThread mainLoop;
    LinuxDesktop machine{mainLoop, {folderOf("XDG_RUNTIME_DIR") / "recorder.json", {}, {}}};
    QWidget window;
    ShortcutRecorder* recorder = new ShortcutRecorder(machine);
    ShortcutMenus* menus = new ShortcutMenus(machine);
    QLineEdit* other = new QLineEdit;
    std::optional<RecordedShortcut> shortcut;
    int count = 0;
};

TEST_F(ShortcutRecorderTest, RecordsWhatPostingPressesAgain) {
    struct Row {
        const char* layout;
        const char* commandKey;
        Keys keys;
        std::string label;
    };
    const std::vector<Row> rows{
        {"us", "control", {KEY_LEFTCTRL, KEY_C}, "⌘C"},
        {"us", "control", {KEY_LEFTSHIFT, KEY_LEFTCTRL, KEY_T}, "⇧⌘T"},
        {"us", "control", {KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTMETA, KEY_Q}, "⌃⌥⌘Q"},
        {"us", "control", {KEY_LEFTMETA, KEY_L}, kSuper},
        {"us", "control", {KEY_LEFTSHIFT, KEY_LEFTCTRL, KEY_TAB}, "⌃⇧Tab"},
        {"us", "control", {KEY_LEFTCTRL, KEY_HOME}, "fn ⌘Left"},
        {"us", "control", {KEY_TAB}, "Tab"},
        {"us", "control", {KEY_LEFTSHIFT, KEY_DELETE}, "fn ⇧Delete"},
        {"us", "control", {KEY_LEFTALT, KEY_DOT}, "⌥Key 47"},
        {"us", "control", {KEY_KPSLASH}, "Key 75"},
        {"us", "control", {KEY_RIGHTALT, KEY_LEFT}, "⌥Left"},
        {"us", "control", {KEY_PAUSE}, "A shortcut cannot hold this key. Press another one."},
        {"us", "super", {KEY_LEFTCTRL, KEY_C}, "⌃C"},
        {"us", "super", {KEY_LEFTMETA, KEY_C}, "⌘C"},
        {"us", "super", {KEY_LEFTCTRL, KEY_LEFTMETA, KEY_C}, "⌃⌘C"},
        {"us", "super", {KEY_LEFTCTRL, KEY_HOME}, "⌃Key 115"},  // ⌃fn← would tile
        {"fr", "control", {KEY_LEFTCTRL, KEY_Q}, "⌘A"},
        {"fr", "control", {KEY_LEFTSHIFT, KEY_A}, "⇧Q"},
        {"fr", "control", {KEY_SEMICOLON}, "M"},
        {"fr", "control", {KEY_LEFTCTRL, KEY_6}, "⌘-"},
        {"fr", "super", {KEY_LEFTSHIFT, KEY_1}, "⇧1"},
        {"fr", "super", {KEY_LEFTCTRL, KEY_M}, "⌃,"},
        {"fr", "super", {KEY_COMMA}, kLayout},
        {"fr", "super", {KEY_RIGHTALT, KEY_E}, kAltGr},
        {"ru", "control", {KEY_LEFTCTRL, KEY_A}, "⌘A"},
    };
    TestWindow target(desktop, {700, 0, 300, 300});
    target.show();
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.layout) + " " + row.commandKey + " " + row.label);
        desktop.setLayout(row.layout);
        machine.defaults().setString("linux.commandKey.v1", row.commandKey);
        bringForward();
        const int before = count;
        EXPECT_EQ(recordedFrom(row.keys), row.label);
        if (count == before)
            continue;
        desktop.activate(target.id());
        target.events();
        chord(row.keys);
        std::string pressed = target.events();
        post();
        std::string posted = target.events();
        // Posting takes the left key of a modifier.
        for (std::size_t at = 0; (at = pressed.find("KEY_RIGHTALT", at)) != std::string::npos;)
            pressed.replace(at, 12, "KEY_LEFTALT");
        EXPECT_EQ(posted, pressed);
    }
}

TEST_F(ShortcutRecorderTest, ListensUntilItIsCancelledClearedOrLeft) {
    recorder->setFocus(Qt::TabFocusReason);
    chord({KEY_SPACE});  // starts it, and its release is no key of the shortcut
    ASSERT_TRUE(hints(kPress));
    press(KEY_LEFTCTRL);
    press(KEY_RIGHTSHIFT);
    auto* caps = recorder->findChild<KeyCapRow*>();
    const int slot = caps->sizeHint().width();
    ASSERT_TRUE(eventually([&] { return caps->sizeHint().width() > 3 * slot; }));
    release(KEY_RIGHTSHIFT);
    release(KEY_LEFTCTRL);
    EXPECT_TRUE(hints("A shortcut needs one more key."));
    EXPECT_EQ(caps->sizeHint().width(), slot);
    TestWindow target(desktop, {700, 0, 300, 300});
    target.show();
    EXPECT_TRUE(hints("Nothing arrived. The desktop may keep this key for itself: see Other keys."));
    bringForward();
    EXPECT_EQ(recordedFrom({KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_ESC}), "⇧⌘Escape");
    recorder->start();
    chord({KEY_ESC});
    EXPECT_TRUE(shows("Shift+Ctrl+Escape"));
    recorder->start();
    other->setFocus();
    EXPECT_TRUE(shows("Shift+Ctrl+Escape"));
    EXPECT_EQ(count, 1);
    EXPECT_EQ(recordedFrom({KEY_BACKSPACE}), kNone);
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(recorder);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Record shortcut"));
    EXPECT_EQ(accessible->text(QAccessible::Value), QStringLiteral("No shortcut"));
}

TEST_F(ShortcutRecorderTest, KeepsAHeldKeyFromTheRestOfTheWindow) {
    struct Repeats final : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            const bool isKey = event->type() == QEvent::KeyPress;
            seen += isKey && static_cast<QKeyEvent*>(event)->isAutoRepeat() ? 1 : 0;
            return false;
        }
        int seen = 0;
    } repeats;
    window.windowHandle()->installEventFilter(&repeats);
    int reloads = 0;
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_R), &window), &QShortcut::activated,
                     [&] { ++reloads; });
    ASSERT_TRUE(run("xset r rate 100 50"));
    for (const auto& [modifier, key] :
         {std::pair<std::uint8_t, std::uint8_t>{KEY_LEFTSHIFT, KEY_TAB}, {KEY_LEFTCTRL, KEY_R}}) {
        recorder->start();
        repeats.seen = 0;
        press(modifier);
        press(key);
        EXPECT_TRUE(eventually([&] { return repeats.seen > 2; }));
        release(key);
        release(modifier);
        EXPECT_TRUE(recorder->hasFocus());
    }
    EXPECT_EQ(count, 2);
    EXPECT_EQ(reloads, 0);
}

TEST_F(ShortcutRecorderTest, OffersWhatWorksHere) {
    const auto titles = [&] {
        std::set<std::string> all;
        for (const ShortcutPresetGroup& group : shortcutPresets(machine))
            for (const ShortcutPreset& preset : group.presets)
                all.insert(preset.title);
        return all;
    };
    const auto withControl = titles();
    EXPECT_TRUE(withControl.contains("Copy") && withControl.contains("Page Up") && withControl.contains("Next Tab"));
    EXPECT_TRUE(withControl.contains("Fill Desktop"));
    EXPECT_FALSE(withControl.contains("Hide App") || withControl.contains("Spotlight"));
    machine.defaults().setString("linux.commandKey.v1", "super");
    desktop.windowManager.reset();
    const auto withSuper = titles();
    EXPECT_TRUE(withSuper.contains("Hide App"));
    EXPECT_FALSE(withSuper.contains("Fill Desktop") || withSuper.contains("Tile Left Half")) << "nothing moves windows";
    EXPECT_FALSE(withSuper.contains("Quick Note")) << "fn and a letter";

    using M = ShortcutModifiers;
    EXPECT_EQ(withKey(124, M::function | M::shift, machine), (RecordedShortcut{124, M::function | M::shift}));
    EXPECT_EQ(withKey(0, M::function | M::shift, machine), (RecordedShortcut{0, M::shift}));
}

TEST_F(ShortcutRecorderTest, TakesAKeyFromTheListByKeyboard) {
    std::string chosen;
    QObject::connect(menus, &ShortcutMenus::chosen,
                     [&](quint16 key, ShortcutModifiers held) { chosen = ShortcutKey::label(key, held); });
    menus->setShortcut(123, ShortcutModifiers::command);
    auto* list = menus->findChild<QListWidget*>();
    const auto buttons = menus->findChildren<QPushButton*>();
    QTimer::singleShot(0, [&] {  // in the menu's own event loop
        EXPECT_TRUE(eventually([&] { return list->hasFocus(); }));
        chord({KEY_DOWN});
        chord({KEY_ENTER});
    });
    buttons.back()->click();
    EXPECT_TRUE(eventually([&] { return chosen == "⌘Right"; })) << chosen;
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

}  // namespace
}  // namespace kinesta::testing
