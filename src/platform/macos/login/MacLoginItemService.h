#pragma once

#include "app/LoginItemService.h"

namespace kinesta {

/// The application itself as a login item.
class MacLoginItemService final : public LoginItemService {
  public:
    LoginItemStatus status() const override;
    Outcome registerItem() override;
    Outcome unregisterItem() override;
    Outcome openSettings() override;
};

}  // namespace kinesta
