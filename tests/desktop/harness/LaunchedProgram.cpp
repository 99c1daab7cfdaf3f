#include "desktop/harness/LaunchedProgram.h"

#include "desktop/harness/ChildProcess.h"

namespace kinesta::testing {

namespace fs = std::filesystem;

LaunchedProgram::LaunchedProgram(const TemporaryFolder& folder, const std::string& name)
    // The file with the arguments appears whole, by its renaming.
    : m_path(folder.write(name,
                          "#!/bin/sh\npwd > \"$0.folder\"\n: > \"$0.new\"\n"
                          "[ $# -eq 0 ] || printf '%s\\0' \"$@\" > \"$0.new\"\nmv \"$0.new\" \"$0.arguments\"\n")) {
    fs::permissions(m_path, fs::perms::owner_all);
}

std::vector<std::string> LaunchedProgram::waitForArguments() const {
    const std::string file = m_path + ".arguments";
    if (!eventually([&] { return fs::exists(file); }))
        return {"(not started)"};
    const std::string content = readText(file);
    fs::remove(file);
    std::vector<std::string> arguments;
    for (std::size_t start = 0; start < content.size();) {
        const auto end = content.find('\0', start);
        arguments.push_back(content.substr(start, end - start));
        start = end + 1;
    }
    return arguments;
}

std::string LaunchedProgram::workingDirectory() const { return readText(m_path + ".folder"); }

}  // namespace kinesta::testing
