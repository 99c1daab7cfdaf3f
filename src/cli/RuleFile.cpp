#include "cli/RuleFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "rules/GestureRuleCoding.h"

namespace kinesta {
namespace {

// A hundred thousand long rules take a tenth of this. Whatever is larger is not a rule list.
constexpr std::size_t kLargestFile = std::size_t{512} << 20U;

Result<std::string> readWhole(std::istream& input, const std::string& name) {
    std::string content;
    std::array<char, 1U << 16U> block;
    while (input.read(block.data(), block.size()), input.gcount() > 0) {
        content.append(block.data(), static_cast<std::size_t>(input.gcount()));
        if (content.size() > kLargestFile)
            return Error{name + ": the file is larger than 512 MiB, so it is no rule list"};
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
