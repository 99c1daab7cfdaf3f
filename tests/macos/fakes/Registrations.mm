#include "Registrations.h"

#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "Fakes.h"

namespace kinesta::fakes {
namespace {

std::mutex lock;  // other threads give blocks to the main queue

std::map<std::string, std::size_t>& open() {
    static auto& counts = *new std::map<std::string, std::size_t>;
    return counts;
}

std::vector<void (*)()>& actions() {
    static auto& all = *new std::vector<void (*)()>;
    return all;
}

}  // namespace

void registered(const char* kind) {
    const std::lock_guard guard(lock);
    ++open()[kind];
}

void unregistered(const char* kind, std::size_t count) {
    const std::lock_guard guard(lock);
    open()[kind] -= count;
}

OnReset::OnReset(void (*action)()) { actions().push_back(action); }

std::string openRegistrations() {
    std::string text;
    for (const auto& [kind, count] : open())
        if (count > 0)
            text += (text.empty() ? "" : ", ") + kind + " " + std::to_string(count);
    return text;
}

void reset() {
    open().clear();
    for (const auto action : actions())
        action();
}

}  // namespace kinesta::fakes
