#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>
#include <cmath>
#include <map>

#include "platform/qt/ThemePalette.h"
#include "shell/QtTest.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta::testing {
namespace {

constexpr double kWords = 4.5;
constexpr double kEdges = 3;

double luminance(QRgb colour) {
    const auto linear = [](int channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

/// The contrast of what is drawn to the ground, which is the most frequent colour.
double contrastIn(const QImage& image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    const auto ground =
        std::max_element(counts.begin(), counts.end(), [](auto& a, auto& b) { return a.second < b.second; })->first;
    double best = 1;
    for (const auto& [colour, count] : counts)
        best = std::max(best, contrast(colour, ground));
    return best;
}

class Style : public QtTest, public ::testing::WithParamInterface<NamedAppearance> {
  protected:
    Style() {
        // Large and so with strokes of more than a pixel, whose colour is that of the words.
        QFont font = QApplication::font();
        font.setPixelSize(26);
        QApplication::setFont(font);
        const AppTheme theme = AppTheme::of(GetParam(), ThemeContrast::standard);
        WindowTheme::set(theme);
        QApplication::setPalette(themePalette(theme));
        QApplication::setStyle(new KinestaStyle([] { return false; }));
        new QVBoxLayout(&window);
    }
    ~Style() override { WindowTheme::set(AppTheme::of(NamedAppearance::aqua, ThemeContrast::standard)); }

    template <typename Widget>
    Widget* add(Widget* widget, const char* property = nullptr) {
        if (property != nullptr)
            widget->setProperty(property, true);
        window.layout()->addWidget(widget);
        return widget;
    }

    void show() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QImage seen() { return window.grab().toImage(); }
    /// Of the pixel at this distance from the middle of the widget's left edge to the window's ground.
    double edgeContrast(const QWidget* widget, int inside) {
        const QImage image = seen();
        return contrast(image.pixel(widget->x() + inside, widget->geometry().center().y()), image.pixel(2, 2));
    }

    QWidget window;
};

TEST_P(Style, WordsCanBeReadOnEveryControl) {
    const QString words = QStringLiteral("Words");
    auto* combo = new QComboBox;
    combo->addItem(words);
    auto* field = new QLineEdit;
    field->setPlaceholderText(words);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             add(new QPushButton(words)), add(new QPushButton(words), "primary"),
             add(new QPushButton(words), "destructive"), add(new QPushButton(words), "link"), add(combo), add(field),
             add(new QLineEdit(words)), add(new QLineEdit(words), "error"), add(new QCheckBox(words))}) {
        show();
        const auto inner = [widget] {
            return widget->grab(widget->rect().adjusted(widget->height(), 4, -widget->height(), -4)).toImage();
        };
        EXPECT_GE(contrastIn(inner()), kWords) << widget->metaObject()->className();
        QTest::mouseMove(widget);
        ASSERT_TRUE(eventually([widget] { return widget->underMouse(); }));
        EXPECT_GE(contrastIn(inner()), kWords) << widget->metaObject()->className() << " under the pointer";
        widget->setEnabled(false);
        EXPECT_GE(contrastIn(inner()), kEdges) << widget->metaObject()->className() << " disabled";
    }
}

TEST_P(Style, WordsOfAMenuCanBeReadAlsoWhereChosen) {
    QMenu menu;
    QAction* plain = menu.addAction(QStringLiteral("Words\tCtrl+W"));
    QAction* chosen = menu.addAction(QStringLiteral("Words\tCtrl+W"));
    chosen->setCheckable(true);
    QAction* off = menu.addAction(QStringLiteral("Words"));
    off->setEnabled(false);
    menu.popup({50, 50});
    menu.setActiveAction(chosen);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
    for (const auto& [action, least] : {std::pair(plain, kWords), std::pair(chosen, kWords), std::pair(off, kEdges)}) {
        const QRect row = menu.actionGeometry(action);
        const int middle = row.width() / 2;
        EXPECT_GE(contrastIn(menu.grab(row.adjusted(8, 3, -middle, -3)).toImage()), least);
        if (action == off)
            continue;
        EXPECT_GE(contrastIn(menu.grab(row.adjusted(middle, 3, -8, -3)).toImage()), least) << "of the shortcut";
    }
}

TEST_P(Style, EdgesCanBeSeenAndSoCanTheFocusOfTheKeyboardAlone) {
    auto* field = add(new QLineEdit);
    auto* wrong = add(new QLineEdit, "error");
    auto* box = add(new QCheckBox(QStringLiteral("Words")));
    auto* slider = add(new QSlider(Qt::Horizontal));
    auto* button = add(new QPushButton(QStringLiteral("Words")));
    field->setFocus(Qt::OtherFocusReason);
    show();
    EXPECT_GE(edgeContrast(field, 1), kEdges);
    for (const QWidget* widget : std::initializer_list<QWidget*>{wrong, box})
        EXPECT_GE(edgeContrast(widget, 0), kEdges) << widget->metaObject()->className();
    EXPECT_GE(edgeContrast(slider, slider->width() - 4), kEdges);
    EXPECT_GE(edgeContrast(slider, 5), kEdges);
    button->setFocus(Qt::TabFocusReason);
    EXPECT_GE(edgeContrast(button, -3), kEdges);
    EXPECT_GE(edgeContrast(field, 0), kEdges);
    QTest::mouseClick(field, Qt::LeftButton);
    EXPECT_LT(edgeContrast(button, -3), 1.1);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(button->hasFocus());
    EXPECT_LT(edgeContrast(button, -3), 1.1);
}

INSTANTIATE_TEST_SUITE_P(Light, Style, ::testing::Values(NamedAppearance::aqua));
INSTANTIATE_TEST_SUITE_P(Dark, Style, ::testing::Values(NamedAppearance::darkAqua));

}  // namespace
}  // namespace kinesta::testing
