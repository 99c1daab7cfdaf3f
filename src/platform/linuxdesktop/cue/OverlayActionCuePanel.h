#pragma once

#include <QVariantAnimation>

#include "feedback/ActionCuePanel.h"
#include "platform/linuxdesktop/cue/CompositorWatch.h"
#include "platform/linuxdesktop/cue/CueWindow.h"

namespace kinesta {

/// The cue as a window above all others, on X11 and through XWayland. The window is mapped only while the cue is up.
class OverlayActionCuePanel final : public ActionCuePanel {
  public:
    OverlayActionCuePanel();

    void setContent(const ActionCueContent& content) override { m_window.setContent(content); }
    void setBackgroundOpacity(double opacity) override { m_window.setGroundOpacity(opacity); }
    void setOrigin(Point origin) override;
    bool isVisible() const override { return m_window.isVisible(); }
    double alpha() const override { return m_window.alpha(); }
    void setAlpha(double alpha) override;
    void orderFront() override;
    void orderOut() override;
    void animateAlpha(double alpha, Seconds duration, std::function<void()> done) override;

  private:
    CueWindow m_window;
    CompositorWatch m_compositor;
    QVariantAnimation m_fade;
    std::function<void()> m_done;
};

}  // namespace kinesta
