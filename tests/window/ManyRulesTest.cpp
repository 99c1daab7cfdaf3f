#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>

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
        QCoreApplication::sendPostedEvents();
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
    static double median(std::vector<double> times) {
        std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
        return times[times.size() / 2];
    }
};

TEST_F(ManyRules, AreShownAndEditedWithoutAGap) {
    std::unique_ptr<KinestaWindow> window;
    const double shown = timeOf([&] {
        window = std::make_unique<KinestaWindow>(parts());
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    });
    std::cout << "shown " << shown << " ms\n";
    auto* list = window->findChild<QListView*>();
    std::vector<double> scrolls;
    for (int i = 0; i < 50; ++i)
        scrolls.push_back(timeOf([&] {
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum() * i / 50);
            list->repaint();
        }));
    const double opened = timeOf([&] { window->select(WindowSelection::rule(app.store().rules().value()[500].id)); });
    auto* name = window->findChild<QLineEdit*>(QStringLiteral("name"));
    if (name == nullptr)
        for (auto* line : window->findChildren<QLineEdit*>())
            if (line->accessibleName() == QStringLiteral("Name"))
                name = line;
    ASSERT_NE(name, nullptr);
    name->setFocus();
    std::vector<double> keys;
    for (int i = 0; i < 50; ++i)
        keys.push_back(timeOf([&] { QTest::keyClick(name, Qt::Key_A); }));
    std::cout << "opened " << opened << ", scroll median " << median(scrolls) << " worst " << std::ranges::max(scrolls)
              << ", key median " << median(keys) << " worst " << std::ranges::max(keys) << " ms\n";
}

}  // namespace
}  // namespace kinesta::testing
