#include "MacTest.h"
#include "platform/macos/application/MacActivationPolicy.h"

namespace kinesta {
namespace {

using ActivationPolicyOnTheMac = MacTest;

TEST_F(ActivationPolicyOnTheMac, ReadsBackWhatWasSet) {
    MacActivationPolicy policy;
    policy.set(ActivationPolicy::Kind::accessory);
    EXPECT_EQ(policy.kind(), ActivationPolicy::Kind::accessory);
    policy.set(ActivationPolicy::Kind::regular);
    EXPECT_EQ(policy.kind(), ActivationPolicy::Kind::regular);
    EXPECT_EQ(objc::takeCalls(),
              (Calls{"NSApplication#1 setActivationPolicy:1", "NSApplication#1 setActivationPolicy:0"}));
}

}  // namespace
}  // namespace kinesta
