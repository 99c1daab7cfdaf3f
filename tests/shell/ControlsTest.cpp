#include <QAccessible>
#include <QHBoxLayout>
#include <QSignalSpy>

#include "platform/qt/ThemePalette.h"
#include "shell/QtTest.h"
#include "ui/widgets/PadPicture.h"
#include "ui/widgets/Row.h"
#include "ui/widgets/Segments.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/TileGroup.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::testing {
namespace {

class Controls : public QtTest {
  protected:
    void show(const std::vector<QWidget*>& parts) {
        auto* line = new QHBoxLayout(&window);
        for (QWidget* part : parts)
            line->addWidget(part);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static TileGroup* fingers() {
        auto* group = new TileGroup(QStringLiteral("Fingers"), 2);
        for (int count = 2; count <= 5; ++count) {
            const QString word = QString::number(count);
            group->addTile(count, Tile::ofGesture(Tile::Form::flat, word, word, 32, {GestureKind::singleTap, count}));
        }
        return group;
    }

    QWidget window;
};

TEST_F(Controls, SwitchIsACheckBoxThatTheKeyboardTurns) {
    auto* control = new Switch(QStringLiteral("Show a cue"));
    show({control});
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(control);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Show a cue"));
    bool expected = false;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Space}) {
        control->setFocus(Qt::TabFocusReason);
        QTest::keyClick(control, key);
        expected = !expected;
        EXPECT_EQ(control->isChecked(), expected);
        EXPECT_EQ(accessible->state().checked, expected);
    }
    const auto showsMiddle = [control](const QColor& colour) {
        return eventually([&] { return control->grab().toImage().pixelColor(control->rect().center()) == colour; });
    };
    EXPECT_TRUE(showsMiddle(asQColor(WindowTheme::current().accent)));
    // Switched back before its knob arrived, it ends up looking off.
    control->setChecked(false);
    ASSERT_TRUE(showsMiddle(Qt::white));
}

TEST_F(Controls, AGroupIsOneTabStopAndArrowsChooseInTwoDirections) {
    TileGroup* group = fingers();
    auto* segments = new Segments(QStringLiteral("Tap waiting interval"));
    for (const int value : {150, 200, 250})
        segments->addSegment(value, QString::number(value));
    show({group, segments});
    QSignalSpy chose(group, &ChoiceGroup::chose);
    group->setChosen(2);
    EXPECT_TRUE(chose.isEmpty());
    group->tile(0)->setFocus(Qt::TabFocusReason);
    // 2 3
    // 4 5
    for (const auto& [key, expected] : std::vector<std::pair<Qt::Key, int>>{{Qt::Key_Right, 3},
                                                                            {Qt::Key_Down, 5},
                                                                            {Qt::Key_Right, 5},
                                                                            {Qt::Key_Left, 4},
                                                                            {Qt::Key_Home, 2},
                                                                            {Qt::Key_End, 5},
                                                                            {Qt::Key_3, 3}}) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(group->chosen(), expected);
        EXPECT_EQ(QApplication::focusWidget(), group->tile(static_cast<std::size_t>(expected - 2)));
    }
    EXPECT_EQ(chose.size(), 6);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->parentWidget(), segments);
    const QAccessibleInterface* named = QAccessible::queryAccessibleInterface(group);
    EXPECT_EQ(named->role(), QAccessible::Grouping);
    EXPECT_EQ(named->text(QAccessible::Name), QStringLiteral("Fingers"));
    const QAccessibleInterface* tile = QAccessible::queryAccessibleInterface(group->tile(1));
    EXPECT_EQ(tile->role(), QAccessible::RadioButton);
    EXPECT_TRUE(tile->state().checked);
    group->setChosen({});
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_FALSE(group->tile(i)->isChecked());
}

TEST_F(Controls, GrowWithTheFontOfTheApplication) {
    auto* row = new Row(QStringLiteral("Launch at login"));
    auto* control = new Switch(QStringLiteral("Launch at login"));
    row->setControl(control);
    show({row});
    const int words = row->title().sizeHint().height();
    const int side = control->sizeHint().height();
    const int height = row->minimumHeight();
    QFont font = QApplication::font();
    font.setPixelSize(3 * QFontInfo(font).pixelSize());
    QApplication::setFont(font);
    EXPECT_TRUE(eventually([&] { return row->title().sizeHint().height() > 2 * words; }));
    EXPECT_TRUE(eventually([&] { return row->minimumHeight() > height * 3 / 2; }));
    EXPECT_GT(control->sizeHint().height(), side * 3 / 2);
}

TEST_F(Controls, APadMovesOnlyWhileItIsSeenAndMotionIsWelcome) {
    auto* pad = new PadPicture(96);
    pad->setGesture({GestureKind::singleTap, 2});
    EXPECT_EQ(QAccessible::queryAccessibleInterface(pad)->role(), QAccessible::Graphic);
    pad->perform(0.25);
    EXPECT_FALSE(pad->isPerforming());
    show({pad});
    pad->perform(0.25);
    EXPECT_TRUE(pad->isPerforming());
    window.hide();
    EXPECT_FALSE(pad->isPerforming());
    window.show();
    WindowTheme::setReducesMotion(true);
    pad->perform(0.25);
    EXPECT_FALSE(pad->isPerforming());
    WindowTheme::setReducesMotion(false);
}

}  // namespace
}  // namespace kinesta::testing
