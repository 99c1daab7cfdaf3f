#include "vm/DeviceListener.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <libevdev/libevdev.h>
#include <poll.h>

#include <algorithm>
#include <filesystem>

namespace kinesta::vm {
namespace {

const std::vector<std::string> kChanges{" up", " down", " repeated"};

/// Whether the descriptor becomes readable in time.
bool waitFor(int descriptor, double deadline) {
    pollfd source{.fd = descriptor, .events = POLLIN, .revents = 0};
    return poll(&source, 1, std::max(0, static_cast<int>((deadline - now()) * 1e3))) > 0;
}

}  // namespace

DeviceListener::DeviceListener(const std::string& name) : m_device(nullptr, libevdev_free) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/dev/input", error)) {
        FileDescriptor descriptor(::open(entry.path().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        libevdev* device = nullptr;
        if (libevdev_new_from_fd(descriptor.number(), &device) != 0)
            continue;
        m_device.reset(device);
        if (libevdev_get_name(device) == name) {
            m_descriptor = std::move(descriptor);
            m_path = entry.path();
            return;
        }
        m_device.reset();
    }
    ADD_FAILURE() << "there is no device " << name;
}

Lines DeviceListener::take(std::size_t count, std::chrono::milliseconds limit) {
    Lines lines;
    const double deadline = now() + std::chrono::duration<double>(limit).count();
    while (m_device && lines.size() < count) {
        input_event event{};
        const int status = libevdev_next_event(m_device.get(), LIBEVDEV_READ_FLAG_NORMAL, &event);
        if (status == LIBEVDEV_READ_STATUS_SUCCESS && event.type == EV_KEY)
            lines.push_back(libevdev_event_code_get_name(EV_KEY, event.code) +
                            kChanges.at(static_cast<std::size_t>(event.value)));
        else if (status == -ENODEV)
            lines.emplace_back("gone");
        if (status == -ENODEV || (status == -EAGAIN && !waitFor(m_descriptor.number(), deadline)))
            break;
    }
    return lines;
}

}  // namespace kinesta::vm
