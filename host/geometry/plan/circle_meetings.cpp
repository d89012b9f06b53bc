#include "geometry/plan/circle_meetings.h"

#include <cmath>

namespace hrx::plan {

LineOnCircle::LineOnCircle(const FrameLine& line, const ArcFrame& frame) {
    const double half = frame.curvature * dot(line.start, line.direction) - line.direction.y;
    const double value = frame.equation(line.start);
    const double discriminant = half * half - frame.curvature * value;
    nearest = -half / frame.curvature;
    if (!(discriminant >= 0.0))
        return;
    const double root = -(half + std::copysign(std::sqrt(discriminant), half));
    meetings[meetingCount++] = root / frame.curvature;
    if (root != 0.0)
        meetings[meetingCount++] = value / root;
}

CirclePair::CirclePair(const ArcFrame& first, const ArcFrame& second) {
    // The line of centres, times both curvatures.
    const CVec2<double> apex = first.toLocal(second.apex);
    const CVec2<double> inward = first.directionToLocal(second.inward);
    const CVec2<double> across = apex * (first.curvature * second.curvature) + inward * first.curvature -
                                 CVec2<double>(0.0, second.curvature);
    const double size = length(across);
    concentric = !(size > 0.0);
    if (concentric)
        return;
    towardsSecond = across * (1.0 / size);
    const double offset =
        0.5 * first.curvature * (second.curvature * dot(apex, apex) + 2.0 * dot(apex, inward)) / size;
    radicalLine = {towardsSecond * offset, leftNormal(towardsSecond)};
}

} // namespace hrx::plan
