#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kinesta {

/// One release that an update feed offers.
struct SoftwareRelease {
    /// Numbers with points between them: "1.10.2".
    std::string version;
    /// "linux", "macos".
    std::string system;
    /// Of the processor, as in "x86_64".
    std::string architecture;
    /// The oldest version of the system that runs it; empty for any.
    std::string minimumSystem;
    /// An https address.
    std::string url;
    /// Of the file, in bytes.
    std::uint64_t length = 0;
    /// Ed25519 over the whole file: 64 bytes.
    std::string signature;

    friend bool operator==(const SoftwareRelease&, const SoftwareRelease&) = default;
};

/// What runs now.
struct RunningSystem {
    std::string version;
    std::string system;
    std::string architecture;
    std::string systemVersion;
};

/// Whether `text` consists of numbers with points between them.
bool isVersion(std::string_view text);

/// Whether version `a` is older than version `b`. Missing numbers count as 0, so "1.2" equals "1.2.0". Both must be
/// versions.
bool isOlder(std::string_view a, std::string_view b);

/// The newest of `releases` that is newer than the running version and that this system runs; null if there is none.
const SoftwareRelease* newestRelease(std::span<const SoftwareRelease> releases, const RunningSystem& running);

}  // namespace kinesta
