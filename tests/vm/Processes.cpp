#include "vm/Processes.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>

namespace {

thread_local std::size_t allocations = 0;

long numberAfter(const std::string& label, const std::filesystem::path& file) {
    std::ifstream stream(file);
    long number = 0;
    for (std::string word; stream >> word;)
        if (word == label)
            stream >> number;
    return number;
}

}  // namespace

// Not inlined: if only one of a pair were, the compiler would warn about a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size))
        return memory;
    std::abort();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace kinesta::vm {

std::size_t allocationsOfThisThread() { return allocations; }

ProcessFigures::ProcessFigures(pid_t process) {
    const std::filesystem::path folder = "/proc/" + std::to_string(process);
    for (const auto& thread : std::filesystem::directory_iterator(folder / "task"))
        sleeps += numberAfter("voluntary_ctxt_switches:", thread.path() / "status");
    std::ifstream stat(folder / "stat");
    std::string word;
    for (int field = 1; field <= 15 && stat >> word; ++field)
        cpuHundredths += field >= 14 ? std::stol(word) : 0;  // in user mode and in the kernel
    residentKilobytes = numberAfter("VmRSS:", folder / "status");
    const std::filesystem::directory_iterator open(folder / "fd");
    descriptors = std::distance(begin(open), end(open));
}

}  // namespace kinesta::vm
