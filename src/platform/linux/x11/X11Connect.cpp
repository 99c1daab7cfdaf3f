#include "platform/linux/x11/X11Connect.h"

#include <xcb/xcb.h>

#include <mutex>

namespace kinesta {

xcb_connection_t* connectToXServer(const std::string& displayName, int* screen) {
    static std::mutex connecting;
    const std::lock_guard lock(connecting);
    return xcb_connect(displayName.empty() ? nullptr : displayName.c_str(), screen);
}

}  // namespace kinesta
