#pragma once

#include <map>
#include <string>

#include "app/ApplicationController.h"
#include "support/CallLog.h"

namespace kinesta::testing {

/// The system around an ApplicationController. Logs what it is asked for, in the order of the calls.
struct FakeShell final : BundleInformation,
                         StatusItem,
                         ConfigurationWindow,
                         ActivationPolicy,
                         Termination,
                         LoginItemService {
    CallLog log;
    std::map<std::string, std::string, std::less<>> bundle;
    Handlers handlers;
    StatusMenu shownMenu;
    std::string label;
    bool isMade = false, isShown = false, isMinimized = false;
    bool takesFocus = true;
    ActivationPolicy::Kind policy = ActivationPolicy::Kind::regular;
    LoginItemStatus login = LoginItemStatus::notRegistered;
    std::string loginFailure;
    Published<bool> canCheck{true}, checksAutomatically{false};

    bool contains(std::string_view key) const override { return bundle.contains(key); }
    std::optional<std::string> string(std::string_view key) const override {
        const auto found = bundle.find(key);
        return found == bundle.end() ? std::nullopt : std::optional(found->second);
    }

    void create(Handlers given) override {
        handlers = std::move(given);
        log.add("status item");
    }
    void setState(bool /*isEnabled*/, const std::string& accessibilityLabel) override { label = accessibilityLabel; }
    void setToolTip(const std::string& toolTip) override { log.add("tool tip " + toolTip); }
    void setMenu(const StatusMenu& menu) override { shownMenu = menu; }
    void openMenu() override { log.add("menu"); }

    bool exists() const override { return isMade; }
    bool isVisible() const override { return isShown; }
    bool isMiniaturized() const override { return isMinimized; }
    bool isKey() const override { return isShown && takesFocus; }
    void makeKeyAndOrderFront() override {
        isShown = isMade;
        isMinimized = false;
        log.add("front");
    }
    void orderOut() override {
        isShown = false;
        log.add("out");
    }
    void performClose() override {
        isShown = false;
        log.add("close");
    }

    ActivationPolicy::Kind kind() const override { return policy; }
    void set(ActivationPolicy::Kind kind) override {
        policy = kind;
        log.add(kind == ActivationPolicy::Kind::regular ? "regular" : "accessory");
    }
    bool isActive() const override { return takesFocus; }
    void activateIgnoringOtherApplications() override { log.add("activate"); }
    void terminate() override { log.add("terminate"); }

    LoginItemStatus status() const override { return login; }
    Outcome registerItem() override { return become(LoginItemStatus::enabled); }
    Outcome unregisterItem() override { return become(LoginItemStatus::notRegistered); }
    Outcome openSettings() override {
        log.add("login settings");
        return success();
    }

  private:
    Outcome become(LoginItemStatus wanted) {
        if (!loginFailure.empty())
            return Error{loginFailure};
        login = wanted;
        return success();
    }
};

/// Checks nothing, as the shell says.
struct FakeUpdater final : SoftwareUpdater {
    explicit FakeUpdater(FakeShell& owner) : shell(owner) {}
    void start() override { shell.log.add("start updater"); }
    void checkForUpdates() override { shell.log.add("check"); }
    const Published<bool>& canCheckForUpdates() const override { return shell.canCheck; }
    const Published<bool>& automaticallyChecksForUpdates() const override { return shell.checksAutomatically; }
    void setAutomaticallyChecksForUpdates(bool isAutomatic) override { shell.checksAutomatically.set(isAutomatic); }

    FakeShell& shell;
};

}  // namespace kinesta::testing
