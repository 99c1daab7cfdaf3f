#include "cli/RuleFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "rules/GestureRuleCoding.h"

namespace kinesta {
namespace {

// A hundred thousand long rules fit. Whatever is larger is not a rule list.
constexpr std::size_t kLargestFile = std::size_t{64} << 20U;

Error tooLarge(const std::string& name) { return {name + ": this is larger than 64 MiB, so it is no rule list"}; }

Result<std::string> readWhole(std::istream& input, const std::string& name) {
    std::string content;
    std::array<char, 1U << 16U> block;
    while (input.read(block.data(), block.size()), input.gcount() > 0) {
        const std::string_view read(block.data(), static_cast<std::size_t>(input.gcount()));
        if (content.size() + read.size() > kLargestFile)
            return tooLarge(name);
        content += read;
    }
    if (input.bad())
        return Error{name + ": reading failed: " + std::generic_category().message(errno)};
    return content;
}

}  // namespace

Result<std::vector<GestureRule>> readRuleFile(const std::string& file, std::istream& standardInput) {
    const bool isStandardInput = file == "-";
    const std::string name = isStandardInput ? "standard input" : file;
    std::ifstream stream;
    if (!isStandardInput) {
        if (std::error_code ignored; std::filesystem::is_directory(file, ignored))
            return Error{name + ": this is a folder, not a rule file"};
        std::error_code unknown;
        if (const auto size = std::filesystem::file_size(file, unknown); !unknown && size > kLargestFile)
            return tooLarge(name);
        errno = 0;
        stream.open(file, std::ios::binary);
        if (!stream)
            return Error{name + ": the file cannot be opened: " + std::generic_category().message(errno)};
    }
    const Result<std::string> content = readWhole(isStandardInput ? standardInput : stream, name);
    if (!content)
        return content.error();
    auto rules = decodeRules(*content);
    if (rules)
        return rules;
    // "line 14: what is wrong" becomes "FILE:14: what is wrong", the form that editors and people know.
    constexpr std::string_view kLine = "line ";
    const std::string& message = rules.error().message;
    return message.starts_with(kLine) ? Error{name + ":" + message.substr(kLine.size())} : Error{name + ": " + message};
}

}  // namespace kinesta
