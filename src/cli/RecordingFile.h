#pragma once

#include <cstdint>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "cli/terminal/Console.h"
#include "input/recording/RecordingReading.h"

namespace kinesta {

/// A recording that was named on the command line: a file, or "-" for standard input.
class RecordingFile {
  public:
    /// `device` names an evemu device description, or is empty.
    static Result<std::unique_ptr<RecordingFile>> open(const Console& console, const std::string& file,
                                                       const std::string& device);

    RecordingReading& reader() { return *m_reader; }

    /// How much has been read, 0 to 1, if the length is known.
    std::optional<double> progress();

  private:
    RecordingFile() = default;

    std::ifstream m_stream;
    std::ifstream m_deviceStream;
    std::uintmax_t m_size = 0;
    std::unique_ptr<RecordingReading> m_reader;
};

}  // namespace kinesta
