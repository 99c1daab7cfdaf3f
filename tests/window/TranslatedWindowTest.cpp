#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTranslator>

#include "platform/qt/Translations.h"
#include "rules/RuleMaking.h"
#include "support/Translation.h"
#include "ui/models/RuleRow.h"
#include "ui/window/KinestaWindow.h"
#include "window/WindowRig.h"

namespace kinesta::testing {
namespace {

/// Shows which texts go through a translator.
class Marking final : public QTranslator {
    QString translate(const char* /*context*/, const char* text, const char* /*hint*/, int /*count*/) const override {
        return QStringLiteral("«%1»").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

class TranslatedWindow : public WindowRig {
  protected:
    void TearDown() override {
        setTranslator({});
        QLocale::setDefault(QLocale::c());
    }

    void open() {
        window = std::make_unique<KinestaWindow>(parts());
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    QStringList visibleTexts() const {
        QStringList texts;
        for (const auto* widget : QApplication::allWidgets()) {
            if (!widget->isVisible())
                continue;
            texts << widget->accessibleName() << widget->accessibleDescription() << widget->toolTip();
            if (const auto* label = qobject_cast<const QLabel*>(widget))
                texts << label->text();
            if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
                texts << button->text();
                if (button->findChild<QMenu*>() != nullptr)
                    for (const auto* action : button->findChild<QMenu*>()->actions())
                        texts << action->text();
            }
            if (const auto* combo = qobject_cast<const QComboBox*>(widget))
                for (int i = 0; i < combo->count(); ++i)
                    texts << combo->itemText(i);
            if (const auto* field = qobject_cast<const QLineEdit*>(widget))
                texts << field->placeholderText();
        }
        return texts;
    }
    /// Those with a word that no translator has given.
    QStringList untranslated() const {
        static const QRegularExpression marked(QStringLiteral("«[^«»]*»"));
        static const QRegularExpression word(QStringLiteral("[A-Za-z]{3,}"));
        QStringList found;
        for (QString text : visibleTexts()) {
            for (QString before; before != text;) {
                before = text;
                text.replace(marked, QStringLiteral("·"));
            }
            // Names, an example, and what was said before this test set its translator.
            for (const char* name : {"Kinesta", "Mine", "pad", "/nowhere/kinesta", "https://",
                                     "The update feed is not configured in this build."})
                text.remove(QLatin1String(name));
            if (word.match(text).hasMatch())
                found << text;
        }
        found.removeDuplicates();
        return found;
    }

    std::unique_ptr<KinestaWindow> window;
};

TEST_F(TranslatedWindow, HasNoTextThatStaysEnglish) {
    Marking marking;
    QCoreApplication::installTranslator(&marking);
    setTranslator([](std::string_view text) { return "«" + std::string(text) + "»"; });
    std::vector<GestureRule> rules;
    for (const ActionKind kind : allCases<ActionKind>()) {
        const bool slides = kind == ActionKind::adjustVolume;
        GestureRule& rule =
            rules.emplace_back(makeRule(slides ? GestureKind::edgeSlide : GestureKind::anchorDraw, slides ? 2 : 3));
        rule.name = "Mine";
        rule.action = {};
        rule.action.kind = kind;
        rule.action.keyCode = 49;
    }
    rules.emplace_back(makeRule(GestureKind::tripleForceClick, 3)).name = "Mine";
    rules.emplace_back(rules.back()).id = Uuid::random();
    app.store().setRules(rules);
    open();
    for (const GestureRule& rule : rules) {
        window->select(WindowSelection::rule(rule.id));
        EXPECT_EQ(untranslated().join(QLatin1Char('\n')).toStdString(), "") << title(rule.action.kind);
    }
    window->select(WindowSelection::settings());
    EXPECT_EQ(untranslated().join(QLatin1Char('\n')).toStdString(), "");
    window->select(WindowSelection::overview());
    window->gestureDispatched(DetectedEdgeSlide{2, EdgeSlideSide::left, -1}, nullptr);
    window->tryGesture();
    EXPECT_EQ(untranslated().join(QLatin1Char('\n')).toStdString(), "");
}

TEST_F(TranslatedWindow, IsFilteredByWhatItShowsInGerman) {
    QLocale::setDefault(QLocale(QLocale::German));
    installTranslations(KINESTA_TRANSLATIONS);
    app.store().setRules({makeRule(GestureKind::doubleForceClick, 4), makeRule(GestureKind::tipTapLeft)});
    open();
    EXPECT_TRUE(visibleTexts().contains(QStringLiteral("Übersicht")));
    const auto& rules = app.store().rules().value();
    EXPECT_EQ(ruleRows(rules, {}, "")[0].gesture, "Kräftiger 4-Finger-Doppelklick");
    for (const std::string_view filter : {"kräftiger", "KRÄFTIGER doppelklick", "Stufe 2"})
        EXPECT_EQ(ruleRows(rules, {}, filter).size(), 1U) << filter;
    EXPECT_EQ(ruleRows(rules, {}, "double").size(), 0U);
}

}  // namespace
}  // namespace kinesta::testing
