#include "cli/OutputFile.h"

#include <cerrno>
#include <system_error>

namespace kinesta {
namespace {

Error failure(const std::filesystem::path& file, const std::error_code& reason) {
    return {file.string() + ": the file cannot be written: " + reason.message()};
}

std::error_code lastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

}  // namespace

OutputFile::OutputFile(std::filesystem::path target, std::filesystem::path written)
    : m_target(std::move(target)), m_written(std::move(written)), m_stream(m_written, std::ios::binary) {}

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
    errno = 0;
    std::unique_ptr<OutputFile> output(
        new OutputFile(target, isInPlace ? target : std::filesystem::path(target.string() + ".part")));
    if (!output->m_stream)
        return failure(target, lastError());
    return output;
}

Outcome OutputFile::commit() {
    errno = 0;
    m_stream.flush();
    if (!m_stream)
        return failure(m_target, lastError());
    if (m_written == m_target)
        return success();
    std::error_code reason;
    std::filesystem::rename(m_written, m_target, reason);
    if (reason)
        return failure(m_target, reason);
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
