#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "support/NotingBuffer.h"
#include "support/Result.h"

namespace kinesta {

/// A file that replaces an older one of its name only once it is complete. Pipes, devices and the like are written
/// directly.
class OutputFile {
  public:
    static Result<std::unique_ptr<OutputFile>> create(const std::string& file);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    std::ostream& stream() { return m_stream; }

    /// Flushes the content and moves the file to its place. More may be written afterwards.
    Outcome commit();

  private:
    OutputFile(std::filesystem::path target, std::filesystem::path written);

    std::filesystem::path m_target;
    std::filesystem::path m_written;
    std::filebuf m_file;
    NotingBuffer m_buffer{m_file};
    std::ostream m_stream{&m_buffer};
};

/// Writes a whole file in the same way.
Outcome writeOutputFile(const std::string& file, std::string_view content);

}  // namespace kinesta
