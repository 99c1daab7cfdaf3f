#include "support/Picture.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <utility>

#include "support/Text.h"

namespace kinesta {
namespace {

using Kind = Path::Segment::Kind;

/// The control points of a quarter of a circle stand this far from its ends, in radii: the curve then deviates from the
/// circle by less than 0.03 %.
constexpr double kQuarter = 0.5522847498;

Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }

class PathReader {
  public:
    explicit PathReader(std::string_view text) : m_text(text) {}

    Path read() {
        char command = 0;
        for (;;) {
            skipBlanks();
            if (m_text.empty())
                return std::move(m_path);
            if (std::isalpha(static_cast<unsigned char>(m_text.front())) != 0) {
                command = m_text.front();
                m_text.remove_prefix(1);
            }
            step(command);
            // More numbers repeat the command; after a move they are lines, after a close they are an error.
            if (command == 'M' || command == 'm')
                command = command == 'M' ? 'L' : 'l';
            else if (command == 'Z' || command == 'z')
                command = 0;
        }
    }

  private:
    void skipBlanks() {
        const auto blanks = std::min(m_text.find_first_not_of(" ,"), m_text.size());
        m_text.remove_prefix(blanks);
    }

    double number() {
        skipBlanks();
        std::size_t length = m_text.starts_with('-') ? 1 : 0;
        bool hasPoint = false;
        while (length < m_text.size() &&
               (std::isdigit(static_cast<unsigned char>(m_text[length])) != 0 || (m_text[length] == '.' && !hasPoint)))
            hasPoint = m_text[length++] == '.' || hasPoint;
        const auto value = parsedNumber(m_text.substr(0, length));
        m_text.remove_prefix(length);
        if (!value)
            std::abort();
        return *value;
    }

    Point point(bool isRelative) {
        const double x = number();
        const double y = number();
        return isRelative ? m_at + Point{x, y} : Point{x, y};
    }

    void lineTo(Point end) {
        m_path.segments.push_back({Kind::line, {end}});
        m_at = end;
    }

    void step(char command) {
        const bool isRelative = std::islower(static_cast<unsigned char>(command)) != 0;
        switch (std::toupper(static_cast<unsigned char>(command))) {
            case 'M':
                m_at = m_start = point(isRelative);
                m_path.segments.push_back({Kind::move, {m_at}});
                return;
            case 'L':
                return lineTo(point(isRelative));
            case 'H':
                return lineTo({number() + (isRelative ? m_at.x : 0), m_at.y});
            case 'V':
                return lineTo({m_at.x, number() + (isRelative ? m_at.y : 0)});
            case 'C': {
                const Point first = point(isRelative);
                const Point second = point(isRelative);
                const Point end = point(isRelative);
                m_path.segments.push_back({Kind::curve, {first, second, end}});
                m_at = end;
                return;
            }
            case 'A': {
                const double radiusX = number();
                const double radiusY = number();
                number();  // every ellipse here stands upright
                const bool isLarge = number() != 0;
                const bool isClockwise = number() != 0;
                return arcTo(point(isRelative), radiusX, radiusY, isLarge, isClockwise);
            }
            case 'Z':
                m_path.segments.push_back({Kind::close, {}});
                m_at = m_start;
                return;
            default:
                std::abort();
        }
    }

    /// Finds the centre of the arc, then draws it as curves of at most a quarter each.
    void arcTo(Point end, double radiusX, double radiusY, bool isLarge, bool isClockwise) {
        // Radii too short to reach the end grow until they do.
        const double reached = std::hypot((end.x - m_at.x) / radiusX, (end.y - m_at.y) / radiusY) / 2;
        radiusX *= std::max(reached, 1.0);
        radiusY *= std::max(reached, 1.0);
        // On a circle of radius 1.
        const Point from{m_at.x / radiusX, m_at.y / radiusY};
        const Point to{end.x / radiusX, end.y / radiusY};
        const double half = std::min(distance(from, to) / 2, 1.0);
        const double height = std::sqrt(1 - half * half) * (isLarge == isClockwise ? 1 : -1) / std::max(2 * half, 1e-9);
        const Point centre{(from.x + to.x) / 2 + height * (to.y - from.y),
                           (from.y + to.y) / 2 - height * (to.x - from.x)};
        const double begin = std::atan2(from.y - centre.y, from.x - centre.x);
        double sweep = std::atan2(to.y - centre.y, to.x - centre.x) - begin;
        if (isClockwise && sweep < 0)
            sweep += 2 * std::numbers::pi;
        if (!isClockwise && sweep > 0)
            sweep -= 2 * std::numbers::pi;
        const int count = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / (std::numbers::pi / 2) - 1e-9)));
        const double each = sweep / count;
        const double reach = 4.0 / 3 * std::tan(each / 4);
        const auto onArc = [&](double angle, double ahead) {
            return Point{radiusX * (centre.x + std::cos(angle) - ahead * std::sin(angle)),
                         radiusY * (centre.y + std::sin(angle) + ahead * std::cos(angle))};
        };
        for (int i = 0; i < count; ++i) {
            const double angle = begin + i * each;
            m_path.segments.push_back(
                {Kind::curve,
                 {onArc(angle, reach), onArc(angle + each, -reach), i + 1 == count ? end : onArc(angle + each, 0)}});
        }
        m_at = end;
    }

    std::string_view m_text;
    Path m_path;
    Point m_at;
    Point m_start;
};

}  // namespace

Path Path::parse(std::string_view text) { return PathReader(text).read(); }

Path Path::box(double x, double y, double width, double height, double radius) {
    const double right = x + width;
    const double bottom = y + height;
    const double near = radius * (1 - kQuarter);
    return {{{Kind::move, {{x + radius, y}}},
             {Kind::line, {{right - radius, y}}},
             {Kind::curve, {{right - near, y}, {right, y + near}, {right, y + radius}}},
             {Kind::line, {{right, bottom - radius}}},
             {Kind::curve, {{right, bottom - near}, {right - near, bottom}, {right - radius, bottom}}},
             {Kind::line, {{x + radius, bottom}}},
             {Kind::curve, {{x + near, bottom}, {x, bottom - near}, {x, bottom - radius}}},
             {Kind::line, {{x, y + radius}}},
             {Kind::curve, {{x, y + near}, {x + near, y}, {x + radius, y}}},
             {Kind::close, {}}}};
}

Path Path::ellipse(Point centre, double radiusX, double radiusY) {
    const auto [x, y] = centre;
    const double reachX = radiusX * kQuarter;
    const double reachY = radiusY * kQuarter;
    return {{{Kind::move, {{x + radiusX, y}}},
             {Kind::curve, {{x + radiusX, y + reachY}, {x + reachX, y + radiusY}, {x, y + radiusY}}},
             {Kind::curve, {{x - reachX, y + radiusY}, {x - radiusX, y + reachY}, {x - radiusX, y}}},
             {Kind::curve, {{x - radiusX, y - reachY}, {x - reachX, y - radiusY}, {x, y - radiusY}}},
             {Kind::curve, {{x + reachX, y - radiusY}, {x + radiusX, y - reachY}, {x + radiusX, y}}},
             {Kind::close, {}}}};
}

Path Path::line(Point from, Point to) { return {{{Kind::move, {from}}, {Kind::line, {to}}}}; }

}  // namespace kinesta
