#pragma once

#include "geometry/Edge2d.h"

#include <limits>

namespace hrx::plan {

/// The nearest pair of points found so far between two plane figures.
struct PlanContact {
    double squared = std::numeric_limits<double>::infinity(); ///< square of their distance
    CVec2<double> onA;
    CVec2<double> onB;

    void keepNearer(double squaredDistance, const CVec2<double>& pointOnA, const CVec2<double>& pointOnB) {
        if (squaredDistance < squared) {
            squared = squaredDistance;
            onA = pointOnA;
            onB = pointOnB;
        }
    }
};

// Closed forms between points, lines and arcs. Each improves the contact when the two come nearer than it
// says. All differences are taken before anything else, so the error is that of the edges' own size (about
// 1e-16 of it), not of their place. Edges without length count as points.

void nearestOfPointAndEdge(const CVec2<double>& a, const Edge2d& b, PlanContact& best);
void nearestOfEdges(const Edge2d& a, const Edge2d& b, PlanContact& best);
/// The same without the end points, which are start points of the next edges where outlines are measured edge
/// by edge.
void nearestOfOutlineEdges(const Edge2d& a, const Edge2d& b, PlanContact& best);

} // namespace hrx::plan
