#pragma once

#include "actions/OwnWindows.h"

namespace kinesta {

/// Has no window.
class NullOwnWindows final : public OwnWindows {
  public:
    std::unique_ptr<OwnWindow> keyWindow() override { return nullptr; }
    std::unique_ptr<OwnWindow> mainWindow() override { return nullptr; }
};

}  // namespace kinesta
