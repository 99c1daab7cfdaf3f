#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/FileDescriptor.h"
#include "support/Result.h"

namespace kinesta {

/// A file that several processes replace as a whole: a reader finds one complete content at any time, even after a
/// crash. Errors name the file and the system's reason.
class DurableFile {
  public:
    /// The file that `path` leads to through any symbolic links, so that replacing it keeps the links. It and its
    /// folder need not exist.
    static Result<DurableFile> at(std::string path);

    /// The path with all links resolved.
    const std::string& path() const { return m_path; }

    /// The content, or nothing if there is no such file. Only a regular file can be read.
    Result<std::optional<std::string>> read() const;

    /// Waits until no other process holds the lock, at most two seconds, and keeps it until the result is destroyed.
    /// Creates the folder, readable by its owner only. The lock is a separate file, because each save replaces the file
    /// itself.
    Result<FileDescriptor> lock() const;

    /// Replaces the content and waits until it is on the disk: stage() and commit(). After an error the old content is
    /// still there and no temporary file; only if the folder cannot be synchronized at the end, the new content stays.
    /// Needs the lock.
    Outcome replace(std::string_view content) const;

    /// Keeps the new content beside the file, in place of one that was staged before, without waiting for the disk: it
    /// survives this process, but not a power cut. Needs the lock.
    Outcome stage(std::string_view content) const;
    /// Brings the staged content, if there is any, onto the disk and then in place of the file. Needs the lock, of the
    /// process. May run on another thread while stage() runs.
    Outcome commit() const;

    /// Whether a process has died, or is busy, between stage() and commit().
    bool hasStaged() const;
    /// Commits what a process that died has staged, if `isWhole` says that a power cut has left it whole; else removes
    /// it. Needs the lock.
    Outcome recover(const std::function<bool(const std::string& content)>& isWhole) const;

    /// Renames the file to a free name that ends in ".damaged-" and a number, and returns that name. Needs the lock.
    Result<std::string> setAside() const;

  private:
    explicit DurableFile(std::string path);

    std::string m_path;
    std::string m_folder;
};

}  // namespace kinesta
