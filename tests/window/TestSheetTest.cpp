#include "ui/trying/TestSheet.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>

#include "ui/trying/LivePad.h"
#include "window/WindowRig.h"

namespace kinesta::testing {
namespace {

class TestSheets : public WindowRig {
  protected:
    TestSheets() {
        window = std::make_unique<QWidget>();
        window->resize(900, 700);
        window->show();
        m_session = app.testSession().isActive().observe([this](bool isActive) { ends += isActive ? 0 : 1; });
        onGesture = [this](const DetectedGesture& gesture) {
            if (sheet)
                sheet->gestureRecognized(gesture);
        };
    }

    void open() {
        sheet = new TestSheet(windowParts, window.get());
        sheet->setAttribute(Qt::WA_DeleteOnClose);
        sheet->QWidget::show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet));
        ASSERT_TRUE(app.testSession().isActive().value());
        livePad = sheet->findChild<LivePad*>();
    }
    /// The texts that are seen, each a static text to screen readers.
    bool says(const QString& text) const {
        return std::ranges::any_of(sheet->findChildren<QLabel*>(), [&](QLabel* label) {
            const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(label);
            return label->isVisible() && label->text() == text && accessible->role() == QAccessible::StaticText &&
                   accessible->text(QAccessible::Name) == text;
        });
    }
    QColor colourAt(Point point) const {
        const double height = livePad->width() * 0.75;
        return livePad->grab().toImage().pixelColor(static_cast<int>(point.x * livePad->width()),
                                                    static_cast<int>(10 + (1 - point.y) * height));
    }

    std::unique_ptr<QWidget> window;
    WindowParts windowParts = parts();
    QPointer<TestSheet> sheet;
    LivePad* livePad = nullptr;
    int ends = 0;

  private:
    Subscription m_session;
};

TEST_F(TestSheets, ShowTheFingersAndTheGestureAndThenRest) {
    startPad();
    open();
    for (const char* text : {"Try a gesture and check what Kinesta detects.", "Waiting for a gesture…",
                             "Actions are paused while this window is open.",
                             "Keyboard shortcuts, clicks, links, applications, volume changes, and commands will not "
                             "run."})
        EXPECT_TRUE(says(QString::fromUtf8(text))) << text;
    const QColor paper = colourAt({.5, .5});
    touch(1, "[1,0.5,0.5],[2,0.6,0.5],[3,0.4,0.5]");
    ASSERT_TRUE(eventually([&] { return colourAt({.5, .5}) != paper; }));
    EXPECT_EQ(livePad->shownTouches().size(), 3U);
    touch(1.05, "");
    ASSERT_TRUE(eventually([&] { return says(QStringLiteral("3-finger single tap")); }));
    for (const char* text :
         {"Detected once", "Detected successfully. No configured action was run.", "Would run", "Middle click"})
        EXPECT_TRUE(says(QString::fromUtf8(text))) << text;
    // Everything fades, and nothing runs after that.
    ASSERT_TRUE(eventually([&] { return livePad->shownTouches().empty() && livePad->isResting(); }));
    EXPECT_EQ(colourAt({.5, .5}), paper);
    const int refreshes = livePad->refreshCount();
    // As many frames as come: one refresh of the screen shows the last.
    for (int i = 1; i <= 500; ++i)
        livePad->take({machine.clock().uptime(), PadFrame{{{4, {i / 1000.0, .3}}}, {}}});
    ASSERT_TRUE(eventually([&] { return !livePad->shownTouches().empty(); }));
    EXPECT_EQ(livePad->shownTouches()[0].at, (Point{.5, .3}));
    EXPECT_EQ(livePad->refreshCount(), refreshes + 1);
    const QString off = QStringLiteral("Gesture recognition is turned off");
    app.recognition().service().setGestureEnabled(false);
    EXPECT_TRUE(says(off));
    EXPECT_TRUE(says(QStringLiteral("Close this window and turn gesture recognition on in Settings.")));
    app.recognition().service().setGestureEnabled(true);
    EXPECT_TRUE(says(QStringLiteral("3-finger single tap")));
    unplug();
    ASSERT_TRUE(eventually([&] { return says(off); }));
    EXPECT_TRUE(says(QStringLiteral("Close this window and start gesture recognition in Settings.")));
}

TEST_F(TestSheets, ShowWhatCameBeforeTheyWereSeen) {
    LivePad early(machine.clock(), 300);
    early.setReading(true);
    early.take({machine.clock().uptime() - 1, PadFrame{{{4, {.5, .5}}}, {}}});  // it rests by now
    early.show();
    EXPECT_TRUE(eventually([&] { return early.shownTouches().size() == 1; }));
}

TEST_F(TestSheets, EndTheSessionOnceHoweverTheyClose) {
    startPad();
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"button", [&] { sheet->findChild<QPushButton*>()->click(); }},
        {"Escape", [&] { QTest::keyClick(sheet.data(), Qt::Key_Escape); }},
        {"Return", [&] { QTest::keyClick(sheet.data(), Qt::Key_Return); }},
        {"its own close", [&] { sheet->close(); }},
        {"hidden", [&] { sheet->hide(); }},
        {"window hidden", [&] { window->hide(); }},
        {"window closed", [&] { window->close(); }},
        {"quit",
         [&] {
             mainLoop.quit();
             mainLoop.run();
         }},
        {"window destroyed", [&] { window.reset(); }},
    };
    Seconds time = 1;
    for (const auto& [way, close] : ways) {
        if (window)
            window->show();
        open();
        touch(time, "[1,0.5,0.5]");
        ASSERT_TRUE(eventually([&] { return !livePad->shownTouches().empty(); })) << way;
        const int before = ends;
        close();
        EXPECT_FALSE(app.testSession().isActive().value()) << way;
        EXPECT_EQ(ends, before + 1) << way;
        // The watching has ended, at any moment of a touch.
        touch(time += 0.01, "[1,0.5,0.6]");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        delete sheet;
        EXPECT_EQ(ends, before + 1) << way;
        touch(time += 0.01, "");
    }
}

}  // namespace
}  // namespace kinesta::testing
