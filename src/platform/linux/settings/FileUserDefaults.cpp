#include "platform/linux/settings/FileUserDefaults.h"

#include <utility>

#include "platform/linux/process/UserDatabase.h"
#include "platform/linux/settings/DefaultsFileCoding.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::string_view kNotStored =
    TRANSLATABLE("Changed settings could not be stored and last only until Kinesta quits: %1");

Error notSetAside(const Error& damage, const Error& reason) {
    return {translated("%1, and it cannot be set aside: %2", {damage.message, reason.message})};
}

}  // namespace

FileUserDefaults::FileUserDefaults(std::string path, ProblemHandler problemHandler)
    : m_path(std::move(path)), m_problemHandler(std::move(problemHandler)) {
    settle(load(), TRANSLATABLE("The stored settings could not be read, so the standard ones are in use: %1"));
}

void FileUserDefaults::saveInBackground(MainThread& mainThread, std::function<void()> onReloadDue) {
    m_mainThread = &mainThread;
    m_onReloadDue = std::move(onReloadDue);
}

bool FileUserDefaults::reload() {
    // The file is older than the values. An editor, which does not know the lock, may replace it at this moment.
    if (m_background.isBusy()) {
        m_isReloadDue = true;
        return std::exchange(m_hasMerged, false);
    }
    settleBackground();
    const StoredValues before = values();
    const auto file = DurableFile::at(m_path);
    const auto content = file ? file->read() : file.error();
    settle(content ? merge(*content) : content.error(),
           TRANSLATABLE("The settings were changed elsewhere but could not be read: %1"));
    return std::exchange(m_hasMerged, false) || values() != before;
}

Outcome FileUserDefaults::checkSaving() const {
    const auto file = DurableFile::at(m_path);
    if (!file)
        return file.error();
    const auto lock = file->lock();
    return lock ? success() : lock.error();
}

std::string FileUserDefaults::defaultPath() { return configurationFolder() + "/kinesta/defaults.json"; }

const Outcome& FileUserDefaults::lastSaving() {
    if (m_lastSaving) {
        static_cast<void>(m_background.wait());
        settleBackground();
    }
    return m_lastSaving;
}

void FileUserDefaults::didChange(std::string_view key) {
    m_unsaved.emplace(key);
    m_lastSaving = save();
    settle(m_lastSaving, kNotStored);
}

Outcome FileUserDefaults::load() {
    const auto file = DurableFile::at(m_path);
    if (!file)
        return file.error();
    if (file->hasStaged()) {
        const auto lock = file->lock();
        if (lock)
            static_cast<void>(recover(*file));  // if that fails, the older content is there
    }
    const auto content = file->read();
    if (!content)
        return content.error();
    const Outcome merged = merge(*content);
    if (merged)
        return success();
    const auto lock = file->lock();
    return lock ? mergeLocked(*file) : notSetAside(merged.error(), lock.error());
}

Outcome FileUserDefaults::recover(const DurableFile& file) {
    return file.recover([](const std::string& content) { return decodeDefaults(content).isValue(); });
}

Outcome FileUserDefaults::save() {
    std::string content;
    if (m_background.isBusy()) {
        content = encodeDefaults(values());
        if (const auto staged = m_background.join(content)) {
            if (*staged)
                nowOnItsWay(std::move(content));
            return *staged;
        }
    }
    settleBackground();  // else merging would take back what the last run has failed to store
    auto file = DurableFile::at(m_path);
    if (!file)
        return file.error();
    auto lock = file->lock();
    if (!lock)
        return lock.error();
    if (file->hasStaged())
        if (Outcome outcome = recover(*file); !outcome)
            return outcome;
    const StoredValues own = values();
    if (Outcome outcome = mergeLocked(*file); !outcome)
        return outcome;
    m_hasMerged = m_hasMerged || values() != own;
    content = encodeDefaults(values());
    if (Outcome outcome = write(std::move(*file), std::move(*lock), content); !outcome)
        return outcome;
    nowOnItsWay(std::move(content));
    return success();
}

void FileUserDefaults::nowOnItsWay(std::string content) {
    m_content = std::move(content);
    m_onTheirWay.merge(m_unsaved);
    m_unsaved.clear();
}

Outcome FileUserDefaults::write(DurableFile file, FileDescriptor lock, const std::string& content) {
    if (m_mainThread == nullptr)
        return file.replace(content);
    if (Outcome staged = file.stage(content); !staged)
        return staged;
    m_background.begin(std::move(file), std::move(lock), [mainThread = m_mainThread, self = std::weak_ptr(m_self)] {
        mainThread->post([self] {
            if (const auto defaults = self.lock())
                (*defaults)->backgroundEnded();
        });
    });
    return success();
}

void FileUserDefaults::backgroundEnded() {
    if (m_background.isBusy())
        return;  // with a later change, whose end comes, too
    settleBackground();
    if (std::exchange(m_isReloadDue, false) && m_onReloadDue)
        m_onReloadDue();
}

/// Takes the outcome of the last run, once. Must not be called while one is under way.
void FileUserDefaults::settleBackground() {
    if (m_onTheirWay.empty())
        return;
    const Outcome outcome = m_background.wait();
    const bool hasFailedSince = !m_unsaved.empty();  // already reported, and still true
    if (!outcome)
        m_unsaved.merge(m_onTheirWay);
    m_onTheirWay.clear();
    if (outcome && hasFailedSince)
        return;
    m_lastSaving = outcome;
    settle(outcome, kNotStored);
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
    report(
        translated("The settings file is damaged and was set aside; repair it and put it back, or make the settings "
                   "again: %1, now %2",
                   {merged.error().message, *name}));
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
    const std::string problem = outcome ? "" : translated(consequence, {outcome.error().message});
    if (outcome)
        m_lastProblem.clear();
    else
        report(problem);
    if (outcome && !m_unsaved.empty())
        return;  // only reading went well
    const std::string solved = std::exchange(m_unsolved, problem);
    if (!solved.empty() && solved != problem && m_solvedHandler)
        m_solvedHandler(solved);
}

void FileUserDefaults::report(const std::string& problem) {
    if (std::exchange(m_lastProblem, problem) != problem && m_problemHandler)
        m_problemHandler(problem);
}

}  // namespace kinesta
