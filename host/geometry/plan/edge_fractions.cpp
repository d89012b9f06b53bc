#include "geometry/plan/edge_fractions.h"

#include "geometry/plan/arc_frame.h"

#include <algorithm>
#include <cmath>

namespace hrx::plan {

namespace {

double nearestFractionOfLine(const Edge2d& edge, const CVec2<double>& point) {
    const CVec2<double> chord = edge.end - edge.start;
    const double squaredLength = dot(chord, chord);
    if (!(squaredLength > 0.0))
        return 0.0;
    return std::clamp(dot(point - edge.start, chord) / squaredLength, 0.0, 1.0);
}

} // namespace

CVec2<double> pointAt(const Edge2d& edge, double fraction) {
    if (fraction == 0.0)
        return edge.start;
    if (fraction == 1.0)
        return edge.end;
    const CVec2<double> chord = edge.end - edge.start;
    if (!edge.isArc())
        return edge.start + chord * fraction;
    const double halfSweep = edge.sweep() / 2.0;
    const double scale = std::sin(fraction * halfSweep) / std::sin(halfSweep);
    const double turn = (fraction - 1.0) * halfSweep;
    const double along = scale * std::cos(turn);
    const double across = scale * std::sin(turn);
    return edge.start + chord * along + leftNormal(chord) * across;
}

double nearestFraction(const Edge2d& edge, const CVec2<double>& point) {
    if (!edge.isArc())
        return nearestFractionOfLine(edge, point);
    const ArcFrame frame(edge);
    const CVec2<double> local = frame.toLocal(point);
    const double sweep = std::abs(edge.sweep());
    const double fromApex = std::atan2(frame.curvature * local.x, 1.0 - frame.curvature * local.y);
    if (std::abs(fromApex) <= 0.5 * sweep)
        return std::clamp(0.5 + fromApex / sweep, 0.0, 1.0);
    return length(point - edge.start) <= length(point - edge.end) ? 0.0 : 1.0;
}

} // namespace hrx::plan
