#pragma once

#include <memory>

#include "feedback/ActionCuePanel.h"
#include "support/Clock.h"

namespace kinesta {

/// The cue as a panel that lies over every space and full-screen window and never becomes active. Main thread only.
class MacActionCuePanel final : public ActionCuePanel {
  public:
    /// `clock` must outlive this.
    explicit MacActionCuePanel(const Clock& clock);
    MacActionCuePanel(const MacActionCuePanel&) = delete;
    MacActionCuePanel& operator=(const MacActionCuePanel&) = delete;
    ~MacActionCuePanel() override;

    void setContent(const ActionCueContent& content) override;
    void setBackgroundOpacity(double opacity) override;
    void setOrigin(Point origin) override;
    bool isVisible() const override;
    double alpha() const override;
    void setAlpha(double alpha) override;
    void orderFront() override;
    void orderOut() override;
    void animateAlpha(double alpha, Seconds duration, std::function<void()> done) override;

  private:
    struct Impl;
    struct Fade;

    const Clock& m_clock;
    std::unique_ptr<Impl> m_impl;
    /// The animation that counts. Its completion holds it weakly: the system calls that also when the animation was
    /// replaced, or after this has gone (from memory).
    std::shared_ptr<const Fade> m_fade;
};

}  // namespace kinesta
