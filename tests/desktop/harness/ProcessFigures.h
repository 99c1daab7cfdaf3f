#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kinesta::testing {

/// What /proc says about a process.
struct ProcessFigures {
    explicit ProcessFigures(long process) {
        const std::filesystem::path folder = "/proc/" + std::to_string(process);
        for (const auto& thread : std::filesystem::directory_iterator(folder / "task"))
            sleeps += numberAfter("voluntary_ctxt_switches:", thread.path() / "status");
        std::ifstream stat(folder / "stat");
        std::string word;
        for (int field = 1; field <= 15 && stat >> word; ++field)
            cpuHundredths += field >= 14 ? std::stol(word) : 0;  // in user mode and in the kernel
        residentKilobytes = numberAfter("VmRSS:", folder / "status");
        descriptors = std::distance(std::filesystem::directory_iterator(folder / "fd"), {});
    }

    long sleeps = 0;         // how often its threads have blocked, together
    long cpuHundredths = 0;  // of a second
    long residentKilobytes = 0;
    long descriptors = 0;

  private:
    static long numberAfter(const std::string& label, const std::filesystem::path& file) {
        std::ifstream stream(file);
        long number = 0;
        for (std::string word; stream >> word;)
            if (word == label)
                stream >> number;
        return number;
    }
};

/// How long the main thread of a process could have run but had to wait for a processor, in milliseconds. Times without
/// it say what the code takes, also on a busy machine.
inline double waitForProcessor(long process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/schedstat");
    double running = 0;
    double waiting = 0;
    file >> running >> waiting;  // nanoseconds; nothing on kernels that do not count
    return waiting / 1e6;
}

}  // namespace kinesta::testing
