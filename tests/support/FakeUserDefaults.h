#pragma once

#include "support/InMemoryUserDefaults.h"

namespace kinesta {

/// Settings in memory that count writes.
class FakeUserDefaults final : public InMemoryUserDefaults {
  public:
    using InMemoryUserDefaults::replaceValues;

    /// Stores and removals.
    int writes = 0;

  protected:
    void didChange(std::string_view) override { ++writes; }
};

}  // namespace kinesta
