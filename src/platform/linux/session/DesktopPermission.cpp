#include "platform/linux/session/DesktopPermission.h"

#include <utility>

#include "support/Translation.h"

namespace kinesta {

DesktopPermission::DesktopPermission(InputPoster& poster, DesktopNotifications& notifications, Remedy remedy)
    : m_poster(poster), m_notifications(notifications), m_remedy(std::move(remedy)) {}

bool DesktopPermission::prompt() {
    if (isTrusted())
        return true;
    m_notifications.show(translated("Kinesta may not send keys and clicks"), m_remedy());
    return false;
}

}  // namespace kinesta
