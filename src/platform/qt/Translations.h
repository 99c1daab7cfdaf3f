#pragma once

#include <filesystem>

namespace kinesta {

/// Shows all texts in the person's language, if `folder` has it, from now on. English texts need no file. Needs the
/// QApplication; call it once.
void installTranslations(const std::filesystem::path& folder);

}  // namespace kinesta
