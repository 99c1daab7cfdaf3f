#include "support/InMemoryUserDefaults.h"

#include <gtest/gtest.h>

using namespace kinesta;

namespace {

/// Which readers find a value under "k".
std::string readers(const UserDefaults& defaults) {
    std::string found = defaults.contains("k") ? "present" : "absent";
    found += defaults.boolean("k") ? " boolean" : "";
    found += defaults.integer("k") ? " integer" : "";
    found += defaults.real("k") ? " real" : "";
    found += defaults.string("k") ? " string" : "";
    found += defaults.data("k") ? " data" : "";
    return found;
}

}  // namespace

TEST(InMemoryUserDefaults, readsEachTypeAsItselfAndIntegersAsReals) {
    InMemoryUserDefaults defaults;
    UserDefaults& port = defaults;
    EXPECT_EQ(readers(port), "absent");
    port.setBoolean("k", false);
    EXPECT_EQ(readers(port), "present boolean");
    port.setInteger("k", std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(readers(port), "present integer real");
    EXPECT_EQ(port.real("k"), -0x1p63);
    port.setReal("k", 1);
    EXPECT_EQ(readers(port), "present real");
    port.setString("k", "1");
    EXPECT_EQ(readers(port), "present string");
    port.setData("k", std::string("\0\xFF", 2));
    EXPECT_EQ(readers(port), "present data");
    EXPECT_EQ(port.data("k"), std::string("\0\xFF", 2));
    EXPECT_FALSE(port.contains("K"));
    port.remove("other");
    port.remove("k");
    EXPECT_EQ(readers(port), "absent");
}
