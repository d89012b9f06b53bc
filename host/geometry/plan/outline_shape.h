#pragma once

#include "geometry/CCoord3.h"
#include "geometry/CPolygon.h"

namespace hrx::plan {

/// True when the outline has an edge, and every coordinate, arcs included, is within the reach of measuring.
bool isWithinReach(const CPolygon& outline);

/// True when the outline is one loop that never turns back on itself: a convex region, flat ones included.
bool isConvex(const CPolygon& outline);

/// Start of the first edge; the origin without one.
CVec2<double> firstCorner(const CPolygon& outline);

/// The outline as it lies in the world's plan when its frame stands upright. The caller owns it.
CPolygon* movedToPlan(const CPolygon& outline, const CCoord3<double>& frame);

} // namespace hrx::plan
