#include "ui/editor/RuleEditorPage.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include "rules/GestureTypeChoice.h"
#include "rules/RuleMaking.h"
#include "ui/editor/GestureStage.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/Tile.h"
#include "ui/widgets/WindowTheme.h"
#include "window/NoCommands.h"
#include "window/WindowRig.h"

namespace kinesta::testing {
namespace {

struct SelectingCommands : NoCommands {
    void select(const WindowSelection& selection) override { selected = selection; }

    std::optional<WindowSelection> selected;
};

/// Two rules with the same gesture; the second one is edited.
class RuleEditorTest : public WindowRig {
  protected:
    void open(GestureRule edited) {
        GestureRule first = edited;
        first.id = Uuid::random();
        first.name = "Terminal & Co";
        app.store().setRules({first, edited});
        list.select(WindowSelection::rule(edited.id));
        page.emplace(edited.id, list, history, windowParts, commands);
        page->resize(680, 700);
        page->show();
        page->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*page));
    }
    const GestureRule& rule() { return app.store().rules().value().back(); }
    void changeBehind(const std::function<void(GestureRule&)>& change) {
        auto rules = app.store().rules().value();
        change(rules.back());
        app.store().setRules(rules);
    }
    template <typename Control>
    Control* find(const char* name) const {
        for (auto* each : page->findChildren<Control*>())
            if (each->isVisible() && (each->accessibleName() == QString::fromUtf8(name) ||
                                      each->property("text") == QString::fromUtf8(name)))
                return each;
        ADD_FAILURE() << "no " << name;
        return nullptr;
    }
    std::vector<std::string> notices() const {
        std::vector<std::string> titles;
        for (const auto* notice : page->findChildren<Notice*>())
            if (notice->isVisible())
                titles.push_back(notice->accessibleName().toStdString());
        return titles;
    }
    /// Points at the tile without pressing it.
    void point(QWidget* tile) const {
        QTest::mouseMove(tile, tile->rect().center() + QPoint(3, 3));
        QTest::mouseMove(tile);
    }

    WindowParts windowParts = parts();
    RuleHistory history{app.store(), machine.clock()};
    RuleListModel list{app.store(), history};
    SelectingCommands commands;
    std::optional<RuleEditorPage> page;
};

TEST_F(RuleEditorTest, KeepsANameThatIsBeingTyped) {
    open(makeRule(GestureKind::singleTap, 3));
    page->focusName();
    auto* name = find<QLineEdit>("Name");
    QTest::keyClicks(name, QStringLiteral("Back"));
    QTest::keyClick(name, Qt::Key_Left);
    changeBehind([](GestureRule& rule) {
        rule.name = "Imported";
        rule.fingerCount = 4;
    });
    EXPECT_EQ(name->text(), QStringLiteral("Back"));
    EXPECT_EQ(name->cursorPosition(), 3);
    EXPECT_TRUE(name->isUndoAvailable());
    EXPECT_TRUE(find<Tile>("4")->isChecked());
    QTest::keyClick(name, Qt::Key_Tab);
    EXPECT_EQ(name->text(), QStringLiteral("Imported"));
    changeBehind([](GestureRule& rule) { rule.name = "Again"; });
    EXPECT_EQ(name->text(), QStringLiteral("Again"));
}

TEST_F(RuleEditorTest, ShowsWhatIsPointedAtAndReturns) {
    WindowTheme::setReducesMotion(true);
    open(makeRule(GestureKind::doubleTap, 3));
    auto* stage = page->findChild<GestureStage*>();
    const QImage own = stage->grab().toImage();
    for (const char* name : {"Vertical edge slide", "5", "Triple"}) {
        point(find<Tile>(name));
        EXPECT_TRUE(eventually([&] { return stage->grab().toImage() != own; })) << name;
        point(find<QLineEdit>("Name"));
        EXPECT_TRUE(eventually([&] { return stage->grab().toImage() == own; })) << name;
    }
    WindowTheme::setReducesMotion(false);
    auto* picture = page->findChild<PadPicture*>();
    EXPECT_FALSE(picture->isPerforming());
    point(find<Tile>("2"));
    EXPECT_TRUE(eventually([&] { return picture->isPerforming(); }));
    point(find<QLineEdit>("Name"));
    EXPECT_TRUE(eventually([&] { return !picture->isPerforming(); }));
    EXPECT_EQ(rule().fingerCount, 3);
}

TEST_F(RuleEditorTest, ChoosesByLetterFromTheFirstTileWhileNoneIsChosen) {
    open(makeRule(GestureKind::unconfigured));
    QWidget* focus = find<Tile>("Tap");
    focus->setFocus();
    for (const GestureTypeChoice expected : {GestureTypeChoice::tap, GestureTypeChoice::tipTapLeft,
                                             GestureTypeChoice::tipTapRight, GestureTypeChoice::tap}) {
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("t"));
        EXPECT_EQ(gestureTypeChoice(rule().gesture), expected);
    }
}

TEST_F(RuleEditorTest, TakesThePerformedGesture) {
    onGesture = [this](const DetectedGesture& gesture) { page->gestureRecognized(gesture); };
    open(makeRule(GestureKind::tipTapLeft));
    EXPECT_FALSE(find<QPushButton>("Perform it to choose it")->isEnabled());
    startPad();
    ASSERT_TRUE(eventually([&] { return find<QPushButton>("Perform it to choose it")->isEnabled(); }));
    const auto isActive = [this] { return app.testSession().isActive().value(); };
    const std::vector<std::function<void()>> endings{
        [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); },
        [&] { find<QPushButton>("Stop waiting")->click(); },
        [&] {
            page->hide();
            page->show();
        },
        [&] { page->stopWaiting(); },
    };
    for (const auto& end : endings) {
        QTest::mouseClick(find<QPushButton>("Perform it to choose it"), Qt::LeftButton);
        EXPECT_TRUE(isActive());
        end();
        EXPECT_FALSE(isActive());
    }
    find<QPushButton>("Perform it to choose it")->click();
    touch(10, "[1,0.3,0.5],[2,0.5,0.5],[3,0.7,0.5]");
    touch(10.05, "");
    EXPECT_TRUE(eventually([&] { return rule().gesture == GestureKind::singleTap && rule().fingerCount == 3; }));
    EXPECT_TRUE(isActive());  // until the fingers are surely done
    find<QPushButton>("Perform it to choose it")->click();
    unplug();
    EXPECT_TRUE(eventually([&] { return !isActive(); }));
}

TEST_F(RuleEditorTest, OffersToTurnOnWhatAnEditSwitchedOff) {
    open(makeRule(GestureKind::tipTapLeft));
    using Titles = std::vector<std::string>;
    const Titles clash{"Another enabled rule uses this gesture. Only the first matching rule will run."};
    EXPECT_EQ(notices(), clash);
    EXPECT_EQ(find<Notice>(clash.front().c_str())->accessibleDescription(),
              QStringLiteral("“Terminal & Co” comes first in the list."));
    find<QPushButton>("Show “Terminal && Co”")->click();
    EXPECT_EQ(commands.selected, WindowSelection::rule(app.store().rules().value().front().id));
    QTest::mouseClick(find<Tile>("Tap"), Qt::LeftButton);
    EXPECT_EQ(notices(), Titles{"This rule was switched off."});
    QTest::mouseClick(find<Switch>("On"), Qt::LeftButton);
    const std::string missing = "Choose how many fingers to switch this rule on.";
    EXPECT_TRUE(eventually([&] { return notices() == Titles({missing, "This rule was switched off."}); }));
    EXPECT_FALSE(find<Switch>("On")->isChecked());
    QTest::mouseClick(find<Tile>("4"), Qt::LeftButton);
    EXPECT_EQ(notices(), Titles{"This rule is ready again."});
    find<QPushButton>("Turn on")->click();
    EXPECT_TRUE(rule().isEnabled);
    EXPECT_EQ(notices(), Titles());
    QTest::mouseClick(find<Tile>("Tip-tap left"), Qt::LeftButton);
    EXPECT_EQ(notices(), clash);
}

TEST_F(RuleEditorTest, SurvivesTheEndOfItsRule) {
    open(makeRule(GestureKind::singleTap, 3));
    page->focusName();
    QTest::keyClicks(find<QLineEdit>("Name"), QStringLiteral("x"));
    app.store().deleteRules({rule().id});
    const auto left = app.store().rules().value();
    QTest::keyClicks(find<QLineEdit>("Name"), QStringLiteral("y"));
    QTest::mouseClick(find<Tile>("5"), Qt::LeftButton);
    QTest::mouseClick(find<Switch>("On"), Qt::LeftButton);
    auto* menu = find<QToolButton>("More for this rule")->menu();
    Q_EMIT menu->aboutToShow();
    for (QAction* action : menu->actions())
        action->trigger();
    page.reset();
    EXPECT_EQ(app.store().rules().value(), left);
}

}  // namespace
}  // namespace kinesta::testing
