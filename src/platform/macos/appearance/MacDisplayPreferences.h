#pragma once

#include <memory>

#include "app/AppTheme.h"
#include "feedback/DisplayPreferences.h"
#include "support/Observers.h"

namespace kinesta {

class NotificationObservation;

/// What the person has chosen in the accessibility settings of the display. Main thread only.
class MacDisplayPreferences final : public DisplayPreferences {
  public:
    MacDisplayPreferences();
    MacDisplayPreferences(const MacDisplayPreferences&) = delete;
    MacDisplayPreferences& operator=(const MacDisplayPreferences&) = delete;
    ~MacDisplayPreferences() override;

    bool reducesTransparency() const override;
    bool reducesMotion() const override;
    ThemeContrast contrast() const;

    /// Calls `observer` after each change.
    [[nodiscard]] Subscription observe(std::function<void()> observer) { return m_observers.add(std::move(observer)); }

  private:
    Observers<> m_observers;
    std::unique_ptr<NotificationObservation> m_changes;
};

}  // namespace kinesta
