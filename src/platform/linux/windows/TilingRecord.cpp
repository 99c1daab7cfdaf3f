#include "platform/linux/windows/TilingRecord.h"

#include <algorithm>
#include <bit>

namespace kinesta {
namespace {

/// The limit of coordinates and sizes in X.
constexpr int kGreatest = 32767;

bool isPossible(const WindowRectangle& rectangle) {
    const auto isCoordinate = [](int value) { return value >= -kGreatest && value <= kGreatest; };
    return isCoordinate(rectangle.x) && isCoordinate(rectangle.y) && !rectangle.isEmpty() &&
           rectangle.width <= kGreatest && rectangle.height <= kGreatest;
}

}  // namespace

TilingRecord TilingRecord::of(const EwmhWindow& before, const EwmhWindow& restored) {
    return {restored.frame, restored.frame,
            (before.isFullscreen ? fullscreen : 0U) | (before.isMaximizedHorizontally ? maximizedHorizontally : 0U) |
                (before.isMaximizedVertically ? maximizedVertically : 0U) | (before.isInLayout ? inLayout : 0U)};
}

TilingRecord::Numbers TilingRecord::encoded() const { return std::bit_cast<Numbers>(*this); }

std::optional<TilingRecord> TilingRecord::decoded(std::span<const std::uint32_t> numbers) {
    Numbers own;
    if (numbers.size() != own.size())
        return std::nullopt;
    std::ranges::copy(numbers, own.begin());
    const auto record = std::bit_cast<TilingRecord>(own);
    return isPossible(record.previousFrame) && isPossible(record.tiledFrame) ? std::optional(record) : std::nullopt;
}

}  // namespace kinesta
