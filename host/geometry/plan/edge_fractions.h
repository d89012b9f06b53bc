#pragma once

#include "geometry/Edge2d.h"

namespace hrx::plan {

// Places on an edge, given as a fraction of its length: 0 at its start, 1 at its end. The point
// at a fraction is found from the chord rather than from the centre, so flat arcs lose no precision.

/// The point of the edge at a fraction.
CVec2<double> pointAt(const Edge2d& edge, double fraction);

/// The fraction of the edge's point nearest to a point; from the centre of an arc every fraction is as near.
double nearestFraction(const Edge2d& edge, const CVec2<double>& point);

} // namespace hrx::plan
