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
        CBox2d all; // a local one stays in registers
        for (const CCoedgeList& loop : region.loops()) {
            edges.reserve(edges.size() + loop.edges().size());
            for (const Edge2d& edge : loop.edges())
                all.add(edges.emplace_back(edge).box);
        }
        box = all;
    }

    boost::container::small_vector<BoxedEdge, 8> edges;
    CBox2d box;
};

double squaredDistance(const CVec2<double>& point, const CBox2d& box) {
    const double dx = std::max(0.0, std::max(box.low.x - point.x, point.x - box.high.x));
    const double dy = std::max(0.0, std::max(box.low.y - point.y, point.y - box.high.y));
    return dx * dx + dy * dy;
}

CVec2<double> cornerNearestTo(const CBox2d& box, const BoxedRegion& region) {
    CVec2<double> corner;
    double least = std::numeric_limits<double>::infinity();
    for (const BoxedEdge& edge : region.edges) {
        const double squared = squaredDistance(edge.edge->start, box);
        if (squared < least) {
            least = squared;
            corner = edge.edge->start;
        }
    }
    return corner;
}

/// From a point to a straight edge: what to take off the point to come to the nearest point of the edge.
CVec2<double> gapToSegment(const CVec2<double>& point, const Edge2d& segment) {
    const CVec2<double> along = segment.end - segment.start;
    const CVec2<double> arm = point - segment.start;
    const double size = dot(along, along);
    // Without branches: which case it is cannot be predicted. 0 / 0 ends as 0.
    const double t = std::min(1.0, std::max(0.0, dot(arm, along) / size));
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
    for (const BoxedEdge& edgeA : a.edges) {
        if (squaredDistance(edgeA.box, b.box) >= best.squared)
            continue;
        for (const BoxedEdge& edgeB : b.edges) {
            const double bound = squaredDistance(edgeA.box, edgeB.box);
            if (bound >= best.squared)
                continue;
            if (edgeA.arc || edgeB.arc || bound == 0.0)
                nearestOfEdges(*edgeA.edge, *edgeB.edge, best);
            else
                nearestOfStarts(*edgeA.edge, *edgeB.edge, best);
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
