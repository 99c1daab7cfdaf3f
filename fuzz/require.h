#pragma once

#include <cstdlib>

/// Ends the run, as a finding, unless `condition` holds.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}
