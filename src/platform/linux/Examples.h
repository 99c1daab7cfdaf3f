#pragma once

#include <filesystem>

namespace kinesta {

/// The folder of the bundled examples: share/kinesta/examples beside the folder of the running program, in an
/// installation as in a build tree. It may not exist.
std::filesystem::path examplesFolder();

}  // namespace kinesta
