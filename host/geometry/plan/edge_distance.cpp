#include "geometry/plan/edge_distance.h"

#include "geometry/plan/circle_meetings.h"

#include <algorithm>
#include <cmath>

namespace hrx::plan {

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
    const FrameLine line{frame.toLocal(segment.start), frame.directionToLocal(chord * (1.0 / size))};
    const auto consider = [&](double t) {
        const CVec2<double> local = line.at(t);
        if (t > 0.0 && t < size && frame.facesArc(local))
            pointToFacingArc(side, local, frame, best);
    };
    const LineOnCircle onCircle(line, frame);
    consider(onCircle.nearest);
    for (int i = 0; i < onCircle.meetingCount; ++i)
        consider(onCircle.meetings[i]);
}

/// `a` has the smaller circle; `side` is its side.
void arcToArc(Side side, const Edge2d& a, const Edge2d& b, Ends ends, PlanContact& best) {
    const ArcFrame frameA(a);
    const ArcFrame frameB(b);
    const Side otherSide = side == Side::A ? Side::B : Side::A;
    pointToArc(side, a.start, b, frameB, ends, best);
    pointToArc(otherSide, b.start, a, frameA, ends, best);
    if (ends == Ends::Both) {
        pointToArc(side, a.end, b, frameB, ends, best);
        pointToArc(otherSide, b.end, a, frameA, ends, best);
    }

    const CirclePair circles(frameA, frameB);
    if (circles.concentric)
        return; // nearest at an end
    const auto consider = [&](const CVec2<double>& localToA) {
        if (!frameA.facesArc(localToA))
            return;
        const CVec2<double> localToB = frameB.toLocal(frameA.toWorld(localToA));
        if (frameB.facesArc(localToB))
            pointToFacingArc(side, localToB, frameB, best);
    };
    consider(frameA.pointInDirection(circles.towardsSecond));
    consider(frameA.pointInDirection(circles.towardsSecond * -1.0));
    const LineOnCircle shared(circles.radicalLine, frameA);
    for (int i = 0; i < shared.meetingCount; ++i)
        consider(circles.radicalLine.at(shared.meetings[i]));
}

void nearest(const Edge2d& a, const Edge2d& b, Ends ends, PlanContact& best) {
    const bool arcA = a.isArc();
    const bool arcB = b.isArc();
    if (arcA && arcB)
        a.radius() <= b.radius() ? arcToArc(Side::A, a, b, ends, best) : arcToArc(Side::B, b, a, ends, best);
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

} // namespace hrx::plan
