#include "platform/linux/keyboard/PostingEventSynthesizer.h"

#include <linux/input-event-codes.h>

#include <utility>

#include "platform/linux/keyboard/AnsiKeyCodes.h"
#include "platform/linux/settings/LinuxActionSettings.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

constexpr std::uint16_t kFunctionKeyCode = 63;

}  // namespace

class PostingEventSynthesizer::Event final : public SynthesizedEvent {
  public:
    using Post = std::function<void(std::optional<std::uint64_t> flags)>;

    explicit Event(Post post) : m_post(std::move(post)) {}

    void setFlags(std::uint64_t flags) override { m_flags = flags; }
    void setClickState(std::int64_t) override {}  // desktops here count clicks themselves
    void post() override { m_post(m_flags); }

  private:
    Post m_post;
    std::optional<std::uint64_t> m_flags;
};

PostingEventSynthesizer::PostingEventSynthesizer(InputPoster& poster, const UserDefaults& defaults, Log log)
    : m_poster(poster), m_defaults(defaults), m_log(std::move(log)) {}

PostingEventSynthesizer::~PostingEventSynthesizer() { finishPending(); }

std::unique_ptr<EventSource> PostingEventSynthesizer::makeSource() { return std::make_unique<EventSource>(); }

std::optional<DesktopLocation> PostingEventSynthesizer::probePointerLocation(EventSource*) {
    return m_poster.pointerLocation();
}

std::unique_ptr<SynthesizedEvent> PostingEventSynthesizer::makeKeyEvent(EventSource*, std::uint16_t keyCode,
                                                                        KeyTransition transition) {
    if (keyCode == kFunctionKeyCode)
        return std::make_unique<Event>([](auto) {});
    return std::make_unique<Event>([this, keyCode, transition](std::optional<std::uint64_t> flags) {
        const auto obstacle = obstacleToKey(keyCode, flags.value_or(0));
        std::optional<std::uint16_t> code;
        if (!obstacle)
            code = keyForShortcut(keyCode, flags.value_or(0));
        const auto settings = LinuxActionSettings::read(m_defaults);
        const auto modifiers = flags ? std::optional(modifiersForFlags(*flags, settings.commandKey)) : std::nullopt;
        if ((code && postKey(*code, transition, modifiers)) || transition == KeyTransition::up)
            return;
        if (obstacle)
            m_log(obstacle->why + " " + obstacle->remedy);
        else if (m_poster.isAvailable())  // else the poster has reported it
            m_log(translated("The key with code %1 is not on this keyboard. Choose another key.",
                             {std::to_string(keyCode)}));
    });
}

std::unique_ptr<SynthesizedEvent> PostingEventSynthesizer::makeCenterButtonEvent(EventSource*, KeyTransition transition,
                                                                                 DesktopLocation) {
    // Clicks where the pointer is now. The location is where it was a moment ago, and a pointer that the person is
    // moving must not jump back.
    return std::make_unique<Event>([this, transition](auto) {
        const InputTransition click{BTN_MIDDLE, transition};
        m_poster.post({&click, 1});
    });
}

std::unique_ptr<SynthesizedEvent> PostingEventSynthesizer::makeSystemDefinedEvent(const SystemDefinedEvent& event) {
    if (event.subtype != SystemDefinedEvent::kAuxiliaryControlButtons)
        return nullptr;
    const std::int64_t key = event.data1 >> 16;
    const std::int64_t state = event.data1 >> 8 & 0xFF;
    if ((key != SystemDefinedEvent::kSoundUp && key != SystemDefinedEvent::kSoundDown) ||
        (state != SystemDefinedEvent::kPressed && state != SystemDefinedEvent::kReleased))
        return nullptr;
    const std::uint16_t code = key == SystemDefinedEvent::kSoundUp ? KEY_VOLUMEUP : KEY_VOLUMEDOWN;
    const auto transition = state == SystemDefinedEvent::kPressed ? KeyTransition::down : KeyTransition::up;
    return std::make_unique<Event>([this, code, transition](auto) {
        if (!postKey(code, transition, DesktopModifiers{0}) && transition == KeyTransition::down &&
            m_poster.isAvailable())
            m_log(translated("The volume keys are not on this keyboard layout; choose one that has them."));
    });
}

bool PostingEventSynthesizer::postKey(std::uint16_t code, KeyTransition transition,
                                      std::optional<DesktopModifiers> modifiers) {
    if (transition == KeyTransition::up && m_pending && m_pending->code == code) {
        finishPending();
        return true;
    }
    if (transition == KeyTransition::down)
        finishPending();  // first, so that its modifiers do not count as held
    const auto situation = m_poster.modifiersFor(code);
    if (!situation)
        return false;
    if (transition == KeyTransition::up) {
        const InputTransition release{code, transition};
        m_poster.post({&release, 1});
        return true;
    }
    KeyStroke stroke{{{code, KeyTransition::down}}, {{code, KeyTransition::up}}};
    if (modifiers)
        stroke = strokeKey(code, *modifiers, *situation);
    if (m_poster.post(stroke.down.view()))
        m_pending = Pending{code, stroke.up};
    return true;
}

void PostingEventSynthesizer::finishPending() {
    if (const auto pending = std::exchange(m_pending, std::nullopt))
        m_poster.post(pending->up.view());
}

}  // namespace kinesta
