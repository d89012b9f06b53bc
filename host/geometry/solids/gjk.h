#pragma once

#include "geometry/solids/ConvexPiece.h"

namespace hrx::solids {

/// What is known of the distance of two convex hulls: it lies between lower and upper, and upper is the
/// distance of the two points.
struct HullContact {
    double lower = 0.0;
    double upper = 0.0;
    CVec3<double> onA;
    CVec3<double> onB;
};

/// Distance of the hulls of two pieces, by the iteration of Gilbert, Johnson and Keerthi (1988) on their
/// difference. Ends when upper - lower is at most 1e-7 mm, a gap that the support function certifies, or when
/// lower is above `enough`. Slivers can stall it; it then starts again elsewhere with more digits, and what
/// gap is left after that (seen: below 1e-6 mm) shows in the bounds. 0 when the hulls overlap.
HullContact hullContact(const ConvexPiece& a, const ConvexPiece& b, double enough);

} // namespace hrx::solids
