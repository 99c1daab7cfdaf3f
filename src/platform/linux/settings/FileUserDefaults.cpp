#include "platform/linux/settings/FileUserDefaults.h"

#include <utility>

#include "platform/linux/process/UserDatabase.h"
#include "platform/linux/settings/DefaultsFileCoding.h"

namespace kinesta {
namespace {

Error notSetAside(const Error& damage, const Error& reason) {
    return {damage.message + ", and it cannot be set aside: " + reason.message};
}

}  // namespace

FileUserDefaults::FileUserDefaults(std::string path, ProblemHandler problemHandler)
    : m_path(std::move(path)), m_problemHandler(std::move(problemHandler)) {
    settle(load(), "The stored settings could not be read, so the standard ones are in use");
}

bool FileUserDefaults::reload() {
    const StoredValues before = values();
    const auto file = DurableFile::at(m_path);
    const auto content = file ? file->read() : file.error();
    settle(content ? merge(*content) : content.error(), "The settings were changed elsewhere but could not be read");
    return values() != before;
}

Outcome FileUserDefaults::checkSaving() const {
    const auto file = DurableFile::at(m_path);
    if (!file)
        return file.error();
    const auto lock = file->lock();
    return lock ? success() : lock.error();
}

std::string FileUserDefaults::defaultPath() { return configurationFolder() + "/kinesta/defaults.json"; }

void FileUserDefaults::didChange(std::string_view key) {
    m_unsaved.emplace(key);
    m_lastSaving = save();
    settle(m_lastSaving, "Changed settings could not be stored and last only until Kinesta quits");
}

Outcome FileUserDefaults::load() {
    const auto file = DurableFile::at(m_path);
    if (!file)
        return file.error();
    const auto content = file->read();
    if (!content)
        return content.error();
    const Outcome merged = merge(*content);
    if (merged)
        return success();
    const auto lock = file->lock();
    return lock ? mergeLocked(*file) : notSetAside(merged.error(), lock.error());
}

Outcome FileUserDefaults::save() {
    const auto file = DurableFile::at(m_path);
    if (!file)
        return file.error();
    const auto lock = file->lock();
    if (!lock)
        return lock.error();
    if (Outcome outcome = mergeLocked(*file); !outcome)
        return outcome;
    std::string content = encodeDefaults(values());
    if (Outcome outcome = file->replace(content); !outcome)
        return outcome;
    m_content = std::move(content);
    m_unsaved.clear();
    return success();
}

/// Reads the file; sets a damaged one aside, so that saving can go on.
Outcome FileUserDefaults::mergeLocked(const DurableFile& file) {
    const auto content = file.read();
    if (!content)
        return content.error();
    const Outcome merged = merge(*content);
    if (merged)
        return success();
    const auto name = file.setAside();
    if (!name)
        return notSetAside(merged.error(), name.error());
    report("The settings file is damaged and was set aside; repair it and put it back, or make the settings again: " +
           merged.error().message + ", now " + *name);
    return success();
}

/// Replaces the values by those of `content`, if there is any, and keeps the unsaved changes. The error says what is
/// damaged.
Outcome FileUserDefaults::merge(const std::optional<std::string>& content) {
    // Compares the whole content: two quick saves can have the same time stamp and inode number.
    if (!content || content == m_content)
        return success();
    Result<StoredValues> merged = decodeDefaults(*content);
    if (!merged)
        return Error{m_path + ": " + merged.error().message};
    for (const auto& key : m_unsaved) {
        if (const auto found = values().find(key); found != values().end())
            merged->insert_or_assign(key, found->second);
        else
            merged->erase(key);
    }
    replaceValues(std::move(*merged));
    m_content = content;
    return success();
}

void FileUserDefaults::settle(const Outcome& outcome, std::string_view consequence) {
    if (outcome)
        m_lastProblem.clear();
    else
        report(std::string(consequence) + ": " + outcome.error().message);
}

void FileUserDefaults::report(const std::string& problem) {
    if (std::exchange(m_lastProblem, problem) != problem && m_problemHandler)
        m_problemHandler(problem);
}

}  // namespace kinesta
