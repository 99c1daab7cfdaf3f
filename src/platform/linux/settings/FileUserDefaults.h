#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "platform/linux/settings/DeferredCommit.h"
#include "platform/linux/settings/DurableFile.h"
#include "support/InMemoryUserDefaults.h"
#include "support/MainThread.h"

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

    /// `handler` receives a problem again as soon as it is over.
    void onProblemSolved(ProblemHandler handler) { m_solvedHandler = std::move(handler); }

    /// From now on a change does not wait for the disk: it survives the end of this process at once, and reaches the
    /// disk soon after. A person who types does not feel it. `onReloadDue` is called when a reload() came during that
    /// time and must be repeated. `mainThread` must outlive this.
    void saveInBackground(MainThread& mainThread, std::function<void()> onReloadDue);

    /// Reads what other processes have stored and returns whether a value has changed, by this or by an own change that
    /// brought in what others had stored. If the file is unreadable or
    /// damaged, the values stay.
    bool reload();

    /// Whether changes can be stored, as far as that can be known before one is: creates the folder and locks the file.
    Outcome checkSaving() const;

    /// Whether the last change was stored, and why not. Waits for the disk.
    const Outcome& lastSaving();

    /// Where the user's settings are kept: kinesta/defaults.json in $XDG_CONFIG_HOME, or in ~/.config when that is not
    /// set or not absolute.
    static std::string defaultPath();

  protected:
    void didChange(std::string_view key) override;

  private:
    using Keys = std::set<std::string, std::less<>>;

    Outcome load();
    Outcome save();
    Outcome recover(const DurableFile& file);
    Outcome write(DurableFile file, FileDescriptor lock, const std::string& content);
    void nowOnItsWay(std::string content);
    void backgroundEnded();
    void settleBackground();
    Outcome mergeLocked(const DurableFile& file);
    Outcome merge(const std::optional<std::string>& content);
    void settle(const Outcome& outcome, std::string_view consequence);
    void report(const std::string& problem);

    std::string m_path;
    ProblemHandler m_problemHandler;
    std::optional<std::string> m_content;  // of the file when it last matched the values
    Keys m_unsaved;                        // changed since the last successful save
    Keys m_onTheirWay;                     // staged, and not known to be on the disk
    bool m_hasMerged = false;              // others' changes that reload() has not returned yet
    bool m_isReloadDue = false;            // reload() was called while the file was older than the values
    std::function<void()> m_onReloadDue;
    std::string m_lastProblem;
    /// Why the last reading or storing failed.
    std::string m_unsolved;
    ProblemHandler m_solvedHandler;
    Outcome m_lastSaving = success();
    MainThread* m_mainThread = nullptr;
    std::shared_ptr<FileUserDefaults*> m_self = std::make_shared<FileUserDefaults*>(this);
    DeferredCommit m_background;
};

}  // namespace kinesta
