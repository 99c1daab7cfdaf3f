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

/// Calls its observers in the order in which they subscribed, until their subscriptions end. Main thread only. An
/// observer may subscribe, unsubscribe and notify from within its call; a new one is called from the next
/// notification on.
template <typename... Arguments>
class Observers {
  public:
    using Observer = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription add(Observer observer) { return {m_list, m_list->add(std::move(observer))}; }

    /// Calls every observer. Stops when `isWanted`, asked before each, returns false.
    template <typename IsWanted>
    void notify(const IsWanted& isWanted, Arguments... arguments) const {
        m_list->notify(isWanted, arguments...);
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
            // Destroyed last, when the list is consistent again: the observer may own other subscriptions.
            const auto ended = *place;  // NOLINT(performance-unnecessary-copy-initialization)
            ended->isActive = false;
            if (m_depth == 0)
                m_entries.erase(place);
        }

        template <typename IsWanted>
        void notify(const IsWanted& isWanted, Arguments... arguments) {
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
