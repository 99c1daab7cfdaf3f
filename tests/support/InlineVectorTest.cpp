#include "support/InlineVector.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <numeric>

using namespace kinesta;

namespace {

using Four = InlineVector<int, 4>;

std::vector<int> upTo(std::size_t count) {
    std::vector<int> values(count);
    std::iota(values.begin(), values.end(), 1);
    return values;
}

std::vector<int> contents(const Four& list) { return {list.begin(), list.end()}; }

bool isInPlace(const Four& list) {
    const auto* from = reinterpret_cast<const char*>(&list);
    const auto* data = reinterpret_cast<const char*>(list.data());
    return data >= from && data < from + sizeof(list);
}

}  // namespace

TEST(InlineVector, holdsAnyNumberAndStaysInPlaceUpToItsCapacity) {
    for (std::size_t count = 0; count <= 9; ++count) {
        SCOPED_TRACE(count);
        Four pushed;
        for (const int value : upTo(count))
            pushed.push_back(value);
        const Four copy = pushed;
        Four assigned{9, 9, 9, 9, 9, 9};
        assigned = copy;
        assigned = *&assigned;
        for (const Four* list : std::initializer_list<const Four*>{&pushed, &copy, &assigned}) {
            EXPECT_EQ(contents(*list), upTo(count));
            EXPECT_EQ(isInPlace(*list), count <= 4);
        }
    }
}

TEST(InlineVector, truncatesAcrossItsCapacity) {
    for (std::size_t from = 0; from <= 7; ++from)
        for (std::size_t to = 0; to <= from; ++to) {
            SCOPED_TRACE(testing::Message() << from << " to " << to);
            Four list{9, 9, 9, 9};
            list.assign(upTo(from));
            list.truncate(to);
            EXPECT_EQ(contents(list), upTo(to));
            EXPECT_EQ(isInPlace(list), to <= 4);
            Four same;
            same.assign(upTo(to));
            EXPECT_EQ(list, same);  // whatever lies behind the end
            same.push_back(0);
            EXPECT_NE(list, same);
            for (std::size_t next = to; next < 6; ++next)  // and grows again
                list.push_back(static_cast<int>(next) + 1);
            EXPECT_EQ(contents(list), upTo(std::max<std::size_t>(to, 6)));
            list.clear();
            EXPECT_TRUE(list.empty() && isInPlace(list));
        }
}
