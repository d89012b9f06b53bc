#include "geometry/plan/edge_crossing.h"

#include "geometry/plan/edge_intersections.h"

#include <algorithm>
#include <cmath>

namespace hrx::plan {

namespace {

CVec2<double> directionAt(const Edge2d& edge, double fraction) {
    const CVec2<double> start = edge.startDirection();
    const double turned = edge.isArc() ? fraction * edge.sweep() : 0.0;
    return start * std::cos(turned) + leftNormal(start) * std::sin(turned);
}

double signedCurvature(const Edge2d& edge) {
    return edge.isArc() ? std::copysign(1.0 / edge.radius(), edge.bulge) : 0.0;
}

/// How far the edges get to the other side of each other at a common point, at most: as far as they run on
/// beyond it at their angle, or until their curvature brings them back.
double crossingDepth(const Edge2d& first, const Edge2d& second, const EdgeIntersection& common) {
    const CVec2<double> direction = directionAt(first, common.onFirst);
    const CVec2<double> other = directionAt(second, common.onSecond);
    const double angle = std::abs(cross(direction, other));
    const double sameWay = dot(direction, other) < 0.0 ? -1.0 : 1.0;
    const double bend = std::abs(signedCurvature(first) - sameWay * signedCurvature(second));
    double reach = std::min({length(common.point - first.start), length(common.point - first.end),
                             length(common.point - second.start), length(common.point - second.end)});
    if (2.0 * reach * bend > angle)
        reach = angle / (2.0 * bend);
    return angle * reach;
}

/// True when the ends of an edge lie to both sides of a straight one's line, each further than touching.
bool endsOnBothSides(const Edge2d& straight, const Edge2d& edge) {
    const CVec2<double> along = straight.end - straight.start;
    const double ofStart = cross(along, edge.start - straight.start);
    const double ofEnd = cross(along, edge.end - straight.start);
    return (ofStart < 0.0) != (ofEnd < 0.0) &&
           std::min(std::abs(ofStart), std::abs(ofEnd)) > g_touchDistance * length(along);
}

} // namespace

bool edgesCross(const Edge2d& first, const Edge2d& second) {
    if (!first.isArc() && !second.isArc())
        return endsOnBothSides(first, second) && endsOnBothSides(second, first);
    const auto common = edgeIntersections(first, second);
    return std::any_of(common.begin(), common.end(), [&](const EdgeIntersection& point) {
        return crossingDepth(first, second, point) > g_touchDistance;
    });
}

} // namespace hrx::plan
