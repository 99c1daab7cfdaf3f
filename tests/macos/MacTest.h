#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Fakes.h"
#include "TestRuntime.h"

namespace kinesta {

using Calls = std::vector<std::string>;

/// A test on a platform as after login. What the test leaves alive or registered is its failure.
class MacTest : public ::testing::Test {
  protected:
    MacTest() {
        @autoreleasepool {
            fakes::reset();
        }
        objc::reset();
        m_before = objc::liveObjects();
    }

    ~MacTest() override {
        EXPECT_EQ(fakes::openRegistrations(), "");
        EXPECT_EQ(objc::liveObjects(), m_before);
    }

    /// What is alive before the test begins.
    const std::string& before() const { return m_before; }

  private:
    std::string m_before;
};

}  // namespace kinesta
