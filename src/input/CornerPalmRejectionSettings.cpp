#include "input/CornerPalmRejectionSettings.h"

#include <algorithm>
#include <cmath>

namespace kinesta {
namespace {

constexpr double kSmallestInset = 0.03;
constexpr double kInsetRange = 0.15;
constexpr double kDefaultInset = 0.105;

}  // namespace

double CornerPalmRejectionSettings::clampedSensitivity(double value) {
    return std::isfinite(value) ? std::clamp(value, 0.0, 1.0) : defaultSensitivity;
}

double CornerPalmRejectionSettings::cornerInset() const {
    if (!std::isfinite(sensitivity))
        return kDefaultInset;
    return sensitivity > 0 ? std::min(sensitivity, 1.0) * kInsetRange + kSmallestInset : kSmallestInset;
}

bool CornerPalmRejectionSettings::contains(Point point) const {
    const double inset = cornerInset();
    const auto isInEdgeBand = [&](double coordinate) { return !(coordinate > inset && coordinate < 1 - inset); };
    return isInEdgeBand(point.x) && isInEdgeBand(point.y);
}

}  // namespace kinesta
