#pragma once

#include "input/multitouch/DynamicLibrary.h"

namespace kinesta {

/// A library loaded by the system's dynamic loader.
class PosixDynamicLibrary final : public DynamicLibrary {
  public:
    /// Null if it cannot be loaded.
    static std::unique_ptr<DynamicLibrary> open(const std::string& path);

    ~PosixDynamicLibrary() override;
    PosixDynamicLibrary(const PosixDynamicLibrary&) = delete;
    PosixDynamicLibrary& operator=(const PosixDynamicLibrary&) = delete;

    void* symbol(const char* name) override;

  private:
    explicit PosixDynamicLibrary(void* handle) : m_handle(handle) {}

    void* m_handle;
};

}  // namespace kinesta
