#pragma once

#include "geometry/GeometryDistance.h"

namespace hrx {

/// GeometryDistance under the second name that the platform gives it.
double BodyDistance(const CBody* a, const CBody* b, CVec3<double>& onA, CVec3<double>& onB, double tolerance);

} // namespace hrx
