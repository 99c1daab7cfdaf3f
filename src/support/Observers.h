#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "support/Subscription.h"

namespace kinesta {

/// Callbacks that are told in the order in which they came, until their subscriptions end. Main thread only. They may
/// subscribe, unsubscribe and have everyone told again from within their call; one that comes while others are told
/// hears only of what follows.
template <typename... Arguments>
class Observers {
  public:
    using Observer = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription add(Observer observer) { return {m_list, m_list->add(std::move(observer))}; }

    /// Calls every observer, as long as `isWanted` says so before each.
    template <typename IsWanted>
    void tell(const IsWanted& isWanted, Arguments... arguments) const {
        m_list->tell(isWanted, arguments...);
    }

  private:
    class List final : public Observations {
      public:
        std::uint64_t add(Observer observer) {
            m_entries.push_back(std::make_shared<Entry>(Entry{++m_lastNumber, true, std::move(observer)}));
            return m_lastNumber;
        }

        void end(std::uint64_t number) override {
            const auto place = std::ranges::lower_bound(m_entries, number, {}, [](const auto& e) { return e->number; });
            if (place == m_entries.end() || (*place)->number != number)
                return;
            // Destroyed last, when the list is in order again: what the observer holds may end other subscriptions.
            const auto ended = *place;
            ended->isActive = false;
            if (m_depth == 0)
                m_entries.erase(place);
        }

        template <typename IsWanted>
        void tell(const IsWanted& isWanted, Arguments... arguments) {
            // By index and up to the present size: a callback may subscribe, which may move the list.
            const std::size_t present = m_entries.size();
            ++m_depth;
            for (std::size_t i = 0; i < present && isWanted(); ++i) {
                const auto entry = m_entries[i];
                if (entry->isActive)
                    entry->observer(arguments...);
            }
            if (--m_depth > 0)
                return;
            std::vector<std::shared_ptr<Entry>> ended;  // destroyed last, as above
            std::erase_if(m_entries, [&](const auto& entry) {
                if (!entry->isActive)
                    ended.push_back(entry);
                return !entry->isActive;
            });
        }

      private:
        struct Entry {
            std::uint64_t number;
            bool isActive;
            Observer observer;
        };

        std::vector<std::shared_ptr<Entry>> m_entries;  // in the order of their numbers
        std::uint64_t m_lastNumber = 0;
        int m_depth = 0;
    };

    std::shared_ptr<List> m_list = std::make_shared<List>();
};

}  // namespace kinesta
