#include "geometry/PrismPieces.h"

#include "geometry/plan_distance.h"

namespace hrx {

namespace {

/// An arc that leaves its chord by less than this fills its hull.
constexpr double kLeastSagitta = 1e-7;

} // namespace

CVec3<double> PrismPiece::support(const CVec3<double>& direction) const {
    const CVec3<double> local = m_frame.directionToLocal(direction);
    const CVec2<double> plan = m_hull.support({local.x, local.y});
    const bool raised = (local.z > 0.0) == (m_height > 0.0);
    return m_frame.toWorld({plan.x, plan.y, raised ? m_height : 0.0});
}

WallPiece::WallPiece(const CCoord3<double>& frame, double height, const Edge2d& edge)
    : PrismPiece(frame, height), m_edge(edge) {
    add(edge);
}

CVec3<double> WallPiece::onPart(const CVec3<double>& hullPoint) const {
    if (!m_edge.isArc())
        return hullPoint;
    const CVec3<double> local = frame().toLocal(hullPoint);
    const ArcFrame arc(m_edge);
    const CVec2<double> foot = arc.toWorld(arc.footOf(arc.toLocal({local.x, local.y})));
    return frame().toWorld({foot.x, foot.y, local.z});
}

void WallPiece::split(ConvexPieces& halves) const {
    const CVec2<double> rise = (m_edge.end - m_edge.start) * (0.5 * m_edge.bulge);
    if (!(length(rise) > kLeastSagitta))
        return;
    const auto [first, second] = m_edge.halves();
    halves.push_back(std::make_unique<WallPiece>(frame(), height(), first));
    halves.push_back(std::make_unique<WallPiece>(frame(), height(), second));
}

CapPiece::CapPiece(const CCoord3<double>& frame, const CPolygon& outline, const CVec2<double>& offset)
    : PrismPiece(frame, 0.0), m_outline(outline), m_offset(offset) {
    for (const CCoedgeList& loop : outline.loops())
        for (const Edge2d& edge : loop.edges())
            add({edge.start - offset, edge.end - offset, edge.bulge});
}

CVec3<double> CapPiece::onPart(const CVec3<double>& hullPoint) const {
    const CVec3<double> local = frame().toLocal(hullPoint);
    const CVec2<double> nearest =
        planContact(CVec2<double>(local.x, local.y) + m_offset, m_outline).onB - m_offset;
    return frame().toWorld({nearest.x, nearest.y, local.z});
}

} // namespace hrx
