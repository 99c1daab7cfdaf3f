#pragma once

#include "actions/OwnWindows.h"

namespace kinesta {

/// The windows of this process, also those of Qt. None in a program without an application object. Main thread only.
class MacOwnWindows final : public OwnWindows {
  public:
    std::unique_ptr<OwnWindow> keyWindow() override;
    std::unique_ptr<OwnWindow> mainWindow() override;
};

}  // namespace kinesta
