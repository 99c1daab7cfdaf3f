#include "platform/linux/windows/TilingRecord.h"

#include <algorithm>
#include <cstdlib>

namespace kinesta {
namespace {

constexpr std::size_t kNumberCount = 9;
constexpr std::uint32_t kFullscreen = 1;
constexpr std::uint32_t kMaximizedHorizontally = 2;
constexpr std::uint32_t kMaximizedVertically = 4;
constexpr std::uint32_t kInLayout = 8;

/// How far from the requested position a window manager may put a window, in pixels.
constexpr int kTolerance = 8;
/// The limit of coordinates and sizes in X.
constexpr int kGreatest = 32767;

void append(std::vector<std::uint32_t>& numbers, const WindowRectangle& rectangle) {
    for (const int each : {rectangle.x, rectangle.y, rectangle.width, rectangle.height})
        numbers.push_back(static_cast<std::uint32_t>(each));
}

WindowRectangle rectangle(std::span<const std::uint32_t> numbers) {
    const auto item = [&](std::size_t i) { return static_cast<int>(static_cast<std::int32_t>(numbers[i])); };
    return {item(0), item(1), item(2), item(3)};
}

bool isPossible(const WindowRectangle& rectangle) {
    const auto isCoordinate = [](int value) { return value >= -kGreatest && value <= kGreatest; };
    return isCoordinate(rectangle.x) && isCoordinate(rectangle.y) && !rectangle.isEmpty() &&
           rectangle.width <= kGreatest && rectangle.height <= kGreatest;
}

}  // namespace

TilingRecord TilingRecord::of(const EwmhWindow& before, const EwmhWindow& restored) {
    return {restored.frame, before.isFullscreen, before.isMaximizedHorizontally, before.isMaximizedVertically,
            restored.frame, before.isInLayout};
}

bool TilingRecord::describes(const EwmhWindow& window) const {
    const auto isNear = [](int a, int b, int step) { return std::abs(a - b) <= kTolerance + step; };
    const int stepX = window.limits.increment.width;
    const int stepY = window.limits.increment.height;
    return isNear(window.frame.x, tiledFrame.x, stepX) && isNear(window.frame.y, tiledFrame.y, stepY) &&
           isNear(window.frame.width, tiledFrame.width, stepX) && isNear(window.frame.height, tiledFrame.height, stepY);
}

std::vector<std::uint32_t> TilingRecord::encoded() const {
    std::vector<std::uint32_t> numbers;
    append(numbers, previousFrame);
    append(numbers, tiledFrame);
    numbers.push_back((wasFullscreen ? kFullscreen : 0) | (wasMaximizedHorizontally ? kMaximizedHorizontally : 0) |
                      (wasMaximizedVertically ? kMaximizedVertically : 0) | (wasInLayout ? kInLayout : 0));
    return numbers;
}

std::optional<TilingRecord> TilingRecord::decoded(std::span<const std::uint32_t> numbers) {
    if (numbers.size() != kNumberCount)
        return std::nullopt;
    const std::uint32_t states = numbers[8];
    const TilingRecord record{
        rectangle(numbers.first(4)),          (states & kFullscreen) != 0,      (states & kMaximizedHorizontally) != 0,
        (states & kMaximizedVertically) != 0, rectangle(numbers.subspan(4, 4)), (states & kInLayout) != 0};
    if (!isPossible(record.previousFrame) || !isPossible(record.tiledFrame))
        return std::nullopt;
    return record;
}

}  // namespace kinesta
