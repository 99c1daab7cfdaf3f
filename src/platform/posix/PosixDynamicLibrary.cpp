#include "platform/posix/PosixDynamicLibrary.h"

#include <dlfcn.h>

#include <filesystem>

namespace kinesta {
namespace {

// A thread of a closed library may still run in it, such as that of a driver which calls back late. The frameworks of
// macOS stay in memory by themselves.
#ifdef __APPLE__
constexpr int kMode = RTLD_NOW;
#else
constexpr int kMode = RTLD_NOW | RTLD_NODELETE;
#endif

}  // namespace

std::unique_ptr<DynamicLibrary> PosixDynamicLibrary::open(const std::string& path) {
    // The loader would wait for the other end of a pipe. A library of the system may be no file of its own.
    std::error_code ignored;
    const auto file = std::filesystem::status(path, ignored);
    if (std::filesystem::exists(file) && !std::filesystem::is_regular_file(file))
        return nullptr;
    void* const handle = ::dlopen(path.c_str(), kMode);
    return std::unique_ptr<DynamicLibrary>(handle != nullptr ? new PosixDynamicLibrary(handle) : nullptr);
}

PosixDynamicLibrary::~PosixDynamicLibrary() { ::dlclose(m_handle); }

void* PosixDynamicLibrary::symbol(const char* name) { return ::dlsym(m_handle, name); }

}  // namespace kinesta
