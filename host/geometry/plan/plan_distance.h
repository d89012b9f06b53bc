#pragma once

#include "geometry/CPolygon.h"
#include "geometry/plan/edge_distance.h"

namespace hrx::plan {

/// True when the point is inside the region, arcs counted exactly. Points of the boundary can go either way.
bool contains(const CPolygon& region, const CVec2<double>& point);

/// Nearest points of two regions: 0 when they touch or overlap, containment included; a hole is outside. Both
/// must be measurable.
PlanContact planContact(const CPolygon& a, const CPolygon& b);
PlanContact planContact(const CVec2<double>& a, const CPolygon& b);

} // namespace hrx::plan
