#pragma once

#include <cstdlib>
#include <memory>

namespace kinesta {

struct XcbFree {
    void operator()(void* memory) const { std::free(memory); }
};

/// Holds a reply, an error or an event that XCB gave away.
template <typename T>
using XcbPointer = std::unique_ptr<T, XcbFree>;

}  // namespace kinesta
