#pragma once

#include "geometry/ConvexPiece.h"

namespace hrx {

/// What is known of the distance of two convex hulls: it lies between lower and upper, and upper is the
/// distance of the two points.
struct HullContact {
    double lower = 0.0;
    double upper = 0.0;
    CVec3<double> onA;
    CVec3<double> onB;
};

/// Distance of the hulls of two pieces, by the iteration of Gilbert, Johnson and Keerthi (1988) on their
/// difference. Ends when upper - lower is at most 1e-7 mm, the gap certified by the support function; when
/// lower is above `enough`; or, touching within rounding, when no step improves it any more. 0 when they
/// overlap.
HullContact hullContact(const ConvexPiece& a, const ConvexPiece& b, double enough);

} // namespace hrx
