#include "platform/linux/windows/WindowOutcomes.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "platform/linux/session/DesktopFacts.h"
#include "platform/linux/windows/TilingPlan.h"

namespace kinesta {
namespace {

using Outcome = WindowOutcomes::Outcome;

constexpr std::chrono::milliseconds kBetweenLooks{5};

/// How long to look for the reason why nothing was done, in seconds. Longer than actions wait, because a server that
/// was too slow for the action must not fail this too.
constexpr Seconds kPatienceForReasons = 2;

Outcome outcomeOf(const EwmhRequest& request, const EwmhWindow* window) {
    using Kind = EwmhRequest::Kind;
    if (request.kind == Kind::close)
        return window == nullptr ? Outcome::done : Outcome::asked;
    if (window == nullptr)
        return Outcome::asked;
    switch (request.kind) {
        case Kind::close:
            break;
        case Kind::place:
            if (window->isPlacedAt(request.frame))
                return Outcome::done;
            return window->frame == request.before ? Outcome::ignored : Outcome::asked;
        case Kind::zoom:
            return window->isZoomed() ? Outcome::done : Outcome::ignored;
        case Kind::layout:
            return window->isInLayout ? Outcome::done : Outcome::ignored;
    }
    return Outcome::asked;
}

}  // namespace

void WindowOutcomes::begin() {
    m_requests.clear();
    m_desktop.setObserver([this](const EwmhRequest& request) {
        // The last request for a window replaces earlier ones.
        std::erase_if(m_requests, [&](const EwmhRequest& each) { return each.window == request.window; });
        m_requests.push_back(request);
    });
}

Outcome WindowOutcomes::settle(Seconds patience) {
    if (m_requests.empty())
        return Outcome::nothingAsked;
    const auto deadline = deadlineIn(patience);
    Outcome outcome = outcomeNow();
    while (outcome != Outcome::done && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(kBetweenLooks);
        outcome = outcomeNow();
    }
    return outcome;
}

Outcome WindowOutcomes::outcomeNow() {
    const auto desktop = m_desktop.snapshot();
    if (!desktop)
        return Outcome::asked;
    Outcome worst = Outcome::done;
    for (const EwmhRequest& request : m_requests)
        worst = std::min(worst, outcomeOf(request, desktop->window(request.window)));
    return worst;
}

std::string WindowOutcomes::obstacle(Kind kind) {
    const auto desktop = m_desktop.snapshot(kPatienceForReasons);
    if (!desktop)
        return "No X server answers that would tell of windows. See: kinesta doctor";
    if (kind == Kind::close ? !desktop->closesWindows : !desktop->movesWindows)
        return std::string("No window manager runs here that ") + (kind == Kind::close ? "closes" : "moves") +
               " windows for others. See: kinesta doctor";
    const EwmhWindow* active = desktop->window(desktop->activeWindow);
    if (active == nullptr)
        return answersWayland() ? "No window of a program that uses XWayland is active; Wayland hides all others."
                                : "No window is active.";
    const bool waits = active->isModal || !desktop->modalDialogsOf(*active).empty() ||
                       (kind == Kind::close && m_programs.hasDialogInside(active->process));
    if (waits)
        return "A dialog waits for your answer.";
    if (kind == Kind::close && (!active->mayClose || active->isHidden || active->type == EwmhWindowType::other))
        return "The active window cannot be closed.";
    if (kind != Kind::close && !canTile(WindowTilingMenuCommand::left, *desktop))
        return "The active window cannot be tiled.";
    if (kind == Kind::untile && active->tilingRecord.empty())
        return "The window has no previous size: it was not tiled.";
    return "The desktop took too long to answer. Try again.";
}

}  // namespace kinesta
