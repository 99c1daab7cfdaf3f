#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/linux/settings/DurableFile.h"
#include "support/InMemoryUserDefaults.h"

namespace kinesta {

/// Settings in one JSON file, which several processes may write at once: each change first reads what others have
/// stored meanwhile, then stores its own key. Main thread only.
///
/// A damaged file is renamed before anything is stored. A file that cannot be read stays as it is: this process keeps
/// its changes and stores them with the next change that can be stored. A missing file (another process may have
/// renamed it) is created with all values of this process.
class FileUserDefaults final : public InMemoryUserDefaults {
  public:
    /// Receives one sentence for the user. The same problem is not reported again until storing or reading has
    /// succeeded.
    using ProblemHandler = std::function<void(const std::string&)>;

    /// Loads the file at `path`; it need not exist, nor its folder.
    FileUserDefaults(std::string path, ProblemHandler problemHandler);

    /// Reads what other processes have stored and returns whether a value has changed. If the file is unreadable or
    /// damaged, the values stay.
    bool reload();

    /// Whether changes can be stored, as far as that can be known before one is: creates the folder and locks the file.
    Outcome checkSaving() const;

    /// Whether the last change was stored, and why not.
    const Outcome& lastSaving() const { return m_lastSaving; }

    /// Where the user's settings are kept: kinesta/defaults.json in $XDG_CONFIG_HOME, or in ~/.config when that is not
    /// set or not absolute.
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
    std::optional<std::string> m_content;          // of the file when it last matched the values
    std::set<std::string, std::less<>> m_unsaved;  // keys changed since the last successful save
    std::string m_lastProblem;
    Outcome m_lastSaving = success();
};

}  // namespace kinesta
