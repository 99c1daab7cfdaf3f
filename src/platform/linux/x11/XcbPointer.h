#pragma once

#include <cstdlib>
#include <memory>

namespace kinesta {

struct XcbFree {
    void operator()(void* memory) const { std::free(memory); }
};

/// Owns a reply, an error or an event from XCB.
template <typename T>
using XcbPointer = std::unique_ptr<T, XcbFree>;

}  // namespace kinesta
