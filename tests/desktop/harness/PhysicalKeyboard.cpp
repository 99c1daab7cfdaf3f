#include "desktop/harness/PhysicalKeyboard.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

namespace kinesta::testing {
namespace {

constexpr std::uint16_t kFirstKeycode = 8;  // the X server counts evdev's codes from here

template <typename T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
    return {reply, &std::free};
}

}  // namespace

PhysicalKeyboard::PhysicalKeyboard(const TestDesktop& desktop) : m_connection(desktop.connection()) {
    const auto* extension = xcb_get_extension_data(m_connection, &xcb_input_id);
    m_firstEvent = extension->first_event;
    std::free(xcb_input_xi_query_version_reply(m_connection, xcb_input_xi_query_version(m_connection, 2, 3), nullptr));
    const auto devices = owned(xcb_input_xi_query_device_reply(
        m_connection, xcb_input_xi_query_device(m_connection, XCB_INPUT_DEVICE_ALL), nullptr));
    for (auto it = xcb_input_xi_query_device_infos_iterator(devices.get()); it.rem > 0;
         xcb_input_xi_device_info_next(&it)) {
        const std::string name(xcb_input_xi_device_info_name(it.data), it.data->name_len);
        if (it.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && name.find("XTEST") == std::string::npos)
            m_device = static_cast<std::uint8_t>(it.data->deviceid);
    }
    if (m_device == 0)
        throw std::runtime_error("the X server has no keyboard");
}

bool PhysicalKeyboard::isDown(std::uint16_t key) const {
    const auto reply = owned(xcb_query_keymap_reply(m_connection, xcb_query_keymap(m_connection), nullptr));
    const unsigned keycode = key + kFirstKeycode;
    return (reply->keys[keycode / 8] >> (keycode % 8) & 1) != 0;
}

void PhysicalKeyboard::send(std::uint16_t key, bool isDown) {
    const auto type =
        static_cast<std::uint8_t>(m_firstEvent + (isDown ? XCB_INPUT_DEVICE_KEY_PRESS : XCB_INPUT_DEVICE_KEY_RELEASE));
    const auto cookie = xcb_test_fake_input_checked(m_connection, type, static_cast<std::uint8_t>(key + kFirstKeycode),
                                                    XCB_CURRENT_TIME, XCB_NONE, 0, 0, m_device);
    if (const auto error = owned(xcb_request_check(m_connection, cookie)))
        throw std::runtime_error("the X server refuses keys of its keyboard: error " +
                                 std::to_string(error->error_code));
}

}  // namespace kinesta::testing
