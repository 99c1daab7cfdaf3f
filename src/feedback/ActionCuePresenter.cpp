#include "feedback/ActionCuePresenter.h"

#include <utility>

#include "feedback/ActionCuePlacement.h"
#include "feedback/ActionCueSettings.h"
#include "support/Translation.h"

namespace kinesta {

ActionCuePresenter::ActionCuePresenter(const Ports& ports, std::function<std::unique_ptr<ActionCuePanel>()> makePanel)
    : m_ports(ports), m_makePanel(std::move(makePanel)) {}

void ActionCuePresenter::show(const GestureAction& action, std::int64_t adjustmentSteps,
                              const std::optional<std::string>& message) {
    if (ActionCueSettings::isEnabled(m_ports.defaults))
        present(ActionCueContent::of(action, adjustmentSteps, message));
}

void ActionCuePresenter::preview() { present({translated("Action cue"), ActionKind::middleClick}); }

void ActionCuePresenter::present(const ActionCueContent& content) {
    m_dismissal.cancel();
    ++m_presentationID;
    if (!m_panel)
        m_panel = m_makePanel();
    m_panel->setContent(content);
    m_panel->setBackgroundOpacity(
        m_ports.preferences.reducesTransparency() ? 1 : ActionCueSettings::backgroundOpacity(m_ports.defaults));
    // Between the loss of the last screen and the next, the cue stays where it is.
    if (const auto screen = ActionCuePlacement::screen(m_ports.screens))
        m_panel->setOrigin(
            ActionCuePlacement::origin(ActionCueSettings::position(m_ports.defaults), screen->visibleFrame));
    appear();
    m_dismissal = m_ports.mainThread.after(wholeNanoseconds(ActionCueSettings::duration(m_ports.defaults)),
                                           [this] { dismiss(); });
}

void ActionCuePresenter::appear() {
    const bool fades = !m_ports.preferences.reducesMotion();
    // A cue that is up keeps its opacity: a slide shows one for each step, and they must not flicker.
    if (!fades || !m_panel->isVisible())
        m_panel->setAlpha(fades ? 0 : 1);
    m_panel->orderFront();
    if (fades)
        m_panel->animateAlpha(1, fadeInDuration * (1 - m_panel->alpha()), [] {});
}

void ActionCuePresenter::dismiss() {
    const auto end = [this, presentationID = m_presentationID] {
        if (presentationID == m_presentationID)
            m_panel->orderOut();
    };
    if (m_ports.preferences.reducesMotion())
        end();
    else
        m_panel->animateAlpha(0, fadeOutDuration, end);
}

}  // namespace kinesta
