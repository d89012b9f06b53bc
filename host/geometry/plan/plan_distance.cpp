#include "geometry/plan/plan_distance.h"

#include "geometry/plan/arc_frame.h"
#include "geometry/plan/box_distance.h"

namespace hrx::plan {

namespace {

/// An edge with a box that surely holds it.
struct BoxedEdge {
    const Edge2d* edge;
    bool arc;
    CBox2d box;
};

CBox2d chordBox(const Edge2d& edge) {
    return {{std::min(edge.start.x, edge.end.x), std::min(edge.start.y, edge.end.y)},
            {std::max(edge.start.x, edge.end.x), std::max(edge.start.y, edge.end.y)}};
}

BoxedEdge boxed(const Edge2d& edge) {
    const bool arc = edge.isArc();
    return {&edge, arc, arc ? edge.looseBox() : chordBox(edge)};
}

struct BoxedRegion {
    explicit BoxedRegion(const CPolygon& region) {
        std::size_t count = 0;
        for (const CCoedgeList& loop : region.loops())
            count += loop.edges().size();
        edges.resize(count, boost::container::default_init);
        BoxedEdge* next = edges.data();
        CBox2d all; // a local one stays in registers
        for (const CCoedgeList& loop : region.loops())
            for (const Edge2d& edge : loop.edges()) {
                *next = boxed(edge);
                all.add((next++)->box);
            }
        box = all;
    }

    boost::container::small_vector<BoxedEdge, 8> edges;
    CBox2d box;
};

const CVec2<double>& cornerNearestTo(const CBox2d& box, const BoxedRegion& region) {
    const Edge2d* nearest = region.edges.front().edge;
    double least = std::numeric_limits<double>::infinity();
    // Selects, no branches: which corner it is cannot be predicted.
    for (const BoxedEdge& edge : region.edges) {
        const double squared = squaredDistance(edge.edge->start, box);
        nearest = squared < least ? edge.edge : nearest;
        least = squared < least ? squared : least;
    }
    return nearest->start;
}

/// The edges that come nearer to the box than a bound.
class NearEdges {
public:
    NearEdges(const BoxedRegion& region, const CBox2d& box, double squaredBound) {
        m_edges.resize(region.edges.size(), boost::container::default_init);
        const BoxedEdge** end = m_edges.data();
        for (const BoxedEdge& edge : region.edges) {
            *end = &edge;
            end += squaredDistance(edge.box, box) < squaredBound ? 1 : 0;
        }
        m_end = end;
    }

    const BoxedEdge* const* begin() const { return m_edges.data(); }
    const BoxedEdge* const* end() const { return m_end; }

private:
    boost::container::small_vector<const BoxedEdge*, 8> m_edges;
    const BoxedEdge* const* m_end;
};

/// From a point to a straight edge: what to take off the point to come to the nearest point of the edge.
CVec2<double> gapToSegment(const CVec2<double>& point, const Edge2d& segment) {
    const CVec2<double> along = segment.end - segment.start;
    const CVec2<double> arm = point - segment.start;
    const double size = dot(along, along);
    // 0 / 0, of an edge without length, may end as any number.
    const double t = std::min(1.0, positivePart(dot(arm, along) / size));
    return arm - along * t;
}

/// Two straight edges known not to cross come nearest at an end of one. Ends of edges are starts of others,
/// so the starts will do.
void nearestOfStarts(const Edge2d& a, const Edge2d& b, PlanContact& best) {
    const CVec2<double> gapA = gapToSegment(a.start, b);
    best.keepNearer(dot(gapA, gapA), a.start, a.start - gapA);
    const CVec2<double> gapB = gapToSegment(b.start, a);
    best.keepNearer(dot(gapB, gapB), b.start - gapB, b.start);
}

void nearestOfBoundaries(const BoxedRegion& a, const BoxedRegion& b, PlanContact& best) {
    // Two near corners, as a first bound.
    const CVec2<double> cornerA = cornerNearestTo(b.box, a);
    const CVec2<double> cornerB = cornerNearestTo(a.box, b);
    const CVec2<double> gap = cornerA - cornerB;
    best.keepNearer(dot(gap, gap), cornerA, cornerB);
    const NearEdges nearB(b, a.box, best.squared);
    for (const BoxedEdge* edgeA : NearEdges(a, b.box, best.squared)) {
        for (const BoxedEdge* edgeB : nearB) {
            const double bound = squaredDistance(edgeA->box, edgeB->box);
            if (bound >= best.squared)
                continue;
            if (edgeA->arc || edgeB->arc || bound == 0.0)
                nearestOfOutlineEdges(*edgeA->edge, *edgeB->edge, best);
            else
                nearestOfStarts(*edgeA->edge, *edgeB->edge, best);
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

} // namespace hrx::plan
