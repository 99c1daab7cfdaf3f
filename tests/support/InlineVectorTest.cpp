#include "support/InlineVector.h"

#include <gtest/gtest.h>

#include <random>

using namespace kinesta;

TEST(InlineVector, HoldsWhatAVectorWouldAndStaysInPlaceUpToItsCapacity) {
    using Four = InlineVector<int, 4>;
    std::minstd_rand random(7);
    Four list;
    std::vector<int> model;
    for (int step = 0; step < 20'000; ++step) {
        const std::size_t choice = random() % 9;
        const std::size_t size = random() % (choice == 0 ? 9 : model.size() + 1);
        if (choice == 0) {
            model.assign(size, step);
            list.assign(model);
        } else if (choice == 1) {
            model.resize(size);
            list.truncate(size);
        } else if (choice == 2) {
            Four assigned = size % 2 == 0 ? Four{9, 9, 9, 9, 9, 9} : Four{9};
            assigned = list;
            assigned = *&assigned;
            const Four copy(assigned);
            list.assign(copy.view());
        } else if (choice == 3 && size == 0) {
            model.clear();
            list.clear();
        } else {
            model.push_back(step);
            list.push_back(step);
        }
        ASSERT_TRUE(std::ranges::equal(list, model)) << step;
        const auto* from = reinterpret_cast<const char*>(&list);
        const auto* data = reinterpret_cast<const char*>(list.data());
        ASSERT_EQ(data >= from && data < from + sizeof(list), model.size() <= 4) << step;
        Four other{std::span<const int>(model)};
        ASSERT_EQ(list, other) << "what was cut off does not count";
        other.push_back(step);
        ASSERT_NE(list, other);
    }
}
