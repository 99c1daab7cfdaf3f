#include "platform/posix/PosixDynamicLibrary.h"

#include <dlfcn.h>

namespace kinesta {

std::unique_ptr<DynamicLibrary> PosixDynamicLibrary::open(const std::string& path) {
    void* const handle = ::dlopen(path.c_str(), RTLD_NOW);
    return std::unique_ptr<DynamicLibrary>(handle != nullptr ? new PosixDynamicLibrary(handle) : nullptr);
}

PosixDynamicLibrary::~PosixDynamicLibrary() { ::dlclose(m_handle); }

void* PosixDynamicLibrary::symbol(const char* name) { return ::dlsym(m_handle, name); }

}  // namespace kinesta
