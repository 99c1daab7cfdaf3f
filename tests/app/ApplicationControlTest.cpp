#include "app/ApplicationControl.h"

#include <gtest/gtest.h>

#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

TEST(ApplicationControl, PublishesEachChangeOnce) {
    GestureRig rig;
    RuleStore store(rig.defaults);
    MultitouchService& service = rig.launch();
    bool isVisible = false;
    const auto nothing = [] {};
    ApplicationControl control({.store = store,
                                .service = service,
                                .statusText = [&] { return service.isGestureEnabled().value() ? "on" : "off"; },
                                .isWindowVisible = [&] { return isVisible; },
                                .isTestActive = [] { return false; },
                                .tray = [] { return TrayKind::xembed; },
                                .show = [&] { isVisible = true; },
                                .hide = nothing,
                                .toggle = nothing,
                                .reload = nothing,
                                .quit = nothing});
    service.start();
    ASSERT_EQ(control.state().value().enabledRules, 1);
    int changes = 0;
    const Subscription observer = control.state().observe([&](const auto&) { ++changes; });
    control.perform(ApplicationRequest::show);
    control.perform(ApplicationRequest::show);
    control.perform(ApplicationRequest::hide);  // which these parts do not do
    EXPECT_EQ(changes, 1);
    store.disableAllRules();
    control.perform(ApplicationRequest::disable);
    EXPECT_EQ(control.state().value(), (ApplicationState{.status = TrackpadContactProviderStatus::Kind::stopped,
                                                         .statusText = "off",
                                                         .isWindowVisible = true,
                                                         .tray = TrayKind::xembed}));
}

}  // namespace
}  // namespace kinesta::testing
