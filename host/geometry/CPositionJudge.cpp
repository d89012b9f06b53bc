#include "geometry/CPositionJudge.h"

#include "geometry/plan/box_distance.h"
#include "geometry/plan/edge_intersections.h"
#include "geometry/plan/plan_distance.h"

#include <algorithm>
#include <vector>

namespace hrx {

namespace {

constexpr double kSquaredTouch = plan::g_touchDistance * plan::g_touchDistance;

/// Edges with the boxes around each and around all.
class Boundary {
public:
    explicit Boundary(const CPolygon& polygon) {
        for (const CCoedgeList& loop : polygon.loops()) {
            for (const Edge2d& edge : loop.edges())
                add(edge);
        }
    }
    explicit Boundary(const std::vector<Edge2d>& edges) {
        for (const Edge2d& edge : edges)
            add(edge);
    }

    bool isEmpty() const { return m_edges.empty(); }

    bool sharesPointWith(const Boundary& other) const {
        return std::any_of(m_edges.begin(), m_edges.end(), [&](const BoxedEdge& edge) {
            return plan::squaredDistance(edge.box, other.m_box) < kSquaredTouch &&
                   other.sharesPointWith(edge);
        });
    }

private:
    struct BoxedEdge {
        Edge2d edge;
        CBox2d box;
    };

    void add(const Edge2d& edge) {
        m_edges.push_back({edge, edge.box()});
        m_box.add(m_edges.back().box);
    }

    bool sharesPointWith(const BoxedEdge& edge) const {
        plan::PlanContact contact;
        contact.squared = kSquaredTouch;
        for (const BoxedEdge& own : m_edges) {
            if (plan::squaredDistance(own.box, edge.box) >= kSquaredTouch)
                continue;
            plan::nearestOfEdges(own.edge, edge.edge, contact);
            if (contact.squared < kSquaredTouch)
                return true;
        }
        return false;
    }

    boost::container::small_vector<BoxedEdge, 8> m_edges;
    CBox2d m_box;
};

/// For polygons whose boundaries share no point: one point of a loop speaks for all of it.
bool isInside(const CPolygon& polygon, const CPolygon& region) {
    return std::all_of(polygon.loops().begin(), polygon.loops().end(), [&](const CCoedgeList& loop) {
        return loop.edges().empty() || plan::contains(region, loop.edges().front().start);
    });
}

} // namespace

EnPolygonPolygonPosition CPositionJudge::GetPolygonPosition(const CPolygon* first,
                                                            const CPolygon* second) const {
    if (!first || !second)
        return PolygonsApart;
    const Boundary ofFirst(*first);
    const Boundary ofSecond(*second);
    if (ofFirst.isEmpty() || ofSecond.isEmpty())
        return PolygonsApart;
    if (ofFirst.sharesPointWith(ofSecond))
        return PolygonsShareBoundary;
    if (isInside(*first, *second))
        return FirstInsideSecond;
    return isInside(*second, *first) ? SecondInsideFirst : PolygonsApart;
}

EnCurvePolygonPosition CPositionJudge::GetCurvePolygonPosition(const CCurve2d* curve,
                                                               const CPolygon* polygon) const {
    if (!curve || !polygon)
        return CurveOutside;
    const std::vector<Edge2d> edges = curve->edges();
    if (edges.empty())
        return CurveOutside;
    if (Boundary(edges).sharesPointWith(Boundary(*polygon)))
        return CurveSharesBoundary;
    return plan::contains(*polygon, edges.front().start) ? CurveInside : CurveOutside;
}

} // namespace hrx
