#include "geometry/CArc2d.h"

#include "geometry/DistEpsilon.h"
#include "geometry/plan/half_turn.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hrx {

namespace {

double magnitude(const CVec2<double>& point) {
    const double largest = std::max(std::abs(point.x), std::abs(point.y));
    return std::isnan(point.x) || std::isnan(point.y) ? std::numeric_limits<double>::infinity() : largest;
}

CVec2<double> pointOnCircle(const CVec2<double>& centre, double radius, double angle) {
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

std::vector<Edge2d> arcInEdges(const CVec2<double>& start, const CVec2<double>& middle,
                               const CVec2<double>& end, double sweep) {
    if (std::abs(sweep) <= plan::kHalfTurn)
        return {Edge2d{start, end, std::tan(sweep / 4.0)}};
    const double bulge = std::tan(sweep / 8.0);
    return {Edge2d{start, middle, bulge}, Edge2d{middle, end, bulge}};
}

} // namespace

CArc2d::CArc2d(const CVec2<double>& start, const CVec2<double>& end, const CVec2<double>& through) {
    const double largest = std::max({magnitude(start), magnitude(end), magnitude(through)});
    if (!(largest <= g_curveCoordinateLimit))
        return;
    const CVec2<double> toStart{start.x - through.x, start.y - through.y};
    const CVec2<double> toEnd{end.x - through.x, end.y - through.y};
    const CVec2<double> chord{end.x - start.x, end.y - start.y};
    const double cross = toStart.x * toEnd.y - toStart.y * toEnd.x;
    const double longestSide = std::max(
        {std::hypot(toStart.x, toStart.y), std::hypot(toEnd.x, toEnd.y), std::hypot(chord.x, chord.y)});
    const double resolution = std::max(g_DistEpsilon, 4.0 * std::numeric_limits<double>::epsilon() * largest);
    if (std::abs(cross) <= resolution * longestSide)
        return;

    // The angle at the third point is inscribed: it spans the rest of the circle.
    const double inscribed = std::atan2(cross, toStart.x * toEnd.x + toStart.y * toEnd.y);
    const double sweep = std::copysign(2.0 * plan::kHalfTurn - 2.0 * std::abs(inscribed), -inscribed);
    const double bulge = 1.0 / std::tan(-inscribed / 2.0);
    const CVec2<double> middle{(start.x + end.x + bulge * chord.y) / 2.0,
                               (start.y + end.y - bulge * chord.x) / 2.0};
    m_edges = arcInEdges(start, middle, end, sweep);
}

CArc2d::CArc2d(const CVec2<double>& centre, double radius, double fromAngle, double toAngle) {
    const double sweep = std::clamp(toAngle - fromAngle, -2.0 * plan::kHalfTurn, 2.0 * plan::kHalfTurn);
    if (!(magnitude(centre) + std::abs(radius) <= g_curveCoordinateLimit) || !std::isfinite(fromAngle) ||
        !std::isfinite(toAngle) || !(radius * std::abs(sweep) > g_DistEpsilon))
        return;
    const CVec2<double> start = pointOnCircle(centre, radius, fromAngle);
    const bool fullCircle = std::abs(sweep) == 2.0 * plan::kHalfTurn;
    const CVec2<double> end = fullCircle ? start : pointOnCircle(centre, radius, fromAngle + sweep);
    m_edges = arcInEdges(start, pointOnCircle(centre, radius, fromAngle + sweep / 2.0), end, sweep);
}

} // namespace hrx
