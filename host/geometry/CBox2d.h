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

} // namespace hrx
