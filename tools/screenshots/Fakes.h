#pragma once

#include <string>
#include <utility>

#include "app/BundleInformation.h"
#include "app/InstalledApplications.h"
#include "app/LoginItemService.h"
#include "app/SoftwareUpdater.h"
#include "app/SystemReport.h"
#include "feedback/DisplayPreferences.h"
#include "feedback/Screens.h"
#include "support/MainLoop.h"

// In place of the machine: what the scenes want of it, the same everywhere.
namespace kinesta {

class FakeScreens final : public Screens {
  public:
    std::vector<Screen> screens() const override { return {}; }
    std::optional<Screen> mainScreen() const override { return std::nullopt; }
    std::optional<Point> pointerLocation() const override { return std::nullopt; }
};

class FakePreferences final : public DisplayPreferences {
  public:
    bool reducesTransparency() const override { return false; }
    bool reducesMotion() const override { return true; }
};

class FakeLoginItem final : public LoginItemService {
  public:
    explicit FakeLoginItem(LoginItemStatus status) : m_status(status) {}

    LoginItemStatus status() const override { return m_status; }
    Outcome registerItem() override { return success(); }
    Outcome unregisterItem() override { return success(); }
    Outcome openSettings() override { return success(); }

  private:
    LoginItemStatus m_status;
};

class FakeUpdater final : public SoftwareUpdater {
  public:
    void start() override {}
    void checkForUpdates() override {}
    const Published<bool>& canCheckForUpdates() const override { return m_canCheck; }
    const Published<bool>& automaticallyChecksForUpdates() const override { return m_isAutomatic; }
    void setAutomaticallyChecksForUpdates(bool isAutomatic) override { m_isAutomatic.set(isAutomatic); }

  private:
    Published<bool> m_canCheck{true};
    Published<bool> m_isAutomatic{true};
};

class FakeBundle final : public BundleInformation {
  public:
    explicit FakeBundle(bool hasFeed) : m_hasFeed(hasFeed) {}

    bool contains(std::string_view key) const override { return string(key).has_value(); }
    std::optional<std::string> string(std::string_view key) const override;

  private:
    bool m_hasFeed;
};

class FakeReport final : public SystemReport {
  public:
    FakeReport(MainLoop& mainLoop, bool hasFindings) : m_mainLoop(mainLoop), m_hasFindings(hasFindings) {}

    void request(Receive receive) override;

  private:
    MainLoop& m_mainLoop;
    bool m_hasFindings;
};

class FakeApplications final : public InstalledApplications {
  public:
    std::vector<InstalledApplication> all() const override;
    std::optional<InstalledApplication> at(const std::string& path) const override;
};

}  // namespace kinesta
