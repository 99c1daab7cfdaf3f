#pragma once

#include "support/InMemoryUserDefaults.h"

namespace kinesta {

/// Settings in memory that count what is written to them.
class FakeUserDefaults final : public InMemoryUserDefaults {
  public:
    using InMemoryUserDefaults::replaceValues;

    /// Stores and removals so far.
    int writes = 0;

  protected:
    void didChange(std::string_view) override { ++writes; }
};

}  // namespace kinesta
