#include "geometry/CExtrudedBody.h"

#include "geometry/CellPiece.h"
#include "geometry/DistEpsilon.h"
#include "geometry/finite.h"
#include "geometry/outline_shape.h"

#include <cmath>
#include <ostream>

namespace hrx {

namespace {

bool standsInWorldPlan(const CCoord3<double>& frame) {
    return frame.xAxis.x == 1.0 && frame.xAxis.y == 0.0 && frame.yAxis.x == 0.0 && frame.yAxis.y == 1.0 &&
           frame.origin.x == 0.0 && frame.origin.y == 0.0;
}

bool isUpright(const CCoord3<double>& frame) {
    return frame.zAxis.x == 0.0 && frame.zAxis.y == 0.0 && frame.xAxis.z == 0.0 && frame.yAxis.z == 0.0;
}

} // namespace

CExtrudedBody::CExtrudedBody(const CCoord3<double>& frame, double height, CPolygon* outline, bool)
    : m_frame(frame), m_height(height), m_outline(outline) {
    if (m_outline && isUpright(m_frame))
        m_plan = standsInWorldPlan(m_frame) ? m_outline : PolygonRef(movedToPlan(*m_outline, m_frame));
}

CExtents3 CExtrudedBody::GetExtents() const {
    CExtents3 extents;
    if (!m_outline)
        return extents;
    PrismPiece hull(m_frame, m_height);
    bool empty = true;
    for (const CCoedgeList& loop : m_outline->loops())
        for (const Edge2d& edge : loop.edges()) {
            hull.add(edge);
            empty = false;
        }
    return empty ? extents : hull.box();
}

bool CExtrudedBody::isStrictlyValid() const {
    return isFinite(m_frame) && std::isfinite(m_height) && std::abs(m_height) > g_DistEpsilon && m_outline &&
           hrx::isStrictlyValid(*m_outline);
}

bool CExtrudedBody::IsValid(const std::bitset<16>& checks, std::ostream* log) const {
    if (!isFinite(m_frame) || !std::isfinite(m_height)) {
        if (log)
            *log << "extrusion: the frame or the height is not finite\n";
        return false;
    }
    if (!m_outline) {
        if (log)
            *log << "extrusion: no outline\n";
        return false;
    }
    return m_outline->IsValid(checks, log);
}

bool CExtrudedBody::isMeasurable() const {
    return m_outline && isWithinReach(*m_outline) && isWithinReach(m_height) &&
           isWithinReach(m_frame.origin) && isWithinReach(m_frame.xAxis) && isWithinReach(m_frame.yAxis) &&
           isWithinReach(m_frame.zAxis);
}

bool CExtrudedBody::describeUpright(UprightSolid& solid) const {
    if (!m_plan)
        return false;
    const double base = m_frame.origin.z;
    const double top = base + m_frame.zAxis.z * m_height;
    solid.outline = m_plan.get();
    solid.low = std::min(base, top);
    solid.high = std::max(base, top);
    return true;
}

void CExtrudedBody::appendPieces(const CVec3<double>& origin, ConvexPieces& pieces) const {
    // The outline moves to its first corner and the frame with it, so that the place of the site costs no
    // precision.
    const CVec2<double> corner = firstCorner(*m_outline);
    CCoord3<double> base = m_frame;
    base.origin = m_frame.origin - origin + m_frame.xAxis * corner.x + m_frame.yAxis * corner.y;
    if (isConvex(*m_outline)) {
        auto whole = std::make_unique<PrismPiece>(base, m_height);
        for (const Edge2d& edge : m_outline->GetLoop(0)->edges())
            whole->add({edge.start - corner, edge.end - corner, edge.bulge});
        pieces.push_back(std::move(whole));
        return;
    }
    for (const OutlineCell& cell : cellsOf(*m_outline, corner))
        pieces.push_back(std::make_unique<CellPiece>(base, m_height, cell));
}

} // namespace hrx
