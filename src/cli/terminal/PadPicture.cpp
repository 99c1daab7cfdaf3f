#include "cli/terminal/PadPicture.h"

#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

constexpr Seconds kTrailDuration = 1.5;
constexpr Seconds kBrightDuration = 0.35;
constexpr std::size_t kLongestTrail = 4096;
constexpr std::size_t kMostFingers = 64;  // of a driver that gives every finger a new id in every frame
// Colours of the 256-colour palette that are easy to tell apart on light and dark backgrounds.
constexpr std::array<int, 6> kFingerColours{39, 208, 70, 170, 178, 203};

// The dots of a Braille character: bit of the dot in column x (0, 1) and row y (0 to 3, downward).
constexpr std::array<std::array<unsigned, 4>, 2> kDots{{{0x01, 0x02, 0x04, 0x40}, {0x08, 0x10, 0x20, 0x80}}};

struct Cell {
    unsigned dots = 0;
    std::size_t finger = 0;
    Seconds newest = -1e300;
    bool isContact = false;
};

std::string brailleCharacter(unsigned dots) {
    const unsigned code = 0x2800U + dots;
    return {static_cast<char>(0xE0U | (code >> 12U)), static_cast<char>(0x80U | ((code >> 6U) & 0x3FU)),
            static_cast<char>(0x80U | (code & 0x3FU))};
}

std::string repeated(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

// The dot row or column of a normalized coordinate; a driver may report positions outside the pad, or values that are
// not finite.
int dotAt(double coordinate, int dots) {
    if (!std::isfinite(coordinate))
        return 0;
    return static_cast<int>(std::lround(std::clamp(coordinate, 0.0, 1.0) * (dots - 1)));
}

}  // namespace

std::size_t PadPicture::fingerOf(ContactId id) {
    const auto found = std::find(m_fingers.begin(), m_fingers.end(), id);
    return static_cast<std::size_t>(found - m_fingers.begin());
}

void PadPicture::show(const TouchSamples& samples, Seconds time) {
    if (samples.empty() || m_fingers.size() >= kMostFingers)
        m_fingers.clear();
    m_contacts = samples;
    if (m_contacts.size() > kMostFingers)
        m_contacts.truncate(kMostFingers);
    for (const TouchSample& sample : m_contacts) {
        const std::size_t finger = fingerOf(sample.id);
        if (finger == m_fingers.size())
            m_fingers.push_back(sample.id);
        m_trail.push_back({sample.position, time, finger});
    }
    while (!m_trail.empty() && (m_trail.size() > kLongestTrail || time - m_trail.front().time > kTrailDuration))
        m_trail.pop_front();
}

void PadPicture::clear() {
    m_contacts.clear();
    m_fingers.clear();
    m_trail.clear();
    m_isPressed = false;
}

std::vector<std::string> PadPicture::lines(Seconds now) const {
    std::vector<Cell> cells(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows));
    const auto cellAt = [&](Point position, unsigned& dot) -> Cell& {
        const int x = dotAt(position.x, m_columns * 2);
        const int y = dotAt(1 - position.y, m_rows * 4);
        dot = kDots[static_cast<std::size_t>(x % 2)][static_cast<std::size_t>(y % 4)];
        return cells[static_cast<std::size_t>(y / 4) * static_cast<std::size_t>(m_columns) +
                     static_cast<std::size_t>(x / 2)];
    };
    unsigned dot = 0;
    for (const TrailPoint& point : m_trail) {
        if (now - point.time > kTrailDuration)
            continue;
        Cell& cell = cellAt(point.position, dot);
        cell.dots |= dot;
        if (point.time >= cell.newest) {
            cell.newest = point.time;
            cell.finger = point.finger;
        }
    }
    for (const TouchSample& contact : m_contacts) {
        Cell& cell = cellAt(contact.position, dot);
        cell.isContact = true;
        const auto found = std::find(m_fingers.begin(), m_fingers.end(), contact.id);
        cell.finger = static_cast<std::size_t>(found - m_fingers.begin());
    }

    // Both frames have the same size, so that nothing moves at a press.
    const std::string_view horizontal = m_isPressed ? "━" : "─";
    const std::string_view vertical = m_isPressed ? "┃" : "│";
    std::vector<std::string> result;
    result.push_back((m_isPressed ? "┏" : "╭") + repeated(horizontal, m_columns) + (m_isPressed ? "┓" : "╮"));
    for (int row = 0; row < m_rows; ++row) {
        std::string line(vertical);
        for (int column = 0; column < m_columns; ++column) {
            const Cell& cell = cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
                                     static_cast<std::size_t>(column)];
            if (!cell.isContact && cell.dots == 0) {
                line += ' ';
                continue;
            }
            const bool isFaint = !cell.isContact && now - cell.newest > kBrightDuration;
            line += "\x1b[" +
                    std::string(cell.isContact ? "1;"
                                : isFaint      ? "2;"
                                               : "") +
                    "38;5;" + std::to_string(kFingerColours[cell.finger % kFingerColours.size()]) + "m";
            line += cell.isContact ? "●" : brailleCharacter(cell.dots);
            line += "\x1b[0m";
        }
        line += vertical;
        result.push_back(std::move(line));
    }
    result.push_back((m_isPressed ? "┗" : "╰") + repeated(horizontal, m_columns) + (m_isPressed ? "┛" : "╯"));
    return result;
}

}  // namespace kinesta
