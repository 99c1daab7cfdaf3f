#include "platform/linux/process/ProgramFiles.h"

#include <system_error>

namespace kinesta {

ProgramFiles ProgramFiles::ofThisProcess() {
    std::error_code ignored;
    const std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
    const bool isApplication = folder.filename() == "kinesta" && folder.parent_path().filename() == "libexec";
    return {isApplication ? folder.parent_path().parent_path() : folder.parent_path()};
}

}  // namespace kinesta
