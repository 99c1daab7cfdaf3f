#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "input/TouchSample.h"
#include "support/Seconds.h"

namespace kinesta {

/// A picture of the pad in characters: each contact as a dot with its trail, one colour per finger, drawn with Braille
/// patterns (eight dots per character).
class PadPicture {
  public:
    /// `columns` and `rows` are the size of the pad without its frame, in characters.
    PadPicture(int columns, int rows) : m_columns(columns), m_rows(rows) {}

    /// Takes the contacts of a frame at `time`.
    void show(const TouchSamples& samples, Seconds time);

    /// Shows a physical press as a heavy frame.
    void setPressed(bool isPressed) { m_isPressed = isPressed; }

    /// Removes all contacts and trails.
    void clear();

    /// The picture as lines of equal width, frame included, coloured with terminal escapes.
    std::vector<std::string> lines(Seconds now) const;

  private:
    struct TrailPoint {
        Point position;
        Seconds time;
        std::size_t finger;
    };

    std::size_t fingerOf(ContactId id);

    int m_columns;
    int m_rows;
    bool m_isPressed = false;
    TouchSamples m_contacts;
    std::vector<ContactId> m_fingers;  // the contacts on the pad; the index decides the colour
    std::deque<TrailPoint> m_trail;
};

}  // namespace kinesta
