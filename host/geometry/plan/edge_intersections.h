#pragma once

#include "geometry/Edge2d.h"

#include <vector>

namespace hrx::plan {

/// A point that two edges share.
struct EdgeIntersection {
    CVec2<double> point;
    double onFirst;  ///< fraction of the first edge's length, 0 at its start
    double onSecond; ///< fraction of the second edge's length
};

/// The points that two edges (line or arc) share: where they cross, where
/// they touch tangentially, and every end of the one that lies on the other. Edges that run along each other
/// share the ends of their common stretch. Points no further from both edges than `g_touchDistance` count as
/// shared, so touching edges meet whatever way the drawing is turned; points closer than that to each other
/// are reported once.
std::vector<EdgeIntersection> edgeIntersections(const Edge2d& first, const Edge2d& second);

/// Half of the 1e-5 mm to which distances are reported: what is nearer than this measures 0.
constexpr double g_touchDistance = 5e-6;

} // namespace hrx::plan
