#pragma once

#include "actions/OwnMenus.h"

namespace kinesta {

/// Has no menu bar.
class NullOwnMenus final : public OwnMenus {
  public:
    std::unique_ptr<OwnMenu> mainMenu() override { return nullptr; }
};

}  // namespace kinesta
