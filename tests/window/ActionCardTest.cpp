#include "ui/action/ActionCard.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>

#include "platform/linux/LinuxDesktop.h"
#include "platform/qt/QtMainThread.h"
#include "rules/RuleMaking.h"
#include "shell/QtTest.h"
#include "support/TemporaryFolder.h"
#include "ui/action/ArgumentList.h"
#include "ui/action/CommandField.h"
#include "window/NoCommands.h"

namespace kinesta::testing {
namespace {

struct NoApplications final : InstalledApplications {
    std::vector<InstalledApplication> all() const override { return {}; }
    std::optional<InstalledApplication> at(const std::string& /*path*/) const override { return std::nullopt; }
};

struct ActionCardTest : QtTest {
    void edit(const GestureRule& rule) {
        store.setRules({rule});
        history.emplace(store, machine.clock());
        model.emplace(RuleEditorModel::Parts{store, *history, session, mainLoop}, rule.id);
        card = std::make_unique<ActionCard>(ActionEditing{*model, machine, applications, commands});
        card->resize(600, 500);
        card->show();
        card->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(card.get()));
    }
    /// The control with an accessible name.
    template <typename Control>
    Control* find(const char* name) const {
        for (auto* each : card->findChildren<Control*>())
            if (each->accessibleName() == QLatin1String(name) && each->isVisible())
                return each;
        ADD_FAILURE() << "no " << name;
        return nullptr;
    }
    bool shows(const char* sentence) const {
        for (const auto* each : card->findChildren<Words*>())
            if (each->text() == QString::fromUtf8(sentence) && each->isVisible())
                return true;
        return false;
    }
    const GestureRule& rule() const { return store.rules().value().front(); }
    void store_(const std::function<void(GestureRule&)>& change) {
        GestureRule changed = rule();
        change(changed);
        store.setRules({changed});
    }

    TemporaryFolder folder;
    QtMainThread mainLoop;
    LinuxDesktop machine{mainLoop, {folder / "settings.json", folder.path(), GestureSystem::none}};
    RuleStore store{machine.defaults()};
    GestureTestSession session;
    NoApplications applications;
    NoCommands commands;
    std::optional<RuleHistory> history;
    std::optional<RuleEditorModel> model;
    std::unique_ptr<ActionCard> card;
};

TEST_F(ActionCardTest, AsksAgainForAChangedCommand) {
    edit(makeShellCommand(true));
    auto* field = find<CommandField>("Command");
    auto* confirmed = find<QCheckBox>("I have read this command and want Kinesta to run it.");
    EXPECT_TRUE(confirmed->isChecked());
    const char* again = "The command changed, so it must be confirmed again. Until then the rule stays off.";
    EXPECT_FALSE(shows(again));
    field->setFocus();
    field->moveCursor(QTextCursor::End);
    QTest::keyClicks(field, " -l");
    EXPECT_EQ(rule().action.value, "ls -l");
    EXPECT_FALSE(rule().isEnabled || confirmed->isChecked());
    EXPECT_TRUE(shows(again) && shows("Shell commands are switched off."));
    // Another text comes from outside; what is confirmed is the text that can be read.
    store_([](GestureRule& changed) { changed.action.value = "rm -rf ~"; });
    EXPECT_EQ(field->toPlainText(), "ls -l");
    confirmed->click();
    EXPECT_EQ(rule().action.value, "ls -l");
    EXPECT_TRUE(rule().action.isShellCommandAcknowledged());
    EXPECT_FALSE(shows(again));
    // Nothing is cut off, and nothing is hidden from the reader.
    QApplication::clipboard()->setText(QString(200'000, QLatin1Char('x')));
    field->paste();
    EXPECT_TRUE(shows("That text is too long for a command, so it was left out."));
    QApplication::clipboard()->setText(QString::fromUtf8("\n\x01\u202E") + QChar(0xD800));
    field->paste();
    EXPECT_EQ(rule().action.value, "ls -l\n \uFFFD\uFFFD");
    // A stored one of megabytes neither blocks the window nor can be confirmed unread.
    store_([](GestureRule& changed) { changed.action.value = std::string(5'000'000, 'x'); });
    card->setFocus();
    EXPECT_TRUE(shows("This command is too long to run, so only its beginning is shown."));
    EXPECT_FALSE(confirmed->isEnabled());
}

TEST_F(ActionCardTest, ChecksTheAddressAndFollowsTheStore) {
    edit(makeRule(GestureKind::singleTap, 3, ActionKind::openURL));
    auto* field = find<TextField>("Address");
    field->setFocus();
    const char* wrong = "Kinesta opens web pages only: begin the address with http:// or https://.";
    QTest::keyClicks(field, "htt");
    EXPECT_FALSE(shows(wrong)) << "it may still become https://";
    QTest::keyClicks(field, "x");
    EXPECT_TRUE(shows(wrong));
    store_([](GestureRule& changed) { changed.action.value = "https://elsewhere.example"; });
    EXPECT_EQ(field->text(), "httx") << "typed in";
    find<TextField>("Cue text")->setFocus();
    EXPECT_EQ(field->text(), "https://elsewhere.example");
    EXPECT_FALSE(shows(wrong));
    field->setFocus();
    field->selectAll();
    QApplication::clipboard()->setText(QStringLiteral("https://a.example/\r\nb"));
    field->paste();
    EXPECT_EQ(rule().action.value, "https://a.example/  b");
    history->undo();
    EXPECT_EQ(rule().action.value, "https://elsewhere.example");

    auto* kind = find<QComboBox>("What happens");
    auto* run = card->findChildren<QPushButton*>().back();
    kind->setFocus();
    QTest::keyClick(kind, Qt::Key_Down);
    EXPECT_EQ(rule().action.kind, ActionKind::openFileOrFolder);
    EXPECT_EQ(rule().action.value, "");
    auto* path = find<TextField>("Path");
    EXPECT_FALSE(run->isEnabled());
    QTest::keyClick(kind, Qt::Key_Tab);
    EXPECT_TRUE(path->hasFocus());
    QTest::keyClicks(path, "/nothing");
    EXPECT_TRUE(shows("There is nothing at this path now.") && run->isEnabled());
    model->setType(GestureTypeChoice::edgeSlide);
    EXPECT_TRUE(!kind->isEnabled() && kind->count() == 1 && shows("An edge slide always adjusts the volume."));
}

TEST_F(ActionCardTest, KeepsArgumentsInTheirOrder) {
    GestureRule original = makeRule(GestureKind::singleTap, 3, ActionKind::launchApplication);
    original.action.value = "/bin/true";
    edit(original);
    QApplication::clipboard()->setText(QStringLiteral("--one\r\n\n two \nthree"));
    const auto press = [this](const char* text) {
        for (auto* each : card->findChildren<QPushButton*>())
            if (each->text() == QLatin1String(text))
                each->click();
    };
    press("Paste, one a line");
    using Arguments = std::vector<std::string>;
    EXPECT_EQ(rule().action.applicationArguments, (Arguments{"--one", " two ", "three"}));
    auto* list = find<ArgumentList>("Arguments");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(rule().action.applicationArguments, (Arguments{"three", "--one", " two "}));
    press("Add argument");
    auto* field = find<TextField>("Argument");
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, "en");
    QTest::keyClick(field, Qt::Key_Left);
    QTest::keyClicks(field, "v");
    store_([](GestureRule& changed) { changed.action.applicationArguments = Arguments{"elsewhere"}; });
    QTest::keyClicks(field, "x");
    EXPECT_EQ(rule().action.applicationArguments, (Arguments{"three", "--one", " two ", "evxn"}));
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_TRUE(eventually([&] { return list->hasFocus(); }));
    press("Add argument");
    list->setFocus();  // left empty
    EXPECT_EQ(list->count(), 4);
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(rule().action.applicationArguments, (Arguments{"three", " two ", "evxn"}));
    history->undo();
    EXPECT_EQ(list->count(), 4);
    EXPECT_EQ(list->item(1)->text(), "--one");
}

TEST_F(ActionCardTest, ShowsScreenReadersTheOrderOfTheScreenAndTheFieldOfAnArgument) {
    const std::function<QStringList(QAccessibleInterface*)> namesIn = [&](QAccessibleInterface* part) {
        QStringList names;
        if (part->role() != QAccessible::StaticText)
            names += part->text(QAccessible::Name);
        for (int i = 0; i < part->childCount(); ++i)
            if (QAccessibleInterface* child = part->child(i); child != nullptr && !child->state().invisible)
                names += namesIn(child);
        return names;
    };
    const auto places = [&](std::initializer_list<const char*> wanted) {
        const QStringList names = namesIn(QAccessible::queryAccessibleInterface(card.get()));
        std::vector<qsizetype> found;
        for (const char* name : wanted)
            found.push_back(names.indexOf(QLatin1String(name)));
        EXPECT_TRUE(std::ranges::is_sorted(found)) << names.join(QStringLiteral(", ")).toStdString();
        return found.front() >= 0 ? std::string() : names.join(QStringLiteral(", ")).toStdString();
    };
    edit(makeRule(GestureKind::tipTapLeft, {}, ActionKind::keyboardShortcut));
    EXPECT_EQ("", places({"Common shortcuts", "Show a cue", "Run action now"}));
    store_([](GestureRule& rule) { rule.action.kind = ActionKind::launchApplication; });
    EXPECT_EQ("", places({"Add argument", "Show a cue", "Run action now"}));
    EXPECT_NE("", places({"Argument"}));
    card->findChild<ArgumentList*>()->addOne();
    EXPECT_EQ("", places({"Argument", "Add argument", "Run action now"}));
}

}  // namespace
}  // namespace kinesta::testing
