#include "platform/linux/Examples.h"

#include <system_error>

namespace kinesta {

std::filesystem::path examplesFolder() {
    std::error_code ignored;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ignored);
    return program.parent_path().parent_path() / "share" / "kinesta" / "examples";
}

}  // namespace kinesta
