#include "ui/sidebar/EmptyList.h"
#include "ui/sidebar/Sidebar.h"
#include "ui/widgets/Words.h"

#include <xcb/xtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <algorithm>

#include "rules/RuleMaking.h"
#include "shell/QtTest.h"
#include "support/FakeUserDefaults.h"
#include "support/VirtualClock.h"
#include "support/VirtualMainThread.h"
#include "ui/widgets/WindowTheme.h"
#include "window/NoCommands.h"

namespace kinesta::testing {
namespace {

struct NotedCommands : NoCommands {
    explicit NotedCommands(RuleListModel& rules) : model(rules) {}

    void select(const WindowSelection& selection) override { model.select(selection); }
    void addRule() override { model.addRule(); }
    void deleteRules() override { model.deleteSelectedRule(); }
    void runAction(const Uuid& /*rule*/) override { ++actions; }

    RuleListModel& model;
    int actions = 0;
};

class SidebarOfAWindow : public QtTest {
  protected:
    /// Rules with these letters as names.
    void show(const std::string& names) {
        WindowTheme::setReducesMotion(true);
        std::vector<GestureRule> rules;
        for (const char name : names)
            rules.push_back(rule(std::string(1, name)));
        store.setRules(rules);
        model.select(WindowSelection::overview());
        sidebar.resize(284, 600);
        sidebar.show();
        sidebar.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&sidebar));
        ASSERT_TRUE(eventually([&] { return list->viewport()->height() > 300; }));
    }

    static GestureRule rule(const std::string& name) {
        GestureRule made = makeRule(GestureKind::singleTap, 3);
        made.name = name;
        return made;
    }
    Uuid id(std::size_t index) const { return store.rules().value().at(index).id; }

    /// "a [b]- (c)": [shown], (marked), "-" off.
    std::string text() const {
        std::string all;
        for (const GestureRule& rule : store.rules().value()) {
            const bool isShown = model.selection().value() == WindowSelection::rule(rule.id);
            const bool isMarked = model.markedRules().value().contains(rule.id);
            all += (all.empty() ? "" : " ") + (isShown    ? "[" + rule.name + "]"
                                               : isMarked ? "(" + rule.name + ")"
                                                          : rule.name);
            all += rule.isEnabled ? "" : "-";
        }
        return all;
    }
    QRect row(int index) const { return list->visualRect(list->model()->index(index, 0)); }

    void moveTo(QPoint point) const {
        point = list->viewport()->mapToGlobal(point);
        fake(XCB_MOTION_NOTIFY, 0, point);
        EXPECT_TRUE(eventually([&] { return QCursor::pos() == point; }));
        QCoreApplication::processEvents();
    }
    void press(QPoint point) const {
        moveTo(point);
        fake(XCB_BUTTON_PRESS, 1, {});
        EXPECT_TRUE(eventually([] { return QGuiApplication::mouseButtons() == Qt::LeftButton; }));
    }
    void release() const {
        fake(XCB_BUTTON_RELEASE, 1, {});
        EXPECT_TRUE(eventually([] { return QGuiApplication::mouseButtons() == Qt::NoButton; }));
    }
    void keys(const std::vector<QKeyCombination>& all) {
        for (const QKeyCombination& key : all)
            QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
    }
    QAccessibleInterface* item(int index) const { return QAccessible::queryAccessibleInterface(list)->child(index); }

    FakeUserDefaults defaults;
    RuleStore store{defaults};
    VirtualMainThread mainThread;
    VirtualClock clock{mainThread};
    RuleHistory history{store, clock};
    RuleListModel model{store, history};
    NotedCommands commands{model};
    Sidebar sidebar{model, commands};
    QListView* list = sidebar.findChild<QListView*>();

  private:
    void fake(int type, int button, QPoint point) const {
        xcb_test_fake_input(desktop.connection(), static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(button),
                            XCB_CURRENT_TIME, desktop.root(), static_cast<std::int16_t>(point.x()),
                            static_cast<std::int16_t>(point.y()), 0);
        xcb_flush(desktop.connection());
    }
};

TEST_F(SidebarOfAWindow, RowsAreDraggedToAnotherPlace) {
    show("abcd");
    press(row(0).center());
    moveTo(row(1).center());
    moveTo(row(2).center() + QPoint(0, 10));
    release();
    EXPECT_EQ(text(), "b c [a] d");
    model.selectRules({id(1)}, id(3));
    press(row(1).center());  // one of two marked rows: both come along
    moveTo(row(0).center());
    moveTo(QPoint(20, row(0).top()));
    release();
    EXPECT_EQ(text(), "[c] (d) b a");
    press(row(3).center());
    moveTo(row(0).center());
    keys({Qt::Key_Escape});
    release();
    EXPECT_EQ(text(), "c d b [a]");
    history.undo();
    EXPECT_EQ(text(), "b c [a] d");
}

TEST_F(SidebarOfAWindow, DraggingScrollsTowardTheEndAndRestsUnderAFilter) {
    show("abcdefghijklmnop");
    press(row(1).center());
    moveTo({40, list->viewport()->height() + 30});
    EXPECT_TRUE(eventually([&] { return list->verticalScrollBar()->value() == list->verticalScrollBar()->maximum(); }));
    release();
    EXPECT_EQ(text(), "a c d e f g h i j k l m n o p [b]");
    model.setFilter("tap");
    list->scrollToTop();
    press(row(1).center());
    moveTo(row(4).center());
    release();
    EXPECT_EQ(text().substr(0, 7), "a [c] d");
}

TEST_F(SidebarOfAWindow, TheKeyboardReachesAndChangesTheRules) {
    show("abcd");
    QSignalSpy nameWanted(&sidebar, &Sidebar::nameWanted);
    sidebar.findChild<QAbstractButton*>()->setFocus(Qt::TabFocusReason);
    keys({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab});
    EXPECT_EQ(QApplication::focusWidget(), list);
    EXPECT_EQ(model.selection().value(), WindowSelection::overview());
    using Keys = std::vector<QKeyCombination>;
    for (const auto& [pressed, expected] : std::vector<std::pair<Keys, std::string>>{
             {{Qt::Key_Down}, "[a] b c d"},
             {{Qt::Key_Down, Qt::SHIFT | Qt::Key_Down}, "a (b) [c] d"},
             {{Qt::Key_Space}, "a (b)- [c]- d"},
             {{Qt::ALT | Qt::Key_Up}, "(b)- [c]- a d"},
             {{Qt::ALT | Qt::Key_Up}, "(b)- [c]- a d"},
             {{Qt::ALT | Qt::Key_Down, Qt::ALT | Qt::Key_Down, Qt::ALT | Qt::Key_Down}, "a d (b)- [c]-"},
             {{Qt::Key_Home}, "[a] d b- c-"},
             {{Qt::Key_B, Qt::Key_Space}, "a d [b]- c-"},  // the space belongs to the letters
             {{Qt::Key_F2}, "a d [b]- c-"},
         }) {
        keys(pressed);
        EXPECT_EQ(text(), expected);
    }
    EXPECT_EQ(nameWanted.size(), 1);
    for (int i = 0; i < 3; ++i)
        history.undo();
    EXPECT_EQ(text(), "a [b]- c- d");  // several rules are one step
}

TEST_F(SidebarOfAWindow, ASwitchThatCannotGoOnSaysWhyBelowItsRow) {
    show("ab");
    store.addRule();
    GestureRule unfinished = store.rules().value()[2];
    unfinished.gesture = GestureKind::tipTapLeft;
    store.binding(unfinished.id)->set(unfinished);
    const int height = row(2).height();
    press({row(2).right() - 30, row(2).center().y()});
    release();
    EXPECT_EQ(text(), "a b -");  // and pressing a switch selects nothing
    QWidget* line = nullptr;
    for (QWidget* part : sidebar.findChildren<QWidget*>())
        if (part->accessibleName() == QStringLiteral("Choose an action to switch this rule on."))
            line = part;
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(line)->role(), QAccessible::AlertMessage);
    EXPECT_TRUE(eventually([&] { return row(2).height() > height + 20 && line->isVisible(); }));
    unfinished.action.kind = ActionKind::closeWindow;
    store.binding(unfinished.id)->set(unfinished);
    EXPECT_TRUE(eventually([&] { return row(2).height() == height && !line->isVisible(); }));
    press({row(2).right() - 30, row(2).center().y()});
    release();
    EXPECT_EQ(text(), "a b ");
}

TEST_F(SidebarOfAWindow, SelectionAndPlaceStayWhenTheRulesChangeBehindIt) {
    show("abcdefghijklmnopqrst");
    model.selectRules({id(11)}, id(12));
    list->verticalScrollBar()->setValue(400);
    const int top = row(12).top();
    QSignalSpy reset(list->model(), &QAbstractItemModel::modelReset);
    QSignalSpy changed(list->model(), &QAbstractItemModel::dataChanged);
    std::vector<GestureRule> rules = store.rules().value();
    rules[14].name = "renamed";
    rules.erase(rules.begin() + 2, rules.begin() + 4);
    rules.insert(rules.begin() + 1, {rule("x"), rule("y"), rule("z")});
    std::swap(rules[16], rules[18]);
    store.setRules(rules);
    EXPECT_EQ(text(), "a x y z b e f g h i j k (l) [m] n renamed r q p s t");
    EXPECT_EQ(row(13).top(), top);
    EXPECT_EQ(list->selectionModel()->selectedIndexes().size(), 2);
    EXPECT_TRUE(reset.isEmpty());
    EXPECT_EQ(changed.size(), 1);
    // A filter that hides the selected rule and then shows it again leaves it selected.
    for (const char* filter : {"renamed", ""}) {
        model.setFilter(filter);
        EXPECT_EQ(model.selection().value(), WindowSelection::rule(rules[13].id));
    }
    EXPECT_EQ(list->selectionModel()->selectedIndexes().size(), 2);
    model.setFilter("no");
    model.setFilter("none");
    EXPECT_EQ(sidebar.findChild<EmptyList*>()->findChildren<Words*>().back()->text(),
              QStringLiteral("No gesture is called “none”."));
}

TEST_F(SidebarOfAWindow, ScreenReadersKnowTheRules) {
    show("abcdefghi");
    std::vector<GestureRule> rules = store.rules().value();
    rules.resize(9);
    rules[0].name.clear();
    rules[1].action.kind = ActionKind::unconfigured;
    rules[2] = disabled(rules[2]);
    store.setRules(rules);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(list)->role(), QAccessible::List);
    EXPECT_EQ(item(0)->role(), QAccessible::ListItem);
    EXPECT_EQ(item(0)->text(QAccessible::Name), QStringLiteral("Untitled gesture"));
    EXPECT_TRUE(item(0)->state().checked);
    EXPECT_FALSE(item(2)->state().checked);
    EXPECT_EQ(item(1)->text(QAccessible::Description),
              QStringLiteral("3-finger tap · No action. Choose an action to switch this rule on."));
    QStringList names;
    sidebar.findChild<QAbstractButton*>()->setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 6; ++i) {
        names += QAccessible::queryAccessibleInterface(QApplication::focusWidget())->text(QAccessible::Name);
        keys({Qt::Key_Tab});
    }
    EXPECT_EQ(names.join(QStringLiteral(", ")),
              QStringLiteral("Overview, Add gesture, More, Filter gestures, Gestures, Settings"));
}

TEST_F(SidebarOfAWindow, AsksBeforeADeletionAboutTheRulesThatAreStillThere) {
    show("abc");
    const auto question = [&] { return sidebar.findChild<QMessageBox*>(); };
    const auto ask = [&](std::size_t first, std::size_t second) {
        model.selectRules({id(first)}, id(second));
        list->setFocus();
        keys({Qt::Key_Delete});
        return question()->text();
    };
    EXPECT_EQ(ask(0, 1), QStringLiteral("Delete 2 gestures?"));
    EXPECT_EQ(question()->informativeText(), QStringLiteral("This action cannot be undone."));
    EXPECT_EQ(question()->defaultButton()->text(), QStringLiteral("Cancel"));
    store.deleteRules({id(0)});
    EXPECT_EQ(question()->text(), QStringLiteral("Delete “b”?"));
    QTest::keyClick(question(), Qt::Key_Escape);
    EXPECT_EQ(text(), "[b] c");
    EXPECT_TRUE(eventually([&] { return question() == nullptr; }));
    ask(0, 0);
    QTest::keyClick(question()->defaultButton(), Qt::Key_Tab);
    QTest::keyClick(question()->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(text(), "[c]");
    EXPECT_TRUE(eventually([&] { return question() == nullptr; }));
    ask(0, 0);
    store.deleteRules({id(0)});
    EXPECT_TRUE(eventually([&] { return question() == nullptr; }));
    EXPECT_EQ(model.pendingDeletion().value(), std::nullopt);
}

}  // namespace
}  // namespace kinesta::testing
