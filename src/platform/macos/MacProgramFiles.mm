#include "platform/macos/MacProgramFiles.h"

#include <Foundation/Foundation.h>

#include <system_error>

#include "platform/macos/foundation/NsText.h"

namespace kinesta {

MacProgramFiles MacProgramFiles::ofThisProcess() {
    std::error_code ignored;
    // The command line may be started through a link.
    return of(std::filesystem::canonical(textOf(NSBundle.mainBundle.executablePath), ignored));
}

MacProgramFiles MacProgramFiles::of(const std::filesystem::path& program) {
    const std::filesystem::path contents = program.parent_path().parent_path();
    if (contents.filename() == "Contents")
        return {contents.parent_path(), contents / "Resources"};
    return {{}, contents / "share" / "kinesta"};
}

}  // namespace kinesta
