#pragma once

#include "app/ConfigurationWindow.h"

namespace kinesta {

/// The configuration window as the platform knows it. Its maker shows and hides it, but only the platform
/// knows that the application is hidden with it, and brings it to the front of all applications. Main thread only.
class MacConfigurationWindow final : public ConfigurationWindow {
  public:
    /// `maker` must outlive this. Its window has the title "Kinesta".
    explicit MacConfigurationWindow(ConfigurationWindow& maker) : m_maker(maker) {}

    bool exists() const override { return m_maker.exists(); }
    bool isVisible() const override;
    bool isMiniaturized() const override { return m_maker.isMiniaturized(); }
    /// Also while a sheet of the window has the keyboard focus.
    bool isKey() const override;
    void makeKeyAndOrderFront() override;
    void orderOut() override { m_maker.orderOut(); }
    void performClose() override { m_maker.performClose(); }

  private:
    ConfigurationWindow& m_maker;
};

}  // namespace kinesta
