#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "feedback/ActionCuePanel.h"
#include "feedback/ActionCuePresenting.h"
#include "feedback/DisplayPreferences.h"
#include "feedback/Screens.h"
#include "support/MainThread.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Shows one cue at a time on the screen with the pointer, and takes it away after the time that the settings give.
/// Main thread only.
class ActionCuePresenter final : public ActionCuePresenting {
  public:
    static constexpr Seconds fadeInDuration = 0.16;
    static constexpr Seconds fadeOutDuration = 0.2;

    struct Ports {
        const UserDefaults& defaults;
        MainThread& mainThread;
        const Screens& screens;
        const DisplayPreferences& preferences;
    };

    /// `makePanel` is called for the first cue. The ports must outlive this.
    ActionCuePresenter(const Ports& ports, std::function<std::unique_ptr<ActionCuePanel>()> makePanel);

    /// Does nothing if the settings switch cues off.
    void show(const GestureAction& action, std::int64_t adjustmentSteps,
              const std::optional<std::string>& message) override;
    /// Shows a sample with the present settings, also while cues are switched off.
    void preview();
    /// Shows `content` in place of the cue that is up, for the full time.
    void present(const ActionCueContent& content);

  private:
    void appear();
    void dismiss();

    Ports m_ports;
    std::function<std::unique_ptr<ActionCuePanel>()> m_makePanel;
    std::unique_ptr<ActionCuePanel> m_panel;
    /// Another number for each presentation: the end of an older one's fade must not take a newer cue away.
    std::uint64_t m_presentationID = 0;
    DelayedTask m_dismissal;
};

}  // namespace kinesta
