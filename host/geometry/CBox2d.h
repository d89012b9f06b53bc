#pragma once

#include "geometry/CVec2.h"

#include <algorithm>
#include <limits>

namespace hrx {

/// An axis-parallel rectangle of the plane; empty until a point is added.
struct CBox2d {
    CVec2<double> low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    CVec2<double> high{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

    void add(const CVec2<double>& point) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    void add(const CBox2d& other) {
        low = {std::min(low.x, other.low.x), std::min(low.y, other.low.y)};
        high = {std::max(high.x, other.high.x), std::max(high.y, other.high.y)};
    }
};

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

} // namespace hrx
