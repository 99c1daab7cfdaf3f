#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace kinesta {

inline void writeText(const std::string& path, std::string_view text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    EXPECT_TRUE(file.flush()) << path;
}

/// A folder that is deleted with its contents at the end of the test.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "kinesta-test-XXXXXX";
        m_path = ::mkdtemp(pattern.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The path of `name` in the folder.
    std::string operator/(std::string_view name) const { return (m_path / name).string(); }
    const std::filesystem::path& path() const { return m_path; }

    /// Writes a file in the folder and returns its path.
    std::string write(std::string_view name, std::string_view text) const {
        writeText(*this / name, text);
        return *this / name;
    }

  private:
    std::filesystem::path m_path;
};

inline std::string readText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kinesta
