#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>

#include "rules/RuleMaking.h"
#include "ui/window/KinestaWindow.h"
#include "window/WindowRig.h"

namespace kinesta::testing {
namespace {

class ManyRules : public WindowRig {
  protected:
    ManyRules() {
        std::vector<GestureRule> rules;
        for (int i = 0; i < 1000; ++i) {
            GestureRule rule = makeRule(GestureKind::singleTap, 2 + i % 4);
            rule.id = Uuid::random();
            rule.name = "Rule " + std::to_string(i);
            rules.push_back(rule);
        }
        app.store().setRules(rules);
        machine.saveInBackground();
    }
    /// Milliseconds until the event loop has nothing to do any more.
    template <typename Act>
    static double timeOf(const Act& act) {
        QElapsedTimer timer;
        timer.start();
        act();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);  // the page before
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
    /// The median, which a machine that is busy with something else does not change.
    template <typename Act>
    static double usualTimeOf(const Act& act) {
        std::vector<double> times;
        for (int i = 0; i < 21; ++i)
            times.push_back(timeOf([&] { act(i); }));
        std::ranges::nth_element(times, times.begin() + 10);
        return times[10];
    }
};

// The times are a tenth of this in an optimized build. What looks at every rule for every rule is far beyond them.
TEST_F(ManyRules, AreShownAndEditedWithoutAGap) {
    std::unique_ptr<KinestaWindow> window;
    RecordProperty("shown", std::to_string(timeOf([&] {
                       window = std::make_unique<KinestaWindow>(parts());
                       window->show();
                       EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
                   })));
    auto* list = window->findChild<QListView*>();
    const auto& rules = app.store().rules().value();
    QScrollBar& bar = *list->verticalScrollBar();
    EXPECT_LT(usualTimeOf([&](int i) {
                  bar.setValue(bar.maximum() * i / 20);
                  list->repaint();
              }),
              50);
    EXPECT_LT(
        usualTimeOf([&](int i) { window->select(WindowSelection::rule(rules[static_cast<std::size_t>(500 + i)].id)); }),
        200);
    const auto lines = window->findChildren<QLineEdit*>();
    const auto named = [](const char* name) {
        return [name](const QLineEdit* line) { return line->accessibleName() == QLatin1String(name); };
    };
    QSignalSpy changes(list->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy resets(list->model(), &QAbstractItemModel::modelReset);
    QSignalSpy layouts(list->model(), &QAbstractItemModel::layoutChanged);
    QLineEdit* name = *std::ranges::find_if(lines, named("Name"));
    name->setFocus();
    EXPECT_LT(usualTimeOf([&](int) { QTest::keyClick(name, Qt::Key_A); }), 200);
    EXPECT_EQ(changes.size(), 21) << "a row a key";
    EXPECT_EQ(resets.size() + layouts.size(), 0);
    QLineEdit* filter = *std::ranges::find_if(lines, named("Filter gestures"));
    EXPECT_LT(usualTimeOf([&](int i) { filter->setText(QString::number(i)); }), 200);
}

}  // namespace
}  // namespace kinesta::testing
