#include "geometry/plan/edge_intersections.h"

#include "geometry/plan/box_distance.h"
#include "geometry/plan/circle_meetings.h"
#include "geometry/plan/edge_fractions.h"

#include <algorithm>
#include <cmath>

namespace hrx::plan {

namespace {

/// Collects candidate points and keeps those that lie on both edges.
class SharedPoints {
public:
    SharedPoints(const Edge2d& first, const Edge2d& second) : m_first(first), m_second(second) {}

    void add(const CVec2<double>& candidate) {
        const double onFirst = nearestFraction(m_first, candidate);
        if (isInStretch(onFirst))
            return;
        const CVec2<double> point = pointAt(m_first, onFirst);
        if (!(length(point - candidate) <= g_touchDistance) || !isOnSecond(candidate))
            return;
        const bool known = std::any_of(m_points.begin(), m_points.end(), [&](const EdgeIntersection& other) {
            return length(other.point - point) <= g_touchDistance;
        });
        if (!known)
            m_points.push_back({point, onFirst, nearestFraction(m_second, candidate)});
    }

    /// Between which of the points so far the edges run along each other; points added later do not lie
    /// there.
    void findStretches() {
        std::sort(m_points.begin(), m_points.end(),
                  [](const EdgeIntersection& a, const EdgeIntersection& b) { return a.onFirst < b.onFirst; });
        for (std::size_t i = 1; i < m_points.size(); ++i) {
            const Stretch stretch{m_points[i - 1].onFirst, m_points[i].onFirst};
            if (isOnSecond(pointAt(m_first, 0.5 * (stretch.from + stretch.to))))
                m_stretches.push_back(stretch);
        }
    }

    std::vector<EdgeIntersection> take() { return std::move(m_points); }

private:
    /// Fractions of the first edge.
    struct Stretch {
        double from;
        double to;
    };

    bool isInStretch(double onFirst) const {
        return std::any_of(m_stretches.begin(), m_stretches.end(), [&](const Stretch& stretch) {
            return stretch.from <= onFirst && onFirst <= stretch.to;
        });
    }

    bool isOnSecond(const CVec2<double>& point) const {
        return length(pointAt(m_second, nearestFraction(m_second, point)) - point) <= g_touchDistance;
    }

    const Edge2d& m_first;
    const Edge2d& m_second;
    std::vector<EdgeIntersection> m_points;
    std::vector<Stretch> m_stretches;
};

void addLineWithLine(const Edge2d& first, const Edge2d& second, SharedPoints& shared) {
    const CVec2<double> along = first.end - first.start;
    const CVec2<double> other = second.end - second.start;
    const CVec2<double> between = second.start - first.start;
    const double denominator = cross(along, other);
    if (denominator == 0.0)
        return;
    const double fraction = cross(between, other) / denominator;
    if (fraction >= 0.0 && fraction <= 1.0)
        shared.add(pointAt(first, fraction));
}

void addMeetings(const FrameLine& line, const ArcFrame& frame, SharedPoints& shared) {
    const LineOnCircle onCircle(line, frame);
    if (onCircle.meetingCount == 0)
        shared.add(frame.toWorld(line.at(onCircle.nearest)));
    for (int i = 0; i < onCircle.meetingCount; ++i)
        shared.add(frame.toWorld(line.at(onCircle.meetings[i])));
}

void addLineWithArc(const Edge2d& line, const Edge2d& arc, SharedPoints& shared) {
    const CVec2<double> chord = line.end - line.start;
    const double chordLength = length(chord);
    if (!(chordLength > 0.0))
        return;
    const ArcFrame frame(arc);
    addMeetings({frame.toLocal(line.start), frame.directionToLocal(chord * (1.0 / chordLength))}, frame,
                shared);
}

void addArcWithArc(const Edge2d& smaller, const Edge2d& larger, SharedPoints& shared) {
    const ArcFrame frame(smaller);
    const CirclePair circles(frame, ArcFrame(larger));
    if (!circles.concentric)
        addMeetings(circles.radicalLine, frame, shared);
}

} // namespace

std::vector<EdgeIntersection> edgeIntersections(const Edge2d& first, const Edge2d& second) {
    if (squaredDistance(first.looseBox(), second.looseBox()) > g_touchDistance * g_touchDistance)
        return {};
    SharedPoints shared(first, second);
    for (const CVec2<double>& end : {first.start, first.end, second.start, second.end})
        shared.add(end);
    shared.findStretches();
    if (first.isArc() && second.isArc())
        first.radius() <= second.radius() ? addArcWithArc(first, second, shared)
                                          : addArcWithArc(second, first, shared);
    else if (first.isArc())
        addLineWithArc(second, first, shared);
    else if (second.isArc())
        addLineWithArc(first, second, shared);
    else
        addLineWithLine(first, second, shared);
    return shared.take();
}

} // namespace hrx::plan
