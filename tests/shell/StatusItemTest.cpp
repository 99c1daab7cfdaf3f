#include <QElapsedTimer>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include "platform/linuxdesktop/tray/LinuxStatusItem.h"
#include "shell/QtTest.h"
#include "shell/TestPanel.h"

namespace kinesta::testing {
namespace {

using Command = StatusMenuCommand;
using Lines = std::vector<std::string>;

StatusMenu menuWith(const std::string& status, bool isOn) {
    return {{"Gestures enabled", Command::toggleGestureRecognition, true, isOn, true},
            {status, Command::none, false},
            {},
            {"Quit", Command::quitApplication, true}};
}

class StatusItemTest : public QtTest {
  protected:
    StatusItemTest() {
        item.setState(true, "Kinesta, gestures enabled");
        item.setToolTip("Kinesta");
        item.setMenu(menuWith("Cannot open /dev/input/event_5 & more.", true));
    }

    void create() {
        item.create({.clicked =
                         [this](StatusItemClick click) {
                             const bool isLeft = click.button == StatusItemClick::Button::left;
                             happened.push_back(std::string(isLeft ? "left" : "right") +
                                                (click.isControlHeld ? " control" : ""));
                             if (!isLeft)
                                 item.openMenu();
                         },
                     .chosen =
                         [this](Command command) {
                             happened.push_back(command == Command::quitApplication ? "quit" : "another");
                         }});
    }

    void startPanel() { panel = std::make_unique<TestPanel>(connectToBus()); }
    void startTray() { tray = desktop.start({"trayer", "--edge", "top", "--align", "left", "--height", "24"}); }
    /// Since the last call of this.
    bool panelHears(const QStringList& signalNames) {
        return eventually([&] { return panel->signalNames == signalNames; }) && (panel->signalNames.clear(), true);
    }
    bool becomes(TrayKind kind) {
        return eventually([&] { return item.kind().value() == kind; });
    }
    bool happens(const Lines& expected) {
        return eventually([&] { return happened == expected; }) && (happened.clear(), true);
    }

    /// The values of the answer, or "error".
    QVariantList ask(const QString& interface, const QString& method, const QVariantList& arguments = {}) {
        const auto call = panel->call(interface, method, arguments);
        EXPECT_TRUE(eventually([&] { return call.isFinished(); }));
        return call.isError() ? QVariantList{"error"} : call.reply().arguments();
    }
    QVariantList askMenu(const QString& method, const QVariantList& arguments) {
        return ask("com.canonical.dbusmenu", method, arguments);
    }
    bool isRefused(const QString& method, const QVariantList& arguments) {
        return askMenu(method, arguments) == QVariantList{"error"};
    }

    ExportedMenuLayout layout() {
        return qdbus_cast<ExportedMenuLayout>(askMenu("GetLayout", {0, -1, QStringList()}).value(1));
    }
    Lines layoutLines() {
        Lines lines;
        for (const ExportedMenuItem& entry : layout().children) {
            const auto text = [&](const char* name) { return entry.properties.value(name).toString().toStdString(); };
            lines.push_back(text("type") + text("label") + (text("enabled") == "false" ? " (disabled)" : "") +
                            text("toggle-type") + text("toggle-state"));
        }
        return lines;
    }
    void event(int id, const char* type) { askMenu("Event", {id, type, QVariant::fromValue(QDBusVariant(0)), 0U}); }

    /// Where the tray shows our icon. Nothing if no window of ours has its name.
    WindowRectangle iconPlace() {
        const auto search = desktop.start({"xdotool", "search", "--onlyvisible", "--name", "^Kinesta, gestures"});
        const auto window = search->readLine();
        return window ? desktop.client(static_cast<xcb_window_t>(std::stoul(*window))) : WindowRectangle{};
    }
    void click(const std::string& button, const std::string& key = {}) {
        const auto place = iconPlace();
        desktop.run({"xdotool", "mousemove", std::to_string(place.x + 5), std::to_string(place.y + 5)});
        desktop.run(key.empty() ? Lines{"xdotool", "click", button}
                                : Lines{"xdotool", "keydown", key, "click", button, "keyup", key});
    }

    std::unique_ptr<TestPanel> panel;
    std::unique_ptr<ChildProcess> tray;
    Lines happened;
    LinuxStatusItem item{connectToBus()};
};

TEST_F(StatusItemTest, FollowsPanelsAsTheyComeAndGo) {
    create();
    startTray();
    EXPECT_TRUE(becomes(TrayKind::xembed));
    startPanel();
    EXPECT_TRUE(becomes(TrayKind::statusNotifier));
    EXPECT_EQ(panel->items, QStringList("org.kde.StatusNotifierItem-" + QString::number(getpid()) + "-1"));
    EXPECT_TRUE(eventually([&] { return iconPlace().width == 0; }));
    panel.reset();
    EXPECT_TRUE(becomes(TrayKind::xembed));
    EXPECT_GT(iconPlace().width, 0);
    startPanel();
    EXPECT_TRUE(becomes(TrayKind::statusNotifier));
    EXPECT_EQ(panel->items.size(), 1);
    tray.reset();
    panel.reset();
    EXPECT_TRUE(becomes(TrayKind::none));
    startTray();
    EXPECT_TRUE(becomes(TrayKind::xembed));
    tray.reset();
    EXPECT_TRUE(becomes(TrayKind::none));
    // The server gives us the icon back, which must not stay as a window of its own.
    EXPECT_EQ(iconPlace().width, 0);
    startTray();
    EXPECT_TRUE(becomes(TrayKind::xembed));
}

TEST_F(StatusItemTest, NeverWaitsForTheBus) {
    startPanel();
    startTray();
    desktop.sessionBus().signal(SIGSTOP);
    QElapsedTimer time;
    time.start();
    create();
    item.setMenu(menuWith("Another", false));
    item.setState(false, "Kinesta, gestures disabled");
    EXPECT_LT(time.elapsed(), 500);
    EXPECT_TRUE(becomes(TrayKind::xembed));
    desktop.sessionBus().signal(SIGCONT);
    EXPECT_TRUE(becomes(TrayKind::statusNotifier));
    desktop.sessionBus().signal(SIGKILL);
    EXPECT_TRUE(becomes(TrayKind::xembed));
    item.setState(true, "Kinesta, gestures enabled");
    click("1");
    EXPECT_TRUE(happens({"left"}));
}

TEST_F(StatusItemTest, TellsPanelsItsStateAndTakesTheirClicks) {
    startPanel();
    create();
    ASSERT_TRUE(becomes(TrayKind::statusNotifier));
    const auto properties = [&] {
        return qdbus_cast<QVariantMap>(
            ask("org.freedesktop.DBus.Properties", "GetAll", {"org.kde.StatusNotifierItem"}).value(0));
    };
    const QVariantMap on = properties();
    EXPECT_EQ(qdbus_cast<QDBusObjectPath>(on["Menu"]).path(), "/MenuBar");
    EXPECT_EQ(on["Status"], "Active");
    EXPECT_EQ(on["ItemIsMenu"], false);
    EXPECT_EQ(qdbus_cast<StatusToolTip>(on["ToolTip"]).description, "Kinesta, gestures enabled");
    item.setState(false, "Kinesta, gestures disabled");
    EXPECT_TRUE(panelHears({"NewIcon", "NewToolTip"}));
    const QVariantMap off = properties();
    EXPECT_EQ(qdbus_cast<StatusToolTip>(off["ToolTip"]).description, "Kinesta, gestures disabled");
    const auto onPixmaps = qdbus_cast<QList<StatusPixmap>>(on["IconPixmap"]);
    const auto offPixmaps = qdbus_cast<QList<StatusPixmap>>(off["IconPixmap"]);
    const std::vector<int> sides{16, 22, 24, 32, 48, 64};
    ASSERT_EQ(onPixmaps.size(), static_cast<qsizetype>(sides.size()));
    for (qsizetype i = 0; i < onPixmaps.size(); ++i) {
        const auto side = sides[static_cast<std::size_t>(i)];
        EXPECT_EQ(onPixmaps[i].height, side);
        EXPECT_EQ(onPixmaps[i].pixels.size(), side * side * 4);
        // The middle of the left side of the box: opaque, and light on the dark panel that is assumed.
        const auto row = onPixmaps[i].pixels.mid(side / 2 * side * 4, side * 2);
        EXPECT_TRUE(row.contains(QByteArray::fromHex("fff4f5f7"))) << side;
        EXPECT_NE(onPixmaps[i].pixels, offPixmaps[i].pixels);
    }
    for (const char* method : {"Activate", "SecondaryActivate", "ContextMenu"})
        ask("org.kde.StatusNotifierItem", method, {2'000'000'000, -2'000'000'000});
    EXPECT_TRUE(happens({"left", "right"}));
    const QWidget* popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(popup->screen()->geometry().contains(popup->geometry()));
}

TEST_F(StatusItemTest, ExportsTheMenuAsItIsNow) {
    startPanel();
    create();
    ASSERT_TRUE(becomes(TrayKind::statusNotifier));
    EXPECT_EQ(layoutLines(), (Lines{"Gestures enabledcheckmark1", "Cannot open /dev/input/event__5 & more. (disabled)",
                                    "separator", "Quit"}));
    const auto before = layout().children;
    item.setMenu(menuWith("Off", false));
    EXPECT_EQ(layoutLines(), (Lines{"Gestures enabledcheckmark0", "Off (disabled)", "separator", "Quit"}));
    EXPECT_TRUE(panelHears({"ItemsPropertiesUpdated"}));
    for (const ExportedMenuItem& entry : before)
        for (const char* type : {"hovered", "clicked"})
            event(entry.id, type);
    EXPECT_TRUE(happens({"another", "quit"}));

    StatusMenu longer = menuWith("Off", false);
    longer.insert(longer.begin(), {"Update", Command::checkForUpdates, true});
    item.setMenu(longer);
    EXPECT_EQ(layoutLines().size(), 5U);
    EXPECT_TRUE(panelHears({"LayoutUpdated"}));
    // A panel that still shows the old menu must not choose from the new one.
    for (const ExportedMenuItem& entry : before)
        event(entry.id, "clicked");
    event(layout().children.last().id, "clicked");
    EXPECT_TRUE(happens({"quit"}));
}

TEST_F(StatusItemTest, RefusesBadCalls) {
    startPanel();
    create();
    ASSERT_TRUE(becomes(TrayKind::statusNotifier));
    const QVariant none = QVariant::fromValue(QDBusVariant(0));
    const auto clicks = [](const QList<int>& ids) {
        QList<ExportedMenuEvent> events;
        for (const int id : ids)
            events.append({id, "clicked", QDBusVariant(0), 0});
        return QVariantList{QVariant::fromValue(events)};
    };
    for (const int id : {-1, 99, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_TRUE(isRefused("GetLayout", {id, -1, QStringList()})) << id;
        EXPECT_TRUE(isRefused("GetProperty", {id, "label"})) << id;
        EXPECT_TRUE(isRefused("Event", {id, "clicked", none, 0U})) << id;
        EXPECT_TRUE(isRefused("AboutToShow", {id})) << id;
    }
    EXPECT_TRUE(isRefused("GetProperty", {1, "nothing"}));
    EXPECT_TRUE(isRefused("GetLayout", {"0"}));
    EXPECT_TRUE(isRefused("Event", {1, 2, 3, 4}));
    EXPECT_TRUE(isRefused("EventGroup", clicks({99})));
    EXPECT_EQ(qdbus_cast<QList<int>>(askMenu("EventGroup", clicks({99, 4})).value(0)), QList<int>{99});
    EXPECT_EQ(ask("org.kde.StatusNotifierItem", "Activate", {"here"}), QVariantList{"error"});
    EXPECT_TRUE(happens({"quit"}));
}

TEST_F(StatusItemTest, TakesClicksAndKeysInAnXembedTray) {
    create();
    startTray();
    ASSERT_TRUE(becomes(TrayKind::xembed));
    click("1");
    EXPECT_TRUE(happens({"left"}));
    click("2");
    click("1", "ctrl");
    EXPECT_TRUE(happens({"left control"}));
    click("3");
    EXPECT_TRUE(happens({"right"}));
    ASSERT_TRUE(eventually([] { return QApplication::activePopupWidget() != nullptr; }));
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup));
    const auto icon = iconPlace();
    EXPECT_GE(popup->y(), icon.y + icon.height);
    desktop.run({"xdotool", "key", "Up", "Return"});
    EXPECT_TRUE(happens({"quit"}));
}

}  // namespace
}  // namespace kinesta::testing
