#pragma once

#include "geometry/CCoord3.h"
#include "geometry/CVec2.h"

#include <cmath>

namespace hrx {

inline bool isFinite(const CVec2<double>& v) {
    return std::isfinite(v.x) && std::isfinite(v.y);
}

inline bool isFinite(const CVec3<double>& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

inline bool isFinite(const CCoord3<double>& frame) {
    return isFinite(frame.origin) && isFinite(frame.xAxis) && isFinite(frame.yAxis) && isFinite(frame.zAxis);
}

/// Coordinates up to which distances are measured, mm: neighbouring doubles are 1e-4 mm apart there, and no
/// product of a few of them overflows.
constexpr double kReach = 1e12;

inline bool isWithinReach(double value) {
    return std::abs(value) <= kReach;
}
inline bool isWithinReach(const CVec2<double>& v) {
    return isWithinReach(v.x) && isWithinReach(v.y);
}
inline bool isWithinReach(const CVec3<double>& v) {
    return isWithinReach(v.x) && isWithinReach(v.y) && isWithinReach(v.z);
}

} // namespace hrx
