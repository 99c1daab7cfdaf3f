#include "platform/linuxdesktop/cue/DesktopActionCue.h"

#include <QGuiApplication>

#include "platform/linuxdesktop/cue/NotificationActionCuePanel.h"
#include "platform/linuxdesktop/cue/OverlayActionCuePanel.h"

namespace kinesta {
namespace {

const char* const kPlatform = "QT_QPA_PLATFORM";

bool isSet(const char* variable) { return !qEnvironmentVariableIsEmpty(variable); }

}  // namespace

std::unique_ptr<ActionCuePanel> makeActionCuePanel() {
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        return std::make_unique<OverlayActionCuePanel>();
    return std::make_unique<NotificationActionCuePanel>(QDBusConnection::sessionBus());
}

XWaylandPreference::XWaylandPreference()
    : m_isChosen(isSet("WAYLAND_DISPLAY") && isSet("DISPLAY") && !isSet(kPlatform)) {
    if (m_isChosen)
        qputenv(kPlatform, "xcb;wayland");
}

XWaylandPreference::~XWaylandPreference() {
    if (m_isChosen)
        qunsetenv(kPlatform);
}

}  // namespace kinesta
