#include "support/InlineVector.h"

#include <gtest/gtest.h>

using namespace kinesta;

namespace {

using Four = InlineVector<int, 4>;

/// 1, 2, 3, … pushed one by one.
Four upTo(std::size_t count) {
    Four list;
    while (list.size() < count)
        list.push_back(static_cast<int>(list.size()) + 1);
    return list;
}

void expectUpTo(std::size_t count, const Four& list) {
    ASSERT_EQ(list.size(), count);
    for (std::size_t i = 0; i < count; ++i)
        EXPECT_EQ(list[i], static_cast<int>(i) + 1);
    const auto* from = reinterpret_cast<const char*>(&list);
    const auto* data = reinterpret_cast<const char*>(list.data());
    EXPECT_EQ(data >= from && data < from + sizeof(list), count <= 4) << "in place up to its capacity";
}

}  // namespace

TEST(InlineVector, PushesCopiesAndAssignsAnyNumber) {
    for (std::size_t count = 0; count <= 9; ++count) {
        const Four pushed = upTo(count);
        expectUpTo(count, pushed);
        expectUpTo(count, Four(pushed));
        Four assigned{9, 9, 9, 9, 9, 9};
        assigned = pushed;
        assigned = *&assigned;
        expectUpTo(count, assigned);
    }
}

TEST(InlineVector, TruncatesAcrossItsCapacity) {
    for (std::size_t from = 0; from <= 7; ++from)
        for (std::size_t to = 0; to <= from; ++to) {
            SCOPED_TRACE(testing::Message() << from << " to " << to);
            Four list{9, 9, 9, 9};
            list.assign(upTo(from).view());
            list.truncate(to);
            expectUpTo(to, list);
            EXPECT_EQ(list, upTo(to)) << "what was cut off does not count";
            EXPECT_NE(list, upTo(to + 1));
            for (std::size_t next = to; next < 6; ++next)
                list.push_back(static_cast<int>(next) + 1);
            expectUpTo(std::max<std::size_t>(to, 6), list);
            list.clear();
            expectUpTo(0, list);
        }
}
