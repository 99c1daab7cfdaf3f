#include <gnu/libc-version.h>

#include <QApplication>
#include <QStandardPaths>
#include <QSysInfo>
#include <iostream>
#include <memory>

#include "platform/linuxupdates/UpdateDialog.h"
#include "platform/qt/JsonBundleInformation.h"
#include "platform/qt/QtMainThread.h"
#include "platform/qt/ThemePalette.h"
#include "platform/qt/Translations.h"

// Checks for updates: kinesta-updater BUNDLE.json [--scheduled] [--dark] [--more-contrast]. A program of its own,
// because the libraries of the network take memory that the application in the tray should not need all day. Exit
// status: 0 the feed was read, 1 not.
int main(int argc, char** argv) {
    using namespace kinesta;
    QApplication::setApplicationName(QStringLiteral("Kinesta"));
    QApplication::setDesktopFileName(QStringLiteral("com.orvane.kinesta"));
    QApplication::setQuitOnLastWindowClosed(false);
    // Without GTK, which waits for a session bus that hangs.
    QApplication::setDesktopSettingsAware(false);
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const bool isDark = arguments.contains(QStringLiteral("--dark"));
    const bool hasMoreContrast = arguments.contains(QStringLiteral("--more-contrast"));
    QApplication::setPalette(
        themePalette(AppTheme::of(isDark ? NamedAppearance::darkAqua : NamedAppearance::aqua,
                                  hasMoreContrast ? ThemeContrast::more : ThemeContrast::standard)));
    installTranslations(
        (QApplication::applicationDirPath() + QStringLiteral("/../../share/kinesta/translations")).toStdString());
    const JsonBundleInformation bundle(arguments.value(1).toStdString());
    const auto configuration = SoftwareUpdateController::configuration(bundle);
    if (!configuration) {
        std::cerr << configuration.error().message << '\n';
        return 1;
    }
    QtMainThread mainLoop;
    UpdateCheck check({.mainThread = mainLoop,
                       .running = {.version = KINESTA_VERSION,
                                   .system = "linux",
                                   .architecture = QSysInfo::buildCpuArchitecture().toStdString(),
                                   .systemVersion = gnu_get_libc_version()},
                       .folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation).toStdString()},
                      *configuration);
    const auto trigger =
        arguments.contains(QStringLiteral("--scheduled")) ? UpdateTrigger::schedule : UpdateTrigger::person;
    UpdateDialog dialog(check, trigger);
    bool wasRead = false;
    const auto observation = check.progress().observe([&](const UpdateProgress& progress) {
        using Stage = UpdateProgress::Stage;
        wasRead = wasRead || progress.stage == Stage::upToDate || progress.stage == Stage::found;
        // A scheduled check that has found nothing has no window to close.
        if (!progress.isBusy() && !dialog.isVisible() && progress.stage != Stage::found)
            mainLoop.quit();
    });
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&] { mainLoop.quit(); });
    check.check();
    mainLoop.run();
    return wasRead ? 0 : 1;
}
