#include <QApplication>
#include <QCommandLineParser>
#include <QDialog>
#include <QDir>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <cstdio>

#include "ControlsScene.h"
#include "Scenes.h"
#include "WordContrast.h"
#include "platform/linuxdesktop/cue/CompositorWatch.h"
#include "platform/qt/ThemePalette.h"
#include "platform/qt/Translations.h"
#include "support/Translation.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr int kMargin = 8;

/// Every text twice: longer than any language needs.
class Twice final : public QTranslator {
  public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* text, const char* /*hint*/, int /*count*/) const override {
        return QString::fromUtf8(text) + QLatin1Char(' ') + QString::fromUtf8(text);
    }
};

QRect seen() {
    QRect all;
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets)
        if (widget->isVisible())
            all |= widget->frameGeometry();
    return all.adjusted(-kMargin, -kMargin, kMargin, kMargin) & QApplication::primaryScreen()->geometry();
}

void closeAllButWindows() {
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets)
        if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isVisible())
            dialog->reject();
}

class Photographer {
  public:
    Photographer(const QDir& folder, QString suffix) : m_folder(folder), m_suffix(std::move(suffix)) {}

    void take(const QString& name) const {
        const QRect box = seen();
        const QString file = name + m_suffix + QStringLiteral(".png");
        QApplication::primaryScreen()->grabWindow(0, box.x(), box.y(), box.width(), box.height())
            .save(m_folder.filePath(file));
        if (qApp->devicePixelRatio() < 2)
            return;
        const auto widgets = QApplication::topLevelWidgets();
        for (QWidget* widget : widgets)
            if (widget->isVisible())
                for (const PaleWords& pale : paleWordsIn(*widget))
                    std::printf("%s: %.2f “%s”\n", qPrintable(file), pale.contrast, qPrintable(pale.words));
    }

    void take(const Scene& scene) const {
        Stage stage(scene.setting);
        show(stage.window());
        bool isTaken = false;
        QTimer::singleShot(0, &stage.window(), [&] {
            QTimer::singleShot(scene.settleMilliseconds + 300, &stage.window(), [&] {
                take(scene.name);
                isTaken = true;
                closeAllButWindows();
            });
            scene.act(stage);
        });
        if (!QTest::qWaitFor([&] { return isTaken; }, 15000))
            qWarning("%s: no picture", qPrintable(scene.name));
    }

    static void show(QWidget& window) {
        window.move(40, 40);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qWarning("The window does not become active.");
        QTest::qWait(150);
    }

  private:
    QDir m_folder;
    QString m_suffix;
};

void takeAll(const Photographer& photographer, const std::string& rules, const QString& only) {
    const auto isWanted = [&only](const QString& name) { return only.isEmpty() || name == only; };
    if (isWanted(QStringLiteral("controls"))) {
        ControlsScene controls;
        Photographer::show(controls);
        photographer.take(QStringLiteral("controls"));
    }
    for (const Scene& scene : allScenes(rules))
        if (isWanted(scene.name))
            photographer.take(scene);
}

}  // namespace
}  // namespace kinesta

int main(int argc, char** argv) {
    using namespace kinesta;
    QApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    const QCommandLineOption dark("dark"), contrast("more-contrast"), rtl("right-to-left"), twice("twice"),
        large("large"), translations("translations", {}, "FOLDER"), suffix("suffix", {}, "TEXT", "-light"),
        only("only", {}, "NAME");
    parser.addOptions({dark, contrast, rtl, twice, large, translations, suffix, only});
    parser.addPositionalArgument("OUTDIR", "where the pictures go");
    parser.addPositionalArgument("RULES", "the folder with the rule files");
    parser.process(application);
    if (parser.positionalArguments().size() != 2)
        parser.showHelp(1);

    if (parser.isSet(rtl))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    if (parser.isSet(large)) {
        QFont font = QApplication::font();
        font.setPixelSize(2 * QFontInfo(font).pixelSize());
        QApplication::setFont(font);
    }
    if (parser.isSet(translations))
        installTranslations(parser.value(translations).toStdString());
    if (parser.isSet(twice)) {
        QApplication::installTranslator(new Twice(&application));
        setTranslator([](std::string_view text) { return std::string(text) + " " + std::string(text); });
    }
    const AppTheme theme = AppTheme::of(parser.isSet(dark) ? NamedAppearance::darkAqua : NamedAppearance::aqua,
                                        parser.isSet(contrast) ? ThemeContrast::more : ThemeContrast::standard);
    WindowTheme::set(theme);
    WindowTheme::setReducesMotion(true);
    QApplication::setPalette(themePalette(theme));
    QApplication::setStyle(new KinestaStyle(CompositorWatch::blendsWindows));
    takeAll({QDir(parser.positionalArguments().at(0)), parser.value(suffix)},
            parser.positionalArguments().at(1).toStdString(), parser.value(only));
    return 0;
}
