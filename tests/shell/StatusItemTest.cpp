#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <csignal>
#include <memory>
#include <optional>

#include "platform/linuxdesktop/tray/LinuxStatusItem.h"
#include "shell/QtTest.h"

namespace kinesta::testing {

using Command = StatusMenuCommand;
using Lines = std::vector<std::string>;

constexpr auto kItem = "org.kde.StatusNotifierItem";
constexpr auto kMenu = "com.canonical.dbusmenu";

/// A panel: the watcher, which notes the items, and a host, which notes their signals.
class TestPanel final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

  public:
    explicit TestPanel(const QDBusConnection& connection) : bus(connection) {
        bus.registerObject("/StatusNotifierWatcher", this, QDBusConnection::ExportScriptableSlots);
        for (const char* interface : {kItem, kMenu})
            bus.connect({}, {}, interface, {}, this, SLOT(noteSignal(QDBusMessage)));
        bus.registerService("org.kde.StatusNotifierWatcher");
    }
    ~TestPanel() override { QDBusConnection::disconnectFromBus(bus.name()); }

    Q_SLOT Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& item) { items.append(item); }
    Q_SLOT void noteSignal(const QDBusMessage& message) { signalNames.append(message.member()); }

    QDBusConnection bus;
    QStringList items;
    QStringList signalNames;
};

class StatusItemTest : public QtTest {
  protected:
    static StatusMenu menuWith(const std::string& status, bool isOn) {
        return {{"Gestures enabled", Command::toggleGestureRecognition, true, isOn, true},
                {status, Command::none, false},
                {},
                {"Quit", Command::quitApplication, true}};
    }

    StatusItemTest() {
        item.setState(true, "Kinesta, gestures enabled");
        item.setMenu(menuWith("Cannot open /dev/input/event_5 & more.", true));
    }

    void create() {
        item.create(
            {.clicked =
                 [this](StatusItemClick click) {
                     const bool isLeft = click.button == StatusItemClick::Button::left;
                     happened += isLeft ? "left " : "right ";
                     happened += click.isControlHeld ? "control " : "";
                     if (!isLeft)
                         item.openMenu();
                 },
             .chosen =
                 [this](Command command) { happened += command == Command::quitApplication ? "quit " : "another "; }});
    }

    void startPanel() { panel = std::make_unique<TestPanel>(connectToBus()); }
    void startTray() { tray.emplace("trayer --edge top --align left --height 24"); }
    bool becomes(TrayKind kind) {
        return eventually([&] { return item.kind().value() == kind; });
    }
    /// Since the last call of this.
    bool happens(const std::string& expected) {
        return eventually([&] { return happened == expected; }) && (happened.clear(), true);
    }
    bool panelHears(const QStringList& expected) {
        return eventually([&] { return panel->signalNames == expected; }) && (panel->signalNames.clear(), true);
    }

    /// The values of the answer, or "error".
    QVariantList ask(const QString& interface, const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(
            panel->items.value(0), interface == kMenu ? "/MenuBar" : "/StatusNotifierItem", interface, method);
        message.setArguments(arguments);
        const auto call = panel->bus.asyncCall(message);
        EXPECT_TRUE(eventually([&] { return call.isFinished(); }));
        return call.isError() ? QVariantList{"error"} : call.reply().arguments();
    }
    QVariantMap properties() {
        return qdbus_cast<QVariantMap>(ask("org.freedesktop.DBus.Properties", "GetAll", {kItem}).value(0));
    }
    QList<ExportedMenuItem> exported() {
        return qdbus_cast<ExportedMenuLayout>(ask(kMenu, "GetLayout", {0, -1, QStringList()}).value(1)).children;
    }
    Lines exportedLines() {
        Lines lines;
        for (const ExportedMenuItem& entry : exported()) {
            const auto text = [&](const char* name) { return entry.properties.value(name).toString().toStdString(); };
            lines.push_back(text("type") + text("label") + (text("enabled") == "false" ? " disabled " : " ") +
                            text("toggle-type") + text("toggle-state"));
        }
        return lines;
    }
    void clickExported(const QList<ExportedMenuItem>& items) {
        for (const ExportedMenuItem& entry : items)
            ask(kMenu, "Event", {entry.id, "clicked", QVariant::fromValue(QDBusVariant(0)), 0U});
    }

    /// Where our icon is on the screen. Empty if it is not there.
    WindowRectangle iconPlace() {
        for (const char* title : {"Kinesta, gestures enabled", "Kinesta, gestures disabled"})
            if (const xcb_window_t window = desktop.visible(title); window != XCB_WINDOW_NONE)
                return desktop.client(window);
        return {};
    }
    void click(const std::string& button, const std::string& key = "Shift_L") {
        const auto place = iconPlace();
        EXPECT_TRUE(run("xdotool mousemove " + std::to_string(place.x + 5) + " " + std::to_string(place.y + 5) +
                        " keydown " + key + " click " + button + " keyup " + key));
    }

    std::unique_ptr<TestPanel> panel;
    std::optional<ChildProcess> tray;
    std::string happened;
    LinuxStatusItem item{connectToBus()};
};

TEST_F(StatusItemTest, FollowsPanelsAsTheyComeAndGo) {
    create();
    startTray();
    EXPECT_TRUE(becomes(TrayKind::xembed));
    startPanel();
    EXPECT_TRUE(becomes(TrayKind::statusNotifier));
    EXPECT_TRUE(eventually([&] { return iconPlace().width == 0; }));
    panel.reset();
    EXPECT_TRUE(becomes(TrayKind::xembed));
    EXPECT_GT(iconPlace().width, 0);
    startPanel();
    EXPECT_TRUE(becomes(TrayKind::statusNotifier));
    EXPECT_EQ(panel->items, QStringList(QString("%1-%2-1").arg(kItem).arg(getpid())));
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
    desktop.sessionBus->signal(SIGSTOP);
    QElapsedTimer time;
    time.start();
    create();
    item.setMenu(menuWith("Another", false));
    item.setState(false, "Kinesta, gestures disabled");
    EXPECT_LT(time.elapsed(), 500);
    EXPECT_TRUE(becomes(TrayKind::xembed));
    desktop.sessionBus->signal(SIGCONT);
    EXPECT_TRUE(becomes(TrayKind::statusNotifier));
    desktop.sessionBus->signal(SIGKILL);
    EXPECT_TRUE(becomes(TrayKind::xembed));
    item.setState(true, "Kinesta, gestures enabled");
    click("1");
    EXPECT_TRUE(happens("left "));
}

TEST_F(StatusItemTest, TellsPanelsItsStateAndTakesTheirClicks) {
    startPanel();
    create();
    ASSERT_TRUE(becomes(TrayKind::statusNotifier));
    const auto on = qdbus_cast<QList<StatusPixmap>>(properties()["IconPixmap"]);
    EXPECT_EQ(qdbus_cast<QDBusObjectPath>(properties()["Menu"]).path(), "/MenuBar");
    item.setState(false, "Kinesta, gestures disabled");
    EXPECT_TRUE(panelHears({"NewIcon", "NewToolTip"}));
    EXPECT_EQ(qdbus_cast<StatusToolTip>(properties()["ToolTip"]).description, "Kinesta, gestures disabled");
    const auto off = qdbus_cast<QList<StatusPixmap>>(properties()["IconPixmap"]);
    QList<int> sides;
    for (const StatusPixmap& pixmap : on) {
        const int side = pixmap.height;
        // The left side of the box, light for the dark panel that is assumed.
        EXPECT_TRUE(pixmap.pixels.mid(side / 2 * side * 4, side * 2).contains(QByteArray::fromHex("fff4f5f7"))) << side;
        EXPECT_NE(pixmap.pixels, off.value(sides.size()).pixels);
        sides.append(side);
    }
    EXPECT_EQ(sides, (QList<int>{16, 22, 24, 32, 48, 64}));
    for (const char* method : {"Activate", "SecondaryActivate", "ContextMenu"})
        ask(kItem, method, {2'000'000'000, -2'000'000'000});
    EXPECT_TRUE(happens("left right "));
    const QWidget* popup = QApplication::activePopupWidget();
    EXPECT_TRUE(popup != nullptr && popup->screen()->geometry().contains(popup->geometry()));
}

TEST_F(StatusItemTest, ExportsTheMenuAsItIsNow) {
    startPanel();
    create();
    ASSERT_TRUE(becomes(TrayKind::statusNotifier));
    EXPECT_EQ(exportedLines(), (Lines{"Gestures enabled checkmark1",
                                      "Cannot open /dev/input/event__5 & more. disabled ", "separator ", "Quit "}));
    const auto before = exported();
    item.setMenu(menuWith("Off", false));
    EXPECT_EQ(exportedLines(), (Lines{"Gestures enabled checkmark0", "Off disabled ", "separator ", "Quit "}));
    EXPECT_TRUE(panelHears({"ItemsPropertiesUpdated"}));
    clickExported(before);
    EXPECT_TRUE(happens("another quit "));
    // A panel that still shows the old menu must not choose from the new one.
    item.setMenu({{"Check for Updates…", Command::checkForUpdates, true}, {"Quit", Command::quitApplication, true}});
    EXPECT_TRUE(panelHears({"LayoutUpdated"}));
    clickExported(before);
    clickExported(exported().mid(1));
    EXPECT_TRUE(happens("quit "));
}

TEST_F(StatusItemTest, RefusesBadCalls) {
    startPanel();
    create();
    ASSERT_TRUE(becomes(TrayKind::statusNotifier));
    const QDBusVariant none(0);
    const auto clicks = [&](int first, int second) {
        return QVariant::fromValue(QList<ExportedMenuEvent>{{first, "clicked", none, 0}, {second, "clicked", none, 0}});
    };
    for (const int id : {-1, 99, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        for (const auto& [method, arguments] :
             {std::pair<const char*, QVariantList>{"GetLayout", {id, -1, QStringList()}},
              {"GetProperty", {id, "label"}},
              {"GetProperty", {1, "nothing"}},
              {"Event", {id, "clicked", QVariant::fromValue(none), 0U}},
              {"Event", {id, 2, 3, 4}},
              {"EventGroup", {clicks(id, 99)}},
              {"AboutToShow", {id}}})
            EXPECT_EQ(ask(kMenu, method, arguments), QVariantList{"error"}) << method << " " << id;
    EXPECT_EQ(qdbus_cast<QList<int>>(ask(kMenu, "EventGroup", {clicks(99, 4)}).value(0)), QList<int>{99});
    EXPECT_TRUE(happens("quit "));
}

TEST_F(StatusItemTest, TakesClicksAndKeysInAnXembedTray) {
    create();
    startTray();
    ASSERT_TRUE(becomes(TrayKind::xembed));
    click("1");
    click("2");
    click("1", "Control_L");
    click("3");
    EXPECT_TRUE(happens("left left control right "));
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_TRUE(popup != nullptr && QTest::qWaitForWindowExposed(popup));
    const auto icon = iconPlace();
    EXPECT_GE(popup->y(), icon.y + icon.height);
    EXPECT_TRUE(run("xdotool key Up Return"));
    EXPECT_TRUE(happens("quit "));
}

}  // namespace kinesta::testing

#include "StatusItemTest.moc"
