#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "input/evdev/EvdevFrameAssembler.h"

namespace kinesta {

/// The description of a kernel input device in a recording, as far as trackpads need it.
class EvdevDescription {
  public:
    void setName(std::string name) { m_name = std::move(name); }
    void setAxis(std::int64_t code, EvdevAxisRange range);
    void addKey(std::int64_t code);
    void addProperty(std::int64_t property);

    const std::string& name() const { return m_name; }

    /// Whether it has the axis ranges that positions need.
    bool hasRanges() const { return hasMultitouch() || (m_x && m_y); }

    /// Whether fingers on it move a pointer: a trackpad, not a touch screen, a tablet or a stick. Keys count only if
    /// the description lists any.
    bool isTouchpad() const;

    /// The device for a frame assembler. Only when hasRanges().
    EvdevTouchpad touchpad() const;

  private:
    bool hasMultitouch() const { return m_multitouchX && m_multitouchY; }

    std::string m_name;
    std::optional<EvdevAxisRange> m_x;
    std::optional<EvdevAxisRange> m_y;
    std::optional<EvdevAxisRange> m_multitouchX;
    std::optional<EvdevAxisRange> m_multitouchY;
    std::optional<EvdevAxisRange> m_slot;
    bool m_hasKeys = false;
    bool m_hasTouchKey = false;
    bool m_hasPenKey = false;
    bool m_isDirect = false;
};

}  // namespace kinesta
