#pragma once

#include <cstddef>

namespace kinesta::vm {

/// How often the calling thread has asked the heap for memory with `new`.
std::size_t allocationsOfThisThread();

}  // namespace kinesta::vm
