#pragma once

#include <memory>
#include <string>

#include "platform/posix/FileDescriptor.h"

struct udev;
struct udev_monitor;

namespace kinesta {

/// Reports when input devices come and go, become readable or unreadable (a udev rule was applied, another session came
/// to the front), or when udev changes their properties. Works without udev too. Does not poll.
class EvdevDeviceWatch {
  public:
    explicit EvdevDeviceWatch(std::string devicesDirectory = "/dev");
    ~EvdevDeviceWatch();
    EvdevDeviceWatch(const EvdevDeviceWatch&) = delete;
    EvdevDeviceWatch& operator=(const EvdevDeviceWatch&) = delete;

    /// Becomes readable when takeChanges() has something to do.
    int fileDescriptor() const { return m_all.number(); }

    /// Whether it is time to look at the devices again. A device that arrives makes a burst of changes while udev sets
    /// it up, so the answer is yes a tenth of a second after the first change.
    bool takeChanges();

  private:
    bool drainDirectories();
    bool drainUdev();
    void watchInputDirectory();
    void add(int descriptor) const;

    std::string m_devicesDirectory;
    FileDescriptor m_all;  // an epoll of the others
    FileDescriptor m_directories;
    FileDescriptor m_settling;
    int m_inputWatch = -1;
    std::unique_ptr<udev, udev* (*)(udev*)> m_udev;
    std::unique_ptr<udev_monitor, udev_monitor* (*)(udev_monitor*)> m_monitor;
};

}  // namespace kinesta
