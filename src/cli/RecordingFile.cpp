#include "cli/RecordingFile.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace kinesta {
namespace {

Outcome openForReading(std::ifstream& stream, const std::string& file) {
    if (std::error_code ignored; std::filesystem::is_directory(file, ignored))
        return Error{file + ": this is a folder, not a recording"};
    errno = 0;
    stream.open(file, std::ios::binary);
    if (!stream)
        return Error{file + ": the file cannot be opened: " + std::generic_category().message(errno)};
    return success();
}

}  // namespace

Result<std::unique_ptr<RecordingFile>> RecordingFile::open(const Console& console, const std::string& file,
                                                           const std::string& device) {
    std::unique_ptr<RecordingFile> recording(new RecordingFile);
    const bool isStandardInput = file == "-";
    if (!isStandardInput) {
        if (const Outcome opened = openForReading(recording->m_stream, file); !opened)
            return opened.error();
        std::error_code ignored;
        recording->m_size =
            std::filesystem::is_regular_file(file, ignored) ? std::filesystem::file_size(file, ignored) : 0;
    }
    if (!device.empty())
        if (const Outcome opened = openForReading(recording->m_deviceStream, device); !opened)
            return opened.error();
    auto reader =
        openRecording(isStandardInput ? console.in : recording->m_stream, isStandardInput ? "standard input" : file,
                      device.empty() ? nullptr : &recording->m_deviceStream);
    if (!reader)
        return reader.error();
    recording->m_reader = std::move(*reader);
    return recording;
}

std::optional<double> RecordingFile::progress() {
    if (m_size == 0)
        return std::nullopt;
    const auto position = m_stream.tellg();
    if (position < 0)
        return 1.0;
    return static_cast<double>(position) / static_cast<double>(m_size);
}

}  // namespace kinesta
