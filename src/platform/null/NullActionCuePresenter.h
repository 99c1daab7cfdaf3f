#pragma once

#include "feedback/ActionCuePresenting.h"

namespace kinesta {

/// Shows nothing.
class NullActionCuePresenter final : public ActionCuePresenting {
  public:
    void show(const GestureAction&, std::int64_t, const std::optional<std::string>&) override {}
};

}  // namespace kinesta
