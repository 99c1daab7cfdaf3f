#include "ui/window/KinestaWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTranslator>

#include "app/RuleTransfer.h"
#include "rules/GestureRuleCoding.h"
#include "rules/RuleMaking.h"
#include "support/Translation.h"
#include "ui/editor/RuleEditorPage.h"
#include "ui/settings/SettingsPage.h"
#include "ui/sidebar/Sidebar.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/Page.h"
#include "ui/widgets/Switch.h"
#include "ui/widgets/Tile.h"
#include "ui/widgets/Unit.h"
#include "ui/window/Toast.h"
#include "window/WindowRig.h"

namespace kinesta::testing {
namespace {

class KinestaWindows : public WindowRig {
  protected:
    void open() {
        window = std::make_unique<KinestaWindow>(parts());
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus != nullptr ? focus : window.get(), static_cast<Qt::Key>(key), modifiers);
    }
    template <typename T>
    T* shown() const {
        T* found = window->findChild<T*>();
        return found != nullptr && found->isVisible() ? found : nullptr;
    }
    QAbstractButton* button(const char* text) const {
        for (auto* button : window->findChildren<QAbstractButton*>())
            if (button->isVisible() && button->text() == QLatin1String(text))
                return button;
        return nullptr;
    }

    bool says(const char* part) const {
        return std::ranges::any_of(window->findChildren<QLabel*>(), [part](const QLabel* label) {
            return label->isVisible() && label->text().contains(QString::fromUtf8(part));
        });
    }
    void drop(const char* file) {
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder / file))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent drop({5, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &drop);
    }

    std::unique_ptr<KinestaWindow> window;
};

TEST_F(KinestaWindows, ComesBackToAPlaceOnAScreenThatExists) {
    struct Case {
        std::string stored;
        QRect expected;
    };
    const QSize usual = Unit::of(980, 700);
    for (const Case& c :
         {Case{"100 60 900 600 300", {100, 60, 900, 600}}, Case{"9000 -9000 900 600 300", {380, 0, 900, 600}},
          Case{"0 0 9000 9000 300", {0, 0, 1280, 800}}, Case{"1 1 0 600 300", {{-1, -1}, usual}},
          Case{"a b", {{-1, -1}, usual}}, Case{"1 2 99999999999 4 5", {{-1, -1}, usual}}}) {
        machine.defaults().setString(WindowPlace::storageKey, c.stored);
        KinestaWindow restored(parts());
        EXPECT_EQ(restored.size(), c.expected.size()) << c.stored;
        const bool isPlaced = c.expected.x() >= 0;
        EXPECT_TRUE(!isPlaced || restored.pos() == c.expected.topLeft()) << c.stored;
    }
}

TEST_F(KinestaWindows, RemembersThePlaceOfAWindowThatIsOpenWhenTheProgramEnds) {
    open();
    window->setGeometry(120, 80, 900, 600);
    ASSERT_TRUE(eventually([this] { return window->geometry() == QRect(120, 80, 900, 600); }));
    window.reset();
    EXPECT_EQ(machine.defaults().string(WindowPlace::storageKey).value_or("").rfind("120 80 900 600 ", 0), 0U);
}

TEST_F(KinestaWindows, ScreenReadersSwitchAndChoose) {
    open();
    window->select(WindowSelection::settings());
    for (const char* name : {"Let rules run shell commands", "400 ms", "Dark"})
        for (QAbstractButton* part : window->findChildren<QAbstractButton*>())
            if (auto* accessible = QAccessible::queryAccessibleInterface(part);
                accessible->text(QAccessible::Name) == QString(name))
                accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(machine.defaults().boolean("shellCommandActionsEnabled.v1"), true);
    EXPECT_EQ(machine.defaults().integer("tapWaitingInterval.v1"), 400);
    EXPECT_EQ(machine.defaults().string("appAppearance.v1"), "dark");
}

TEST_F(KinestaWindows, ShowsListOrPageWhenItIsNarrow) {
    open();
    window->resize(Unit::of(600, 600));
    ASSERT_TRUE(eventually([this] { return shown<Sidebar>() != nullptr && button("Try a gesture") == nullptr; }));
    window->select(WindowSelection::settings());
    EXPECT_TRUE(shown<SettingsPage>() != nullptr && shown<Sidebar>() == nullptr);
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(shown<SettingsPage>() == nullptr && shown<Sidebar>() != nullptr);
    key(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(shown<RuleEditorPage>() != nullptr && shown<Sidebar>() == nullptr);
    key(Qt::Key_Escape);
    EXPECT_TRUE(shown<Sidebar>() != nullptr && window->isVisible());
    window->resize(Unit::of(980, 700));
    ASSERT_TRUE(eventually([this] { return shown<Sidebar>() != nullptr && shown<RuleEditorPage>() != nullptr; }));
    key(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(KinestaWindows, UndoesImportsAndResetsAndTellsWhatWasDone) {
    app.store().setRules({makeRule(GestureKind::tipTapLeft)});
    ASSERT_TRUE(exportRules(app.store(), folder / "new.json"));
    app.store().setRules({makeRule(GestureKind::tipTapLeft), makeRule(GestureKind::tipTapRight)});
    machine.defaults().setReal("actionCueDuration.v1", 4);
    open();
    writeText(folder / "broken.json", "[\n{\"id\": 1}]");
    drop("broken.json");
    ASSERT_TRUE(eventually([this] { return says("“broken.json” could not be read: line 2: "); }));
    EXPECT_TRUE(says("Nothing was changed."));
    EXPECT_EQ(app.store().rules().value().size(), 2U);
    drop("new.json");
    ASSERT_TRUE(eventually([this] { return shown<Toast>() != nullptr; }));
    EXPECT_EQ(app.store().rules().value().size(), 1U);
    window->resetSettings();
    auto* question = window->findChild<QMessageBox*>();
    ASSERT_NE(question, nullptr);
    QTest::keyClick(question, Qt::Key_Escape);
    EXPECT_TRUE(machine.defaults().contains("actionCueDuration.v1"));
    EXPECT_TRUE(eventually([this] { return window->findChild<QMessageBox*>() == nullptr; }));
    window->resetSettings();
    QTest::mouseClick(button("Reset"), Qt::LeftButton);
    EXPECT_FALSE(machine.defaults().contains("actionCueDuration.v1"));
    ASSERT_TRUE(eventually([this] { return window->isActiveWindow() && button("Undo") != nullptr; }));
    QTest::mouseClick(button("Undo"), Qt::LeftButton);
    EXPECT_EQ(machine.defaults().real("actionCueDuration.v1"), 4);
    EXPECT_TRUE(says("The settings are as they were before"));
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(app.store().rules().value().size(), 2U);
    EXPECT_TRUE(says("The rules are as they were before the import"));
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(app.store().rules().value().size(), 1U);
    EXPECT_TRUE(says("The rules of the file are back"));
}

TEST_F(KinestaWindows, KeepsOneHistoryForFieldsAndTheWindow) {
    GestureRule stored = makeRule(GestureKind::tipTapLeft);
    stored.name = "A";
    app.store().setRules({stored});
    open();
    window->select(WindowSelection::rule(stored.id));
    auto* editor = window->findChild<RuleEditorPage*>();
    const auto type = [&](const char* name) {
        editor->focusName();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(name));
    };
    /// What the field and the store have.
    const auto state = [&] {
        const auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        const GestureRule& rule = app.store().rules().value()[0];
        return (field != nullptr ? field->text().toStdString() : "no field") + " " + rule.name +
               (rule.isEnabled ? " on" : " off");
    };
    /// The first entries of the menu of the field.
    enum Entry { undo, redo };
    const auto choose = [](Entry entry) {
        QContextMenuEvent press(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(QApplication::focusWidget(), &press);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        menu->actions().at(entry)->trigger();
        menu->close();
    };
    type("BC");
    QTest::mouseClick(editor->findChild<Switch*>(), Qt::LeftButton);
    type("D");
    using Steps = std::vector<std::string>;
    Steps steps{state()};
    for (int i = 0; i < 4; ++i) {
        i % 2 == 0 ? choose(undo) : key(Qt::Key_Z, Qt::ControlModifier);
        steps.push_back(state());
    }
    EXPECT_EQ(steps, (Steps{"D D off", "BC BC off", "BC BC on", "A A on", "A A on"}));
    steps.clear();
    for (int i = 0; i < 4; ++i) {
        i % 2 == 0 ? choose(redo) : key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        steps.push_back(state());
    }
    EXPECT_EQ(steps, (Steps{"BC BC on", "BC BC off", "D D off", "D D off"}));
}

/// Every text twice, as long translations are.
class Doubling final : public QTranslator {
    QString translate(const char* /*context*/, const char* text, const char* /*hint*/, int /*count*/) const override {
        return QString::fromUtf8(text) + QLatin1Char(' ') + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};

TEST_F(KinestaWindows, CutsNothingWhereWordsAreLong) {
    QApplication::setStyle(new KinestaStyle([] { return false; }));
    Doubling doubling;
    QCoreApplication::installTranslator(&doubling);
    setTranslator([](std::string_view text) { return std::string(text) + " " + std::string(text); });
    const GestureRule stored = makeRule(GestureKind::tipTapLeft);
    app.store().setRules({stored});
    open();
    const auto cut = [&] {
        const auto widgets = window->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            const auto* page = qobject_cast<const Page*>(widget);
            const auto* button = qobject_cast<const QPushButton*>(widget);
            const bool isTile = qobject_cast<const Tile*>(widget) != nullptr;
            if (!widget->isVisible() ||
                (page == nullptr && button == nullptr && !isTile && qobject_cast<const QComboBox*>(widget) == nullptr))
                continue;
            const QSize whole = isTile ? widget->minimumSizeHint() : widget->sizeHint();
            const bool wraps = !isTile && whole.height() > 2 * widget->fontMetrics().height();
            const bool isCut = page != nullptr
                                   ? page->widget()->width() > page->viewport()->width()
                                   : widget->height() < whole.height() || (widget->width() < whole.width() && !wraps);
            if (isCut)
                return (widget->metaObject()->className() + (' ' + widget->accessibleName())).toStdString();
        }
        return std::string();
    };
    for (const QSize& size : {Unit::of(420, 700), Unit::of(860, 560)})
        for (const auto& page :
             {WindowSelection::rule(stored.id), WindowSelection::settings(), WindowSelection::overview()}) {
            window->resize(size);
            window->select(page);
            EXPECT_TRUE(eventually([&] { return cut().empty(); })) << size.width() << cut();
        }
    setTranslator({});
}

TEST_F(KinestaWindows, StoreHalvesOfCharactersThatArePastedAsWholeOnes) {
    app.store().setRules({makeRule(GestureKind::tipTapLeft)});
    open();
    window->select(WindowSelection::rule(app.store().rules().value()[0].id));
    window->findChild<RuleEditorPage*>()->focusName();
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    QGuiApplication::clipboard()->setText(QChar(0xD800) + QStringLiteral("a\n\x01") + QChar(0xDC00) + QChar(0xD83D));
    key(Qt::Key_V, Qt::ControlModifier);
    const auto rules = app.store().rules().value();
    EXPECT_NE(rules[0].name.find("a  "), std::string::npos) << "a name is one line without control characters";
    const auto decoded = decodeRules(ruleFileText(app.store()));
    EXPECT_TRUE(decoded && *decoded == rules);
    key(Qt::Key_Tab);
    EXPECT_EQ(field->text().toStdString(), rules[0].name);
}

TEST_F(KinestaWindows, RestAtEverySizeOnEveryPage) {
    std::vector<GestureRule> rules;
    for (const auto& row : enumTable<ActionKind>())
        rules.push_back(makeRule(GestureKind::doubleClick, 3, row.value));
    for (const auto& row : enumTable<GestureKind>())
        rules.push_back(makeRule(row.value, 3, ActionKind::keyboardShortcut));
    app.store().setRules(rules);
    std::vector pages{WindowSelection::overview(), WindowSelection::settings()};
    for (const GestureRule& rule : app.store().rules().value())
        pages.push_back(WindowSelection::rule(rule.id));
    open();
    struct LayoutCount final : QObject {
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            requests += event->type() == QEvent::LayoutRequest ? 1 : 0;
            return false;
        }
        int requests = 0;
    } layouts;
    application.installEventFilter(&layouts);
    for (const QSize& size : {Unit::of(420, 700), Unit::of(860, 560), Unit::of(980, 700), Unit::of(1240, 760)})
        for (std::size_t page = 0; page < pages.size(); ++page) {
            window->resize(size);
            window->select(pages[page]);
            int rounds = 0;
            for (int before = -1; before != layouts.requests && rounds < 50; ++rounds) {
                before = layouts.requests;
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the page before
                QCoreApplication::sendPostedEvents();
                QCoreApplication::processEvents();
            }
            EXPECT_LT(rounds, 50) << "page " << page << " at a width of " << size.width();
        }
    application.removeEventFilter(&layouts);
}

}  // namespace
}  // namespace kinesta::testing
