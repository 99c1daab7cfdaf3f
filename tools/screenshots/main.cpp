#include <QApplication>
#include <QScreen>
#include <QTest>

#include "ControlsScene.h"
#include "platform/linuxdesktop/cue/CompositorWatch.h"
#include "platform/qt/ThemePalette.h"
#include "ui/style/KinestaStyle.h"
#include "ui/widgets/WindowTheme.h"

int main(int argc, char** argv) {
    using namespace kinesta;
    QApplication::setDesktopSettingsAware(false);
    QApplication app(argc, argv);
    const bool dark = app.arguments().contains(QStringLiteral("--dark"));
    if (app.arguments().contains(QStringLiteral("--rtl"))) app.setLayoutDirection(Qt::RightToLeft);
    const AppTheme theme = AppTheme::of(dark ? NamedAppearance::darkAqua : NamedAppearance::aqua, ThemeContrast::standard);
    WindowTheme::set(theme);
    QApplication::setPalette(themePalette(theme));
    QApplication::setStyle(new KinestaStyle(CompositorWatch::blendsWindows));
    ControlsScene scene;
    scene.show();
    scene.activateWindow();
    (void)QTest::qWaitForWindowActive(&scene);
    if (app.arguments().contains(QStringLiteral("--stay"))) return app.exec();
    QTest::qWait(100);
    scene.screen()->grabWindow(0).save(app.arguments().at(1));
    return 0;
}
