#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// One line a case that a script can find among the kernel's messages.
class Verdicts final : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo& test) override {
        std::printf("%s %s.%s (%ld ms)\n", test.result()->Passed() ? "PASS" : "FAIL", test.test_suite_name(),
                    test.name(), static_cast<long>(test.result()->elapsed_time()));
        std::fflush(stdout);
    }
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new Verdicts);
    return RUN_ALL_TESTS();
}
