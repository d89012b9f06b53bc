#include "geometry/edge_intersections.h"

#include "geometry/edge_fractions.h"

#include <algorithm>
#include <cmath>

namespace hrx {

namespace {

/// Collects candidate points and keeps those that lie on both edges.
class SharedPoints {
public:
    SharedPoints(const Edge2d& first, const Edge2d& second) : m_first(first), m_second(second) {}

    void add(const CVec2<double>& candidate) {
        const double onFirst = nearestFraction(m_first, candidate);
        const CVec2<double> point = pointAt(m_first, onFirst);
        const double onSecond = nearestFraction(m_second, candidate);
        if (!(length(point - candidate) <= g_touchDistance) ||
            !(length(pointAt(m_second, onSecond) - candidate) <= g_touchDistance))
            return;
        const bool known = std::any_of(m_points.begin(), m_points.end(), [&](const EdgeIntersection& other) {
            return length(other.point - point) <= g_touchDistance;
        });
        if (!known)
            m_points.push_back({point, onFirst, onSecond});
    }

    std::vector<EdgeIntersection> take() { return std::move(m_points); }

private:
    const Edge2d& m_first;
    const Edge2d& m_second;
    std::vector<EdgeIntersection> m_points;
};

void addLineWithLine(const Edge2d& first, const Edge2d& second, SharedPoints& shared) {
    const CVec2<double> along = first.end - first.start;
    const CVec2<double> other = second.end - second.start;
    const CVec2<double> between = second.start - first.start;
    const double denominator = cross(along, other);
    const double noise = g_touchDistance * length(along);
    const bool onOneLine =
        std::abs(cross(along, between)) <= noise && std::abs(cross(along, second.end - first.start)) <= noise;
    if (denominator == 0.0 || onOneLine)
        return;
    const double fraction = cross(between, other) / denominator;
    if (fraction >= 0.0 && fraction <= 1.0)
        shared.add(pointAt(first, fraction));
}

void addLineWithArc(const Edge2d& line, const Edge2d& arc, SharedPoints& shared) {
    const CVec2<double> chord = line.end - line.start;
    const double chordLength = length(chord);
    if (!(chordLength > 0.0))
        return;
    const CVec2<double> direction = chord * (1.0 / chordLength);
    const CVec2<double> centre = arc.centre();
    const CVec2<double> toCentre = centre - line.start;
    const CVec2<double> foot = line.start + direction * dot(toCentre, direction);
    const double height = std::abs(cross(direction, toCentre));
    const double radius = arc.radius();
    if (height > radius + g_touchDistance)
        return;
    const double half = std::sqrt(std::max(0.0, (radius - height) * (radius + height)));
    shared.add(foot + direction * half);
    shared.add(foot - direction * half);
}

void addArcWithArc(const Edge2d& first, const Edge2d& second, SharedPoints& shared) {
    const CVec2<double> centre = first.centre();
    const CVec2<double> between = second.centre() - centre;
    const double distance = length(between);
    const double radius = first.radius();
    const double otherRadius = second.radius();
    const bool onOneCircle = distance <= g_touchDistance && std::abs(radius - otherRadius) <= g_touchDistance;
    if (distance == 0.0 || onOneCircle)
        return;
    const double along = (distance + (radius - otherRadius) * ((radius + otherRadius) / distance)) / 2.0;
    const double half = std::sqrt(std::max(0.0, (radius - along) * (radius + along)));
    const CVec2<double> direction = between * (1.0 / distance);
    const CVec2<double> foot = centre + direction * along;
    const CVec2<double> across = leftNormal(direction) * half;
    shared.add(foot + across);
    shared.add(foot - across);
}

} // namespace

std::vector<EdgeIntersection> edgeIntersections(const Edge2d& first, const Edge2d& second) {
    if (squaredDistance(first.box(), second.box()) > g_touchDistance * g_touchDistance)
        return {};
    SharedPoints shared(first, second);
    for (const CVec2<double>& end : {first.start, first.end, second.start, second.end})
        shared.add(end);
    if (first.isArc() && second.isArc())
        addArcWithArc(first, second, shared);
    else if (first.isArc())
        addLineWithArc(second, first, shared);
    else if (second.isArc())
        addLineWithArc(first, second, shared);
    else
        addLineWithLine(first, second, shared);
    return shared.take();
}

} // namespace hrx
