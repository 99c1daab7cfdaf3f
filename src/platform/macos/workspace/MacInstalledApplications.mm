#include "platform/macos/workspace/MacInstalledApplications.h"

#include <Foundation/Foundation.h>

#include <algorithm>
#include <utility>

#include "actions/OpenTarget.h"
#include "platform/macos/foundation/NsText.h"
#include "platform/macos/workspace/MacHomeFolders.h"
#include "support/Text.h"

namespace kinesta {
namespace {

namespace fs = std::filesystem;

constexpr const char* kEnding = ".app";

bool isFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

std::vector<fs::path> entries(const fs::path& folder) {
    std::vector<fs::path> result;
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        result.push_back(entry->path());
    return result;
}

/// Where the bundle says that its icon is; empty if it says nothing, or something that is not there.
std::string iconOf(const fs::path& application) {
    NSBundle* const bundle = [NSBundle bundleWithURL:[NSURL fileURLWithPath:nsText(application.string())]];
    id const name = [bundle objectForInfoDictionaryKey:@"CFBundleIconFile"];
    if (![name isKindOfClass:[NSString class]])
        return {};
    fs::path icon = application / "Contents" / "Resources" / textOf(name);
    if (!icon.has_extension())
        icon += ".icns";
    std::error_code ignored;
    return fs::is_regular_file(icon, ignored) ? icon.string() : "";
}

/// As the Finder shows it, which may be in the person's language.
std::string nameOf(const fs::path& application) {
    std::string name = textOf([NSFileManager.defaultManager displayNameAtPath:nsText(application.string())]);
    if (name.ends_with(kEnding))
        name.resize(name.size() - std::string_view(kEnding).size());
    return name.empty() ? application.stem().string() : name;
}

std::optional<InstalledApplication> describe(const fs::path& path) {
    if (path.extension() != kEnding || !isFolder(path) || !isUtf8(path.string()))
        return std::nullopt;
    @autoreleasepool {
        return InstalledApplication{nameOf(path), path.string(), iconOf(path)};
    }
}

}  // namespace

MacInstalledApplications::MacInstalledApplications()
    : MacInstalledApplications(
          {"/Applications", "/System/Applications", expandingTilde("~/Applications", MacHomeFolders())}) {}

MacInstalledApplications::MacInstalledApplications(std::vector<fs::path> folders) : m_folders(std::move(folders)) {}

std::vector<InstalledApplication> MacInstalledApplications::all() const {
    std::vector<InstalledApplication> found;
    const auto take = [&found](const fs::path& path) {
        auto application = describe(path);
        if (application)
            found.push_back(std::move(*application));
        return application.has_value();
    };
    for (const fs::path& folder : m_folders) {
        for (const fs::path& entry : entries(folder)) {
            // Such as Utilities, and the folders that makers of several programs install.
            if (!take(entry) && entry.extension() != kEnding && isFolder(entry))
                for (const fs::path& inner : entries(entry))
                    take(inner);
        }
    }
    std::ranges::sort(found, {},
                      [](const InstalledApplication& each) { return std::pair(lowerCased(each.name), each.path); });
    return found;
}

std::optional<InstalledApplication> MacInstalledApplications::at(const std::string& path) const {
    // "Name.app/" has no extension.
    return describe(standardizedPath(expandingTilde(path, MacHomeFolders())));
}

}  // namespace kinesta
