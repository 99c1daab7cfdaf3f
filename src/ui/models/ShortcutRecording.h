#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/KeyRecording.h"
#include "ui/models/KeyCaps.h"

namespace kinesta {

/// Listens for a shortcut, key by key. Main thread only.
class ShortcutRecording {
  public:
    enum class State {
        resting,
        listening,
        /// The keyboard focus went away after modifiers alone: the desktop may have taken the rest.
        unheard
    };

    /// What a key does to the recording if no modifier is held.
    enum class Meaning { key, cancel, clear };

    /// `keyboard` must outlive this.
    explicit ShortcutRecording(KeyRecording& keyboard) : m_keyboard(keyboard) {}

    /// The person recorded a shortcut, or cleared it.
    std::function<void(const std::optional<RecordedShortcut>&)> onRecorded;

    /// Shows a shortcut without a call of onRecorded.
    void setShortcut(const std::optional<RecordedShortcut>& shortcut);
    void start();
    void cancel();
    void clear();
    /// The keyboard focus goes elsewhere.
    void leave();
    /// Keys count only while listening. A key that repeats must come once.
    void press(const NativeKey& key, Meaning meaning);
    void release(const NativeKey& key);

    State state() const { return m_state; }
    const std::optional<RecordedShortcut>& shortcut() const { return m_shortcut; }
    /// Those of the shortcut while resting, else the modifiers that are or were held.
    std::vector<KeyCap> caps() const;
    /// What to do, or what is to be known about the shortcut: one or two sentences, or empty.
    std::string hint() const;

  private:
    enum class Stage { waiting, needsKey, refused };

    void rest();
    void record(const std::optional<RecordedShortcut>& shortcut);
    HeldModifiers held(const NativeKey& key) const;

    KeyRecording& m_keyboard;
    State m_state = State::resting;
    Stage m_stage = Stage::waiting;
    std::optional<RecordedShortcut> m_shortcut;
    /// The modifier keys that went down while listening, by their codes: both Shift keys are one Shift until both are
    /// up.
    std::map<std::uint32_t, HeldModifiers> m_down;
    HeldModifiers m_held = 0;
    /// The last modifiers that were held.
    HeldModifiers m_seen = 0;
    std::string m_refusal;
};

}  // namespace kinesta
