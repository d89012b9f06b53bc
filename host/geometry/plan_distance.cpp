#include "geometry/plan_distance.h"

#include "geometry/arc_frame.h"

namespace hrx {

namespace {

/// An edge with a box that surely holds it.
struct BoxedEdge {
    explicit BoxedEdge(const Edge2d& outlineEdge) : edge(&outlineEdge), arc(outlineEdge.isArc()) {
        if (arc) {
            box = outlineEdge.looseBox();
            return;
        }
        box.low = {std::min(outlineEdge.start.x, outlineEdge.end.x),
                   std::min(outlineEdge.start.y, outlineEdge.end.y)};
        box.high = {std::max(outlineEdge.start.x, outlineEdge.end.x),
                    std::max(outlineEdge.start.y, outlineEdge.end.y)};
    }

    const Edge2d* edge;
    bool arc;
    CBox2d box;
};

struct BoxedRegion {
    explicit BoxedRegion(const CPolygon& region) {
        for (const CCoedgeList& loop : region.loops())
            for (const Edge2d& edge : loop.edges()) {
                edges.emplace_back(edge);
                box.add(edges.back().box);
            }
    }

    boost::container::small_vector<BoxedEdge, 8> edges;
    CBox2d box;
};

void nearestOfBoundaries(const BoxedRegion& a, const BoxedRegion& b, PlanContact& best) {
    for (const BoxedEdge& edgeA : a.edges) {
        if (squaredDistance(edgeA.box, b.box) >= best.squared)
            continue;
        for (const BoxedEdge& edgeB : b.edges) {
            if (squaredDistance(edgeA.box, edgeB.box) >= best.squared)
                continue;
            if (edgeA.arc || edgeB.arc)
                nearestOfEdges(*edgeA.edge, *edgeB.edge, best);
            else
                nearestOfSegments(*edgeA.edge, *edgeB.edge, best);
        }
    }
}

/// A point of a loop of one region that is inside the other; null when there is none. Every loop has to be
/// asked: regions may lie in each other's holes.
const CVec2<double>* loopInside(const CPolygon& region, const CPolygon& other) {
    for (const CCoedgeList& loop : region.loops())
        if (!loop.edges().empty() && contains(other, loop.edges().front().start))
            return &loop.edges().front().start;
    return nullptr;
}

bool isInsideCircle(const Edge2d& arc, const CVec2<double>& point) {
    const ArcFrame frame(arc);
    return frame.equation(frame.toLocal(point)) < 0.0;
}

} // namespace

bool contains(const CPolygon& region, const CVec2<double>& point) {
    bool inside = false;
    for (const CCoedgeList& loop : region.loops())
        for (const Edge2d& edge : loop.edges()) {
            const bool upwards = edge.start.y <= point.y;
            if (upwards != (edge.end.y <= point.y) && isLeftOf(edge, point) == upwards)
                inside = !inside;
            // What an arc adds to, or takes off, the figure of the chords.
            if (edge.isArc() && isLeftOf(edge, point) != (edge.bulge > 0.0) && isInsideCircle(edge, point))
                inside = !inside;
        }
    return inside;
}

PlanContact planContact(const CPolygon& a, const CPolygon& b) {
    const BoxedRegion boxedA(a);
    const BoxedRegion boxedB(b);
    PlanContact best;
    nearestOfBoundaries(boxedA, boxedB, best);
    if (best.squared == 0.0 || squaredDistance(boxedA.box, boxedB.box) > 0.0)
        return best;
    const CVec2<double>* shared = loopInside(a, b);
    if (!shared)
        shared = loopInside(b, a);
    if (shared)
        best.keepNearer(0.0, *shared, *shared);
    return best;
}

PlanContact planContact(const CVec2<double>& a, const CPolygon& b) {
    PlanContact best;
    if (contains(b, a)) {
        best.keepNearer(0.0, a, a);
        return best;
    }
    for (const CCoedgeList& loop : b.loops())
        for (const Edge2d& edge : loop.edges())
            nearestOfPointAndEdge(a, edge, best);
    return best;
}

} // namespace hrx
