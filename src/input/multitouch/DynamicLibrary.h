#pragma once

#include <functional>
#include <memory>
#include <string>

namespace kinesta {

/// The port to a library that was loaded at run time. Destroying this closes it.
class DynamicLibrary {
  public:
    virtual ~DynamicLibrary() = default;

    /// The address of the function with this name, or null.
    virtual void* symbol(const char* name) = 0;
};

/// Loads the library at a path with all of its symbols bound at once; null if that fails.
using OpenDynamicLibrary = std::function<std::unique_ptr<DynamicLibrary>(const std::string& path)>;

}  // namespace kinesta
