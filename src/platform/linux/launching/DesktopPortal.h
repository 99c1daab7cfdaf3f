#pragma once

#include <string>

#include "platform/linux/session/MessageBus.h"

namespace kinesta {

/// The desktop's service that opens addresses and files. Main thread only. Functions return whether the request was
/// sent.
class DesktopPortal {
  public:
    /// `bus` must outlive this.
    explicit DesktopPortal(MessageBus& bus) : m_bus(bus) {}

    bool openURL(const std::string& url);
    bool openFile(const std::string& path);

  private:
    MessageBus& m_bus;
};

}  // namespace kinesta
