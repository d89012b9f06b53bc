#pragma once

#include "geometry/Edge2d.h"

#include <vector>

namespace hrx {

/// A curve in plan: a straight line or a circular arc. Coordinates in mm.
class CCurve2d {
public:
    virtual ~CCurve2d() = default;

    /// The curve from its start to its end in edges of equal sweep, none of which turns further than a half
    /// circle: one edge for a line or a short arc, two for an arc beyond a half circle. Empty when the curve
    /// is degenerate (no length, or points that fix no arc) or not finite.
    virtual std::vector<Edge2d> edges() const = 0;
};

/// Coordinates beyond this (mm) count as not finite: their squares would leave the range of a double.
constexpr double g_curveCoordinateLimit = 1e30;

} // namespace hrx
