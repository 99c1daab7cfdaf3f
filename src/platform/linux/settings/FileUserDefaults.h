#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/linux/settings/DurableFile.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta {

/// Settings in one JSON file, which several processes may write at once: each change takes over what others have
/// stored meanwhile, then stores its own key. Main thread only.
///
/// A file that cannot be understood is set aside under another name before anything is stored. One that cannot be
/// read is left alone: changes are then kept in this process and stored with the first later one that succeeds. One
/// that is gone (another process may have set it aside) is written anew with all values that this process has.
class FileUserDefaults final : public InMemoryUserDefaults {
  public:
    /// Gets one sentence for the person; the same problem is told once, until something was stored or read again.
    using ProblemHandler = std::function<void(const std::string&)>;

    /// Loads the file at `path`; it need not exist, nor its folder.
    FileUserDefaults(std::string path, ProblemHandler problemHandler);

    /// Takes over what other processes have stored and returns whether a value changed by it. The values stay when
    /// the file cannot be read or understood.
    bool reload();

    /// Whether changes can be stored, as far as that is known before one is: makes the folder and locks the file. The
    /// error tells why not.
    Outcome checkSaving() const;

    /// Whether the last change was stored, and why not.
    const Outcome& lastSaving() const { return m_lastSaving; }

    /// Where a person's settings are kept: kinesta/defaults.json in $XDG_CONFIG_HOME, or in ~/.config when that is
    /// not set or not absolute.
    static std::string defaultPath();

  protected:
    void didChange(std::string_view key) override;

  private:
    Outcome load();
    Outcome save();
    Outcome mergeLocked(const DurableFile& file);
    Outcome merge(const std::optional<std::string>& content);
    void settle(const Outcome& outcome, std::string_view consequence);
    void report(const std::string& problem);

    std::string m_path;
    ProblemHandler m_problemHandler;
    std::optional<std::string> m_content;          // of the file, as of when the values were last in line with it
    std::set<std::string, std::less<>> m_unsaved;  // keys changed since the last successful save
    std::string m_lastProblem;
    Outcome m_lastSaving = success();
};

}  // namespace kinesta
