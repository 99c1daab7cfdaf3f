#pragma once

#include <memory>

#include "actions/OwnMenu.h"

namespace kinesta {

/// The port to this application's menu bar. Main thread only.
class OwnMenus {
  public:
    virtual ~OwnMenus() = default;

    /// Null if the application has no menu bar now.
    virtual std::unique_ptr<OwnMenu> mainMenu() = 0;
};

}  // namespace kinesta
