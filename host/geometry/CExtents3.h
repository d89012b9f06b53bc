#pragma once

#include "geometry/CVec3.h"

#include <algorithm>
#include <limits>

namespace hrx {

/// An axis-parallel box, in mm; empty (low +infinity, high -infinity) until a point is added.
struct CExtents3 {
    CVec3<double> low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
                      std::numeric_limits<double>::infinity()};
    CVec3<double> high{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                       -std::numeric_limits<double>::infinity()};

    bool isEmpty() const { return !(low.x <= high.x && low.y <= high.y && low.z <= high.z); }

    void add(const CVec3<double>& point) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }
    void add(const CExtents3& other) {
        low = {std::min(low.x, other.low.x), std::min(low.y, other.low.y), std::min(low.z, other.low.z)};
        high = {std::max(high.x, other.high.x), std::max(high.y, other.high.y),
                std::max(high.z, other.high.z)};
    }
};

} // namespace hrx
