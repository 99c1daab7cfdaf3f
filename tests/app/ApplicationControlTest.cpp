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
    ApplicationState expected{.isGestureEnabled = true,
                              .status = TrackpadContactProviderStatus::Kind::listening,
                              .statusText = "on",
                              .enabledRules = store.rules().value().size(),
                              .tray = TrayKind::xembed};
    service.start();
    EXPECT_EQ(control.state().value(), expected);

    int changes = 0;
    const Subscription observer = control.state().observe([&](const auto&) { ++changes; });
    control.perform(ApplicationRequest::show);
    control.perform(ApplicationRequest::show);
    control.perform(ApplicationRequest::hide);  // which these parts do not do
    EXPECT_EQ(changes, 1);
    store.disableAllRules();
    expected.isWindowVisible = true;
    expected.enabledRules = 0;
    EXPECT_EQ(control.state().value(), expected);
    control.perform(ApplicationRequest::disable);
    expected.isGestureEnabled = false;
    expected.status = TrackpadContactProviderStatus::Kind::stopped;
    expected.statusText = "off";
    EXPECT_EQ(control.state().value(), expected);
}

}  // namespace
}  // namespace kinesta::testing
