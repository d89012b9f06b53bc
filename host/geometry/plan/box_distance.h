#pragma once

#include "geometry/CBox2d.h"

#include <algorithm>
#include <cmath>

namespace hrx::plan {

/// The number, or 0 when it is negative; exact for finite numbers, without a branch nobody could predict.
inline double positivePart(double number) {
    return 0.5 * (number + std::abs(number));
}

/// Square of the least distance between two boxes; 0 when they touch or overlap.
inline double squaredDistance(const CBox2d& a, const CBox2d& b) {
    const double dx = positivePart(std::max(a.low.x - b.high.x, b.low.x - a.high.x));
    const double dy = positivePart(std::max(a.low.y - b.high.y, b.low.y - a.high.y));
    return dx * dx + dy * dy;
}

/// Square of the least distance between a point and a box; 0 inside.
inline double squaredDistance(const CVec2<double>& point, const CBox2d& box) {
    const double dx = positivePart(std::max(box.low.x - point.x, point.x - box.high.x));
    const double dy = positivePart(std::max(box.low.y - point.y, point.y - box.high.y));
    return dx * dx + dy * dy;
}

} // namespace hrx::plan
