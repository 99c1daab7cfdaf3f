#pragma once

#include "actions/OwnMenus.h"

namespace kinesta {

/// The menu bar of this process, also one made by Qt. None in a program without an application object. Main thread
/// only.
class MacOwnMenus final : public OwnMenus {
  public:
    std::unique_ptr<OwnMenu> mainMenu() override;
};

}  // namespace kinesta
