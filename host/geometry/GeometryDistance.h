#pragma once

#include "geometry/CVec3.h"

namespace hrx {

class CBody;

/// Least distance between two solids, mm, with a closest point on each; 0 when they touch or overlap, one
/// inside the other included.
///
/// Reported to the nearest 1e-5 mm, so that solids which touch measure 0.0 and solids laid out 6 m apart
/// 6000.0 at any angle and place of a site. Two upright solids are exact to that rounding at coordinates up
/// to 4e9 mm, but that at such coordinates a distance within 6e-7 mm of half a step may be rounded to the
/// neighbouring step; all others, arcs in tilted outlines included, are within 1e-5 mm of it at coordinates
/// up to 1e7 mm. Beyond, the spacing of doubles (5e-7 mm at 4e9) limits both.
///
/// The tolerance is the precision a caller needs; the result is as stated whatever it says. A null body, one
/// without points, not finite, reaching beyond 1e12 mm, or a tube of a greater length, measures 1e100, and
/// the closest points stay as given.
double GeometryDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB,
                        double tolerance);

} // namespace hrx
