#pragma once

#include <cstdlib>

/// Aborts unless `condition` holds, so that the fuzzer reports the input.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}
