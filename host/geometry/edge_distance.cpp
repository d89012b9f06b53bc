#include "geometry/edge_distance.h"

#include "geometry/arc_frame.h"

#include <algorithm>
#include <cmath>

namespace hrx {

namespace {

/// Which argument of the contact a point belongs to.
enum class Side { A, B };

void keepNearer(Side side, double squared, const CVec2<double>& point, const CVec2<double>& other,
                PlanContact& best) {
    if (side == Side::A)
        best.keepNearer(squared, point, other);
    else
        best.keepNearer(squared, other, point);
}

void pointToSegment(Side side, const CVec2<double>& point, const Edge2d& segment, PlanContact& best) {
    const CVec2<double> along = segment.end - segment.start;
    const CVec2<double> arm = point - segment.start;
    const double size = dot(along, along);
    const double t = size > 0.0 ? std::clamp(dot(arm, along) / size, 0.0, 1.0) : 0.0;
    // From the nearer end, so that an end's distance is exact.
    const CVec2<double> gap = t < 1.0 ? arm - along * t : point - segment.end;
    keepNearer(side, dot(gap, gap), point, point - gap, best);
}

void pointToPoint(Side side, const CVec2<double>& point, const CVec2<double>& other, PlanContact& best) {
    const CVec2<double> gap = point - other;
    keepNearer(side, dot(gap, gap), point, other, best);
}

/// The point on an arc's circle nearest to a point that faces the arc.
void pointToFacingArc(Side side, const CVec2<double>& local, const ArcFrame& frame, PlanContact& best) {
    const double gap = frame.signedGap(local);
    if (gap * gap < best.squared)
        keepNearer(side, gap * gap, frame.toWorld(local), frame.toWorld(frame.footOf(local)), best);
}

/// Which ends of the edges count.
enum class Ends { Both, Starts };

void pointToArc(Side side, const CVec2<double>& point, const Edge2d& arc, const ArcFrame& frame, Ends ends,
                PlanContact& best) {
    const CVec2<double> local = frame.toLocal(point);
    if (frame.facesArc(local)) {
        pointToFacingArc(side, local, frame, best);
        return;
    }
    pointToPoint(side, point, arc.start, best);
    if (ends == Ends::Both)
        pointToPoint(side, point, arc.end, best);
}

void segmentToSegment(const Edge2d& a, const Edge2d& b, Ends ends, PlanContact& best) {
    const CVec2<double> alongA = a.end - a.start;
    const CVec2<double> alongB = b.end - b.start;
    const CVec2<double> between = b.start - a.start;
    const double startOfB = cross(alongA, between);
    const double endOfB = cross(alongA, b.end - a.start);
    const double startOfA = -cross(alongB, between);
    const double endOfA = cross(alongB, a.end - b.start);
    if (startOfB * endOfB < 0.0 && startOfA * endOfA < 0.0) {
        const CVec2<double> crossing = a.start + alongA * (startOfA / (startOfA - endOfA));
        best.keepNearer(0.0, crossing, crossing);
        return;
    }
    pointToSegment(Side::A, a.start, b, best);
    pointToSegment(Side::B, b.start, a, best);
    if (ends == Ends::Starts)
        return;
    pointToSegment(Side::A, a.end, b, best);
    pointToSegment(Side::B, b.end, a, best);
}

/// Points of a line through the frame, start + t * direction (unit), in pairs: where it meets the circle, and
/// where it comes nearest to or lies deepest inside it.
struct LineOnCircle {
    LineOnCircle(const CVec2<double>& start, const CVec2<double>& direction, const ArcFrame& frame) {
        const double half = frame.curvature * dot(start, direction) - direction.y;
        const double value = frame.equation(start);
        const double discriminant = half * half - frame.curvature * value;
        parameters[count++] = -half / frame.curvature;
        if (!(discriminant >= 0.0))
            return;
        const double root = -(half + std::copysign(std::sqrt(discriminant), half));
        parameters[count++] = root / frame.curvature;
        if (root != 0.0)
            parameters[count++] = value / root;
    }

    double parameters[3];
    int count = 0;
};

void segmentToArc(Side side, const Edge2d& segment, const Edge2d& arc, Ends ends, PlanContact& best) {
    const ArcFrame frame(arc);
    const Side arcSide = side == Side::A ? Side::B : Side::A;
    pointToArc(side, segment.start, arc, frame, ends, best);
    pointToSegment(arcSide, arc.start, segment, best);
    if (ends == Ends::Both) {
        pointToArc(side, segment.end, arc, frame, ends, best);
        pointToSegment(arcSide, arc.end, segment, best);
    }

    const CVec2<double> chord = segment.end - segment.start;
    const double size = length(chord);
    if (!(size > 0.0))
        return;
    const CVec2<double> start = frame.toLocal(segment.start);
    const CVec2<double> direction = frame.directionToLocal(chord * (1.0 / size));
    const LineOnCircle line(start, direction, frame);
    for (int i = 0; i < line.count; ++i) {
        const double t = line.parameters[i];
        const CVec2<double> local = start + direction * t;
        if (t > 0.0 && t < size && frame.facesArc(local))
            pointToFacingArc(side, local, frame, best);
    }
}

void arcToArc(const Edge2d& a, const Edge2d& b, Ends ends, PlanContact& best) {
    const ArcFrame frameA(a);
    const ArcFrame frameB(b);
    pointToArc(Side::A, a.start, b, frameB, ends, best);
    pointToArc(Side::B, b.start, a, frameA, ends, best);
    if (ends == Ends::Both) {
        pointToArc(Side::A, a.end, b, frameB, ends, best);
        pointToArc(Side::B, b.end, a, frameA, ends, best);
    }

    const auto consider = [&](const CVec2<double>& localToA) {
        if (!frameA.facesArc(localToA))
            return;
        const CVec2<double> localToB = frameB.toLocal(frameA.toWorld(localToA));
        if (frameB.facesArc(localToB))
            pointToFacingArc(Side::A, localToB, frameB, best);
    };
    // The line of centres, times both curvatures; concentric arcs have none and are nearest at an end.
    const CVec2<double> apexB = frameA.toLocal(b.middle());
    const CVec2<double> inwardB = frameA.directionToLocal(frameB.inward);
    const CVec2<double> across = apexB * (frameA.curvature * frameB.curvature) + inwardB * frameA.curvature -
                                 CVec2<double>(0.0, frameB.curvature);
    const double size = length(across);
    if (!(size > 0.0))
        return;
    const CVec2<double> towardsB = across * (1.0 / size);
    consider(frameA.pointInDirection(towardsB));
    consider(frameA.pointInDirection(towardsB * -1.0));

    // The circles meet on their radical line.
    const double offset =
        0.5 * frameA.curvature * (frameB.curvature * dot(apexB, apexB) + 2.0 * dot(apexB, inwardB)) / size;
    const CVec2<double> start = towardsB * offset;
    const CVec2<double> direction = leftNormal(towardsB);
    const LineOnCircle line(start, direction, frameA);
    for (int i = 1; i < line.count; ++i)
        consider(start + direction * line.parameters[i]);
}

void nearest(const Edge2d& a, const Edge2d& b, Ends ends, PlanContact& best) {
    const bool arcA = a.isArc();
    const bool arcB = b.isArc();
    if (arcA && arcB)
        arcToArc(a, b, ends, best);
    else if (arcA)
        segmentToArc(Side::B, b, a, ends, best);
    else if (arcB)
        segmentToArc(Side::A, a, b, ends, best);
    else
        segmentToSegment(a, b, ends, best);
}

} // namespace

void nearestOfPointAndEdge(const CVec2<double>& a, const Edge2d& b, PlanContact& best) {
    if (b.isArc())
        pointToArc(Side::A, a, b, ArcFrame(b), Ends::Both, best);
    else
        pointToSegment(Side::A, a, b, best);
}

void nearestOfEdges(const Edge2d& a, const Edge2d& b, PlanContact& best) {
    nearest(a, b, Ends::Both, best);
}

void nearestOfOutlineEdges(const Edge2d& a, const Edge2d& b, PlanContact& best) {
    nearest(a, b, Ends::Starts, best);
}

} // namespace hrx
