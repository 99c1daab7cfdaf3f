#include "app/RuleTransfer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <fstream>
#include <system_error>
#include <utility>

#include "app/OutputFile.h"
#include "rules/GestureRuleCoding.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

// Enough for a hundred thousand long rules.
constexpr std::size_t kLargestFile = std::size_t{64} << 20U;

Error tooLarge(const std::string& name) {
    return {name + ": " + translated("this is larger than 64 MiB, so it is no rule list")};
}

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
        return Error{name + ": " + translated("reading failed: %1", {std::generic_category().message(errno)})};
    return content;
}

std::size_t enabledOf(const std::vector<GestureRule>& rules) {
    return static_cast<std::size_t>(std::ranges::count_if(rules, [](const auto& rule) { return rule.isEnabled; }));
}

// A copy must never overwrite an earlier one: that may be the user's only copy of a list.
std::filesystem::path freshCopyPath(const std::filesystem::path& folder, const Clock& clock) {
    const auto now = static_cast<std::time_t>(clock.wallClock());
    std::array<char, 32> stamp{};
    std::strftime(stamp.data(), stamp.size(), "%Y-%m-%d-%H%M%S", std::localtime(&now));
    std::filesystem::path path = folder / ("rules-before-import-" + std::string(stamp.data()) + ".json");
    for (int n = 2; std::filesystem::exists(path); ++n)
        path = folder / ("rules-before-import-" + std::string(stamp.data()) + "-" + std::to_string(n) + ".json");
    return path;
}

}  // namespace

Result<std::vector<GestureRule>> readRuleFile(const std::string& file, std::istream& standardInput) {
    const bool isStandardInput = file == "-";
    const std::string name = isStandardInput ? "standard input" : file;
    std::ifstream stream;
    if (!isStandardInput) {
        if (std::error_code ignored; std::filesystem::is_directory(file, ignored))
            return Error{name + ": " + translated("this is a folder, not a rule file")};
        std::error_code unknown;
        if (const auto size = std::filesystem::file_size(file, unknown); !unknown && size > kLargestFile)
            return tooLarge(name);
        errno = 0;
        stream.open(file, std::ios::binary);
        if (!stream)
            return Error{name + ": " +
                         translated("the file cannot be opened: %1", {std::generic_category().message(errno)})};
    }
    const Result<std::string> content = readWhole(isStandardInput ? standardInput : stream, name);
    if (!content)
        return content.error();
    auto rules = decodeRules(*content);
    if (rules)
        return rules;
    // "line 14: what is wrong" becomes "FILE:14: what is wrong", the usual form, which editors can follow.
    constexpr std::string_view kLine = "line ";
    const std::string& message = rules.error().message;
    return message.starts_with(kLine) ? Error{name + ":" + message.substr(kLine.size())} : Error{name + ": " + message};
}

std::optional<std::string> problemOfStoredRules(const RuleStore& store) {
    if (store.problem().empty())
        return std::nullopt;
    return translated("The stored rules cannot be read: %1. They are kept; correct them, or import others.",
                      {store.problem()});
}

std::string ruleFileText(const RuleStore& store) {
    return encodeRules(store.rules().value(), RuleListLayout::indented);
}

Outcome exportRules(const RuleStore& store, const std::string& file) {
    return writeOutputFile(file, ruleFileText(store));
}

Result<ImportedRules> importRules(Desktop& desktop, RuleStore& store, std::vector<GestureRule> rules) {
    // Rules that do not decode are copied as they are: they may be all that is left of a list.
    const std::string before = store.problem().empty()
                                   ? ruleFileText(store)
                                   : desktop.defaults().anyAsText(RuleStore::storageKey).value_or("");
    const auto folder = desktop.settingsFolder();
    if (!folder)
        return folder.error();
    ImportedRules imported{.copy = freshCopyPath(*folder, desktop.clock())};
    if (const Outcome written = writeOutputFile(imported.copy.string(), before); !written)
        return written.error();

    const std::size_t enabledInFile = enabledOf(rules);
    // It would announce a temporary change, but the change is undone here.
    Desktop::Tell tell = desktop.onSettingsProblem({});
    const std::vector<GestureRule> previous = store.rules().value();
    store.replaceRules(std::move(rules));
    const Outcome saved = desktop.lastSaving();
    if (!saved)
        store.setRules(previous);
    desktop.onSettingsProblem(std::move(tell));
    if (!saved) {
        std::error_code ignored;
        std::filesystem::remove(imported.copy, ignored);
        return saved.error();
    }
    imported.count = store.rules().value().size();
    imported.enabled = enabledOf(store.rules().value());
    imported.leftOff = enabledInFile - imported.enabled;
    return imported;
}

}  // namespace kinesta
