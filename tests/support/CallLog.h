#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kinesta::testing {

using Calls = std::vector<std::string>;

inline std::string joined(const Calls& calls) {
    std::string text;
    for (const std::string& call : calls)
        text += (text.empty() ? "" : "; ") + call;
    return text;
}

/// The calls to the fakes, in order and as short text. A query begins with "?", the making of an event with "+";
/// everything else is an effect.
class CallLog {
  public:
    void add(std::string call) { m_calls.push_back(std::move(call)); }

    /// Everything since the last take.
    Calls take() { return std::exchange(m_calls, {}); }

    /// The effects since the last take.
    Calls takeEffects() {
        Calls effects = take();
        std::erase_if(effects, [](const std::string& call) { return call[0] == '?' || call[0] == '+'; });
        return effects;
    }

  private:
    Calls m_calls;
};

}  // namespace kinesta::testing
