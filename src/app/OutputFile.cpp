#include "app/OutputFile.h"

#include <cerrno>
#include <system_error>

#include "support/SystemError.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

Error failure(const std::filesystem::path& file, int reason) {
    return {file.string() + ": " +
            translated("the file cannot be written: %1", {systemErrorText(reason != 0 ? reason : EIO)})};
}

}  // namespace

OutputFile::OutputFile(std::filesystem::path target, std::filesystem::path written)
    : m_target(std::move(target)), m_written(std::move(written)) {}

OutputFile::~OutputFile() {
    std::error_code ignored;
    if (m_written != m_target)
        std::filesystem::remove(m_written, ignored);
}

Result<std::unique_ptr<OutputFile>> OutputFile::create(const std::string& file) {
    std::error_code unresolved;
    const std::filesystem::path resolved = std::filesystem::canonical(file, unresolved);
    const std::filesystem::path target = unresolved ? std::filesystem::path(file) : resolved;  // links stay links
    std::error_code ignored;
    const bool isInPlace =
        std::filesystem::exists(target, ignored) && !std::filesystem::is_regular_file(target, ignored);
    std::unique_ptr<OutputFile> output(
        new OutputFile(target, isInPlace ? target : std::filesystem::path(target.string() + ".part")));
    errno = 0;
    if (output->m_file.open(output->m_written, std::ios::out | std::ios::binary) == nullptr)
        return failure(target, errno);
    return output;
}

Outcome OutputFile::commit() {
    m_stream.flush();
    if (!m_stream)
        return failure(m_target, m_buffer.failure());
    if (m_written == m_target)
        return success();
    std::error_code reason;
    std::filesystem::rename(m_written, m_target, reason);
    if (reason)
        return failure(m_target, reason.value());
    m_written = m_target;
    return success();
}

Outcome writeOutputFile(const std::string& file, std::string_view content) {
    auto output = OutputFile::create(file);
    if (!output)
        return output.error();
    (*output)->stream() << content;
    return (*output)->commit();
}

}  // namespace kinesta
